// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "theme/fault.h"

#include <QHash>
#include <QMap>
#include <QString>

#include <memory>
#include <span>

class QSettings;

namespace quillane {

/// A row of the user settings: where it lives and the text that stands for it when it is not set.
struct Setting {
  const char* section;
  const char* key;
  const char* standard;
};

/// The user settings that the program knows. Flags are texts of 0 and -1. A folder's empty default
/// stands for one that depends on the program's folder.
namespace setting {
inline constexpr Setting ThemesFolder{"General", "ThemesFolder", ""};
inline constexpr Setting CopyMoveFolder{"General", "CopyMoveFolder", ""};
inline constexpr Setting BrowseFolder{"General", "BrowseFolder", ""};
inline constexpr Setting ImageFolder{"General", "ImageFolder", ""};
inline constexpr Setting CaptureFolder{"General", "CaptureFolder", ""};
inline constexpr Setting ExtractFolder{"General", "ExtractFolder", ""};
inline constexpr Setting ExportFolder{"General", "ExportFolder", ""};
inline constexpr Setting ImportFolder{"General", "ImportFolder", ""};
inline constexpr Setting TARWizFilesFolder{"General", "TARWizFilesFolder", ""};
inline constexpr Setting ImageWizOpenFolder{"General", "ImageWizOpenFolder", ""};
inline constexpr Setting ImageWizSaveFolder{"General", "ImageWizSaveFolder", ""};
inline constexpr Setting UserPalette{"General", "UserPalette", ""};
inline constexpr Setting DisableETT{"General", "DisableETT", "0"};
inline constexpr Setting IncludeIndexFile{"General", "IncludeIndexFile", "-1"};
inline constexpr Setting CompressXMLCode{"General", "CompressXMLCode", "-1"};
inline constexpr Setting SmartLAImage{"General", "SmartLAImage", "-1"};
inline constexpr Setting ShowIRIcon{"General", "ShowIRIcon", "1"};
inline constexpr Setting ActiveSignal{"General", "ActiveSignal", "1"};
inline constexpr Setting ActiveBattery{"General", "ActiveBattery", "1"};
inline constexpr Setting ActiveDesktop{"General", "ActiveDesktop", "1"};
inline constexpr Setting OperatorName{"General", "OperatorName", "World"};
inline constexpr Setting TimeFormat{"General", "TimeFormat", "hh:mm"};
inline constexpr Setting ShowGPRSIcon{"General", "ShowGPRSIcon", "1"};
inline constexpr Setting GPRSRange{"General", "GPRSRange", "1"};
inline constexpr Setting SignalStrength{"General", "SignalStrength", "5"};
inline constexpr Setting BatteryLevel{"General", "BatteryLevel", "10"};
inline constexpr Setting ETTCreator{"General", "ETTCreator", ""};
inline constexpr Setting ETTModifiedBy{"General", "ETTModifiedBy", ""};
inline constexpr Setting CustomColors{"General", "CustomColors", "0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0"};
inline constexpr Setting LanguageFile2{"Vistrel2Dynamics", "VistrelINIFile", "english.lng"};
inline constexpr Setting DesktopIcon2{"Vistrel2Dynamics", "DesktopIcon", "5"};
inline constexpr Setting LanguageFile3G{"Vistrel3GDynamics", "VistrelINIFile", "english.lng"};
inline constexpr Setting DesktopIcon3G{"Vistrel3GDynamics", "DesktopIcon", "5"};
inline constexpr Setting DateFormat3G{"Vistrel3GDynamics", "DateFormat", "dd.mmm.yy"};
inline constexpr Setting DateFormatIndex3G{"Vistrel3GDynamics", "DateFormatIndex", "0"};
}  // namespace setting

/// Where the user settings live: texts by section and key.
class SettingsStore {
 public:
  virtual ~SettingsStore() = default;

  /// The stored text, or the setting's default.
  virtual QString read(const Setting& setting) const = 0;
  virtual void write(const Setting& setting, const QString& value) = 0;
  /// Makes sure that what was written is kept. Throws `Fault` when it cannot be.
  virtual void flush() = 0;
};

/// Settings that end with the object; what is not written has its default.
class MemorySettings : public SettingsStore {
 public:
  QString read(const Setting& setting) const override;
  void write(const Setting& setting, const QString& value) override;
  void flush() override {}

 private:
  QHash<QString, QString> values_;
};

/// The settings of the user in an INI file, one group a section.
class IniSettings : public SettingsStore {
 public:
  /// `file` is made at the first flush, which the end of the object is, too. One with lines that
  /// are no settings is kept beside it, under its name and ".broken"; `report` hears of that and of
  /// a file that cannot be read.
  IniSettings(const QString& file, const FaultReporter& report);
  ~IniSettings() override;

  QString read(const Setting& setting) const override;
  void write(const Setting& setting, const QString& value) override;
  void flush() override;

 private:
  QString file_;
  std::unique_ptr<const QSettings> settings_;  ///< Reads alone: it writes without noticing faults.
  QMap<QString, QString> written_;             ///< By section and key, with "/" in between.
  bool isKept_ = true;                         ///< What was written is in the file.
};

/// A setting as a 16-bit number, rounded half to even. A text that is none is reported, and the
/// default serves.
int numberSetting(const SettingsStore& store, const Setting& setting, const FaultReporter& report);

/// A setting as a flag: any number but 0 is true.
bool flagSetting(const SettingsStore& store, const Setting& setting, const FaultReporter& report);

}  // namespace quillane

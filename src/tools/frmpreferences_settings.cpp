// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
// Which control carries which setting, and the way from the store to the controls and back.
#include "forms/chourglass.h"
#include "forms/heldfaults.h"
#include "preview/dateformat.h"
#include "preview/world.h"
#include "shell/files.h"
#include "shell/ini.h"
#include "shell/language.h"
#include "shell/listing.h"
#include "shell/settings.h"
#include "shell/state.h"
#include "tools/frmpreferences.h"
#include "ui_frmpreferences.h"

#include <QButtonGroup>

#include <iterator>

namespace quillane {

using namespace Qt::StringLiterals;

/// A setting and the control that carries it. Of a group of options, `texts` are what the setting
/// holds for each. A row without a default is filled by a procedure of its own.
struct SettingControl {
  const char* control;
  const Setting& setting;
  const char* standard = nullptr;
  const char* texts = nullptr;
};

namespace {

/// In the order of writing.
constexpr SettingControl kSettings[] = {
    {"chkIndexFile", setting::IncludeIndexFile, "1"},
    {"chkCompressXML", setting::CompressXMLCode, "1"},
    {"chkDisableSmartLA", setting::SmartLAImage, "0"},
    {"txtDefThmFolder", setting::ThemesFolder},
    {"chkDisableETT", setting::DisableETT, "0"},
    {"txtETTCreator", setting::ETTCreator, ""},
    {"txtETTModifiedBy", setting::ETTModifiedBy, ""},
    {"txtUserPalette", setting::UserPalette, ""},
    {"cboLanguage_0", setting::LanguageFile2},
    {"cboLanguage_1", setting::LanguageFile3G},
    {"txtOperatorName", setting::OperatorName, "World"},
    {"optTimeFormat", setting::TimeFormat, "hh:mm", "hh:mm|hh:mmam/pm"},
    {"chkGPRSIcon", setting::ShowGPRSIcon, "1"},
    {"optRange", setting::GPRSRange, "1", "0|1"},
    {"chkActiveSignal", setting::ActiveSignal, "1"},
    {"ctrSignalSlider", setting::SignalStrength, "5"},
    {"chkActiveBattery", setting::ActiveBattery, "1"},
    {"ctrBatterySlider", setting::BatteryLevel, "10"},
    {"chkActiveDesktop", setting::ActiveDesktop, "1"},
    {"ctrDesktopIcon_0", setting::DesktopIcon2, "5"},
    {"ctrDesktopIcon_1", setting::DesktopIcon3G, "5"},
    {"cboDateFormat", setting::DateFormat3G},
};

/// A quality of saved pictures, in an INI file of its own.
struct Quality {
  const char* slider;
  const char* section;
  const char* key;
  int standard;
};

constexpr Quality kQualities[] = {
    {"ctrJPGSlider", "JPEG", "Save Quality", 90},
    {"ctrPNGSlider", "PNG", "CompressionLevel", 6},
};

const QString kDateFormats =
    u"dd-mmm-yy|dd-mm-yy|mm\"/\"dd\"/\"yy|yymmdd|dd\"/\"mm\"/\"yy|dd.mm.yy|yy-mm-dd"_s;

const FaultReporter kQuiet = [](const Fault&) {};

int optionOf(const QStringList& texts, const QString& value) {
  const auto exact = static_cast<int>(texts.indexOf(value));
  // A clock of a person's own making, by whether it has halves of a day.
  return exact >= 0 ? exact : value.endsWith("am/pm"_L1, Qt::CaseInsensitive) ? 1 : 0;
}

QString numberText(const QSlider& slider, const QString& text, int standard) {
  bool isNumber = false;
  const int value = text.toInt(&isNumber);
  const bool fits = isNumber && value >= slider.minimum() && value <= slider.maximum();
  return QString::number(fits ? value : standard);
}

QStringList languagesIn(const QString& folder, const FaultReporter& report) {
  if (!FolderExists(folder)) return {};
  try {
    return listFiles(folder, u".ini"_s);
  } catch (const Fault& fault) {
    report(fault);
  }
  return {};
}

}  // namespace

QString frmPreferences::valueOf(const SettingControl& row) const {
  auto* const found = findChild<QObject*>(QLatin1String(row.control));
  if (const auto* group = qobject_cast<QButtonGroup*>(found))
    return QString::fromLatin1(row.texts).split(u'|').value(group->checkedId());
  if (const auto* box = qobject_cast<QCheckBox*>(found)) return box->isChecked() ? u"1"_s : u"0"_s;
  if (const auto* slider = qobject_cast<QSlider*>(found)) return QString::number(slider->value());
  if (const auto* combo = qobject_cast<QComboBox*>(found))
    return combo->currentIndex() < 0 ? combo->placeholderText() : combo->currentData().toString();
  return static_cast<QLineEdit*>(found)->text();
}

void frmPreferences::setValue(const SettingControl& row, const QString& value) {
  auto* const found = findChild<QObject*>(QLatin1String(row.control));
  if (auto* group = qobject_cast<QButtonGroup*>(found))
    group->button(optionOf(QString::fromLatin1(row.texts).split(u'|'), value))->setChecked(true);
  else if (auto* box = qobject_cast<QCheckBox*>(found))
    box->setChecked(value != u'0');
  else if (auto* slider = qobject_cast<QSlider*>(found))
    slider->setValue(numberText(*slider, value, QLatin1String(row.standard).toInt()).toInt());
  else
    static_cast<QLineEdit*>(found)->setText(value);
}

QString frmPreferences::stored(const SettingControl& row, const FaultReporter& report) const {
  const Setting wanted{row.setting.section, row.setting.key, row.standard};
  const QWidget* widget = findChild<QWidget*>(QLatin1String(row.control));
  if (qobject_cast<const QCheckBox*>(widget))
    return flagSetting(settings_, wanted, report) ? u"1"_s : u"0"_s;
  if (qobject_cast<const QSlider*>(widget))
    return QString::number(numberSetting(settings_, wanted, report));
  return settings_.read(wanted);
}

void frmPreferences::loadSettings() {
  HeldFaults faults;
  const FaultReporter report = faults.reporter();
  for (const SettingControl& row : kSettings)
    if (row.standard) setValue(row, stored(row, report));
  const QString themes = settings_.read(setting::ThemesFolder);
  ui_->chkDefThmFolder->setChecked(themes.isEmpty() ||
                                   themes.toLower() == state_.MyThemesFolder.toLower());
  for (const Quality& row : kQualities) {
    auto& slider = control<QSlider>(row.slider);
    const QString text = ReadIni(QLatin1String(row.section), QLatin1String(row.key),
                                 QString::number(row.standard), state_.QualitiesFile);
    slider.setValue(numberText(slider, text, row.standard).toInt());
  }
  ui_->chkActiveSignal->setChecked(state_.ActiveSignal);
  ui_->chkActiveBattery->setChecked(state_.ActiveBattery);
  ui_->chkActiveDesktop->setChecked(state_.ActiveDesktop);
  loadLanguages(report);
  loadDateFormats(report);
  faults.show(dialogs_, parentWidget(), u"in Quillane.frmPreferences.Form_Load "_s);
}

void frmPreferences::loadLanguages(const FaultReporter& report) {
  struct Language {
    QComboBox* combo;
    const QString& folder;
    const QString& inForce;
  };
  const Language languages[] = {
      {ui_->cboLanguage_0, state_.ConfigFolder2, state_.LanguageFile2},
      {ui_->cboLanguage_1, state_.ConfigFolder3G, state_.LanguageFile3G},
  };
  for (int index = 0; const Language& language : languages) {
    language.combo->setPlaceholderText(language.inForce);
    for (const QString& file : languagesIn(language.folder, report))
      language.combo->addItem(
          ReadIni(u"FileInfo"_s, u"Language"_s, u"unknown"_s, language.folder + file), file);
    language.combo->setCurrentIndex(language.combo->findData(language.inForce));
    cboLanguage_Click(index++);
  }
}

void frmPreferences::loadDateFormats(const FaultReporter& report) {
  for (const QString& format : kDateFormats.split(u'|'))
    ui_->cboDateFormat->addItem(formatDate(world_.now(), format, world_.locale()), format);
  const int index = numberSetting(settings_, setting::DateFormatIndex3G, report);
  ui_->cboDateFormat->setCurrentIndex(index >= 0 && index < ui_->cboDateFormat->count() ? index
                                                                                        : 0);
}

void frmPreferences::btnDefault_Click() {
  for (const SettingControl& row : kSettings)
    if (row.standard) setValue(row, QLatin1String(row.standard));
  ui_->chkDefThmFolder->setChecked(true);
  for (const Quality& row : kQualities)
    control<QSlider>(row.slider).setValue(row.standard);
  ui_->cboDateFormat->setCurrentIndex(0);
}

void frmPreferences::accept() {
  const cHourglass wait;
  writeSettings();
  run("btnOK_Click"_L1, [this] { settings_.flush(); });
  run("btnOK_Click"_L1, [this] { writeQualities(); });
  fillPublicVariables();
  refreshEngines();
  QDialog::accept();
}

void frmPreferences::writeSettings() {
  for (const SettingControl& row : kSettings)
    settings_.write(row.setting, valueOf(row));
  settings_.write(setting::DateFormatIndex3G, QString::number(ui_->cboDateFormat->currentIndex()));
}

void frmPreferences::writeQualities() {
  for (const Quality& row : kQualities)
    WriteIni(QLatin1String(row.section), QLatin1String(row.key),
             QString::number(control<QSlider>(row.slider).value()), state_.QualitiesFile);
}

void frmPreferences::fillPublicVariables() {
  const QString themes = ui_->txtDefThmFolder->text();
  const QString palette = ui_->txtUserPalette->text();
  state_.IncludeIndexFile = ui_->chkIndexFile->isChecked();
  state_.CompressXMLCode = ui_->chkCompressXML->isChecked();
  state_.SmartLAImage = ui_->chkDisableSmartLA->isChecked();
  state_.ThemesFolder = themes.isEmpty() ? state_.MyThemesFolder : withSeparator(themes);
  state_.DisableETT = ui_->chkDisableETT->isChecked();
  // The picker decides when it is made whether it offers the palette.
  if (state_.UserPalette.isEmpty() != palette.isEmpty()) state_.ColorPicker.reset();
  state_.UserPalette = palette;
  state_.LanguageFile2 = settings_.read(setting::LanguageFile2);
  state_.LanguageFile3G = settings_.read(setting::LanguageFile3G);
  state_.ActiveSignal = ui_->chkActiveSignal->isChecked();
  state_.ActiveBattery = ui_->chkActiveBattery->isChecked();
  state_.ActiveDesktop = ui_->chkActiveDesktop->isChecked();
}

void frmPreferences::refreshEngines() {
  HeldFaults faults;
  InitPreview2(*state_.PreviewEngine2, state_, settings_, faults.reporter());
  InitPreview2(*state_.EditorEngine2, state_, settings_, kQuiet);
  InitPreview3G(*state_.PreviewEngine3G, state_, settings_, faults.reporter());
  InitPreview3G(*state_.EditorEngine3G, state_, settings_, kQuiet);
  faults.show(dialogs_, this, u"in Quillane.frmPreferences.btnOK_Click "_s);
}

}  // namespace quillane

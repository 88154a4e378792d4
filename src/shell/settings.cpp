// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/settings.h"

#include "shell/files.h"
#include "shell/ini.h"
#include "theme/files.h"

#include <QDir>
#include <QFile>
#include <QLocale>
#include <QRegularExpression>
#include <QSettings>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

QString nameOf(const Setting& setting) {
  return QLatin1String(setting.section) + u'/' + QLatin1String(setting.key);
}

// A value with a bare comma, as a person may write it into the file, comes back as a list.
QString textOf(const QVariant& value) {
  return value.typeId() == QMetaType::QStringList ? value.toStringList().join(", "_L1)
                                                  : value.toString();
}

bool isSettingsLine(QByteArrayView line) {
  return line.isEmpty() || line.startsWith(';') || line.contains('=') ||
         (line.startsWith('[') && line.endsWith(']'));
}

bool isSettingsText(const QByteArray& text) {
  const QList<QByteArray> lines = text.split('\n');
  return std::all_of(lines.begin(), lines.end(),
                     [](const QByteArray& line) { return isSettingsLine(line.trimmed()); });
}

// Lines that are no settings go when the file is next written.
void keepWhenBroken(const QString& file, const FaultReporter& report) {
  QFile ini(file);
  if (!ini.open(QIODevice::ReadOnly)) return;
  const QByteArray text = ini.readAll();
  if (isSettingsText(text)) return;
  const QString kept = file + ".broken"_L1;
  QString outcome = u"It is kept as \"%1\"."_s.arg(kept);
  try {
    saveFile(kept, text);
  } catch (const Fault& fault) {
    outcome = u"It could not be kept: %1"_s.arg(fault.description());
  }
  report(Fault(FaultNumber::DeviceFault,
               u"The settings file \"%1\" holds lines that are no settings. %2 "
               "What could be read is in force."_s.arg(file, outcome)));
}

/// The text as the reading store takes it for a value.
QString iniText(const QString& text) {
  static const QRegularExpression kPlain(u"\\A([\\w/.:%+-]([\\w/.:%+ -]*[\\w/.:%+-])?)?\\z"_s);
  if (kPlain.match(text).hasMatch()) return text;
  constexpr std::pair<char16_t, QLatin1String> kEscapes[] = {
      {u'\\', "\\\\"_L1}, {u'"', "\\\""_L1}, {u'\n', "\\n"_L1}, {u'\r', "\\r"_L1}};
  // What begins with this sign is another type's.
  QString value = text.startsWith(u'@') ? u'@' + text : text;
  for (const auto& [letter, escape] : kEscapes)
    value.replace(letter, escape);
  return u'"' + value + u'"';
}

/// The text of a settings file with values by section and key, as UTF-8 in UTF-8 out.
QByteArray withSettings(const QByteArray& bytes, const QMap<QString, QString>& values) {
  QList<QByteArray> lines = bytes.split('\n');
  lines.removeIf([](const QByteArray& line) { return !isSettingsLine(line.trimmed()); });
  QString text = QString::fromUtf8(lines.join('\n'));
  for (auto value = values.begin(); value != values.end(); ++value) {
    const QString section = value.key().section(u'/', 0, 0);
    // Without the sign, the section would be that of keys without one.
    text = withIniValue(text, section == "General"_L1 ? u"%General"_s : section,
                        value.key().section(u'/', 1), iniText(*value));
  }
  return text.remove(u'\r').toUtf8();
}

double numberOf(const SettingsStore& store, const Setting& setting, const FaultReporter& report) {
  const QString text = store.read(setting);
  bool isNumber = false;
  const double value = QLocale::c().toDouble(text.trimmed(), &isNumber);
  if (isNumber) return value;
  const QString standard = QLatin1String(setting.standard);
  report(Fault(FaultNumber::BadNumber,
               u"The setting %1 holds \"%2\", which is no number; %3 is used instead."_s.arg(
                   nameOf(setting), text, standard)));
  return standard.toDouble();
}

}  // namespace

QString MemorySettings::read(const Setting& setting) const {
  return values_.value(nameOf(setting), QLatin1String(setting.standard));
}

void MemorySettings::write(const Setting& setting, const QString& value) {
  values_.insert(nameOf(setting), value);
}

IniSettings::IniSettings(const QString& file, const FaultReporter& report) : file_(file) {
  keepWhenBroken(file, report);
  settings_ = std::make_unique<QSettings>(file, QSettings::IniFormat);
  if (settings_->status() == QSettings::AccessError)
    report(Fault(FaultNumber::NoPermission,
                 u"The settings file \"%1\" cannot be read. The standard settings are "
                 "in force; allow reading and writing it and start again."_s.arg(file)));
}

IniSettings::~IniSettings() {
  skipOnFault([this] { IniSettings::flush(); });
}

// The store knows the section General as [%General]; one that a person wrote as [General] holds
// keys without a section to it.
QString IniSettings::read(const Setting& setting) const {
  const QString name = nameOf(setting);
  const auto written = written_.find(name);
  if (written != written_.end()) return *written;
  const bool isBare = QLatin1String(setting.section) == "General"_L1 && !settings_->contains(name);
  return textOf(settings_->value(isBare ? QString(QLatin1String(setting.key)) : name,
                                 QLatin1String(setting.standard)));
}

void IniSettings::write(const Setting& setting, const QString& value) {
  written_.insert(nameOf(setting), value);
  isKept_ = false;
}

void IniSettings::flush() {
  if (isKept_) return;
  try {
    const QByteArray before = FileExists(file_) ? readFile(file_) : QByteArray();
    QDir().mkpath(SplitPath(file_, PathPart::Folder));
    saveFile(file_, withSettings(before, written_));
  } catch (const Fault& fault) {
    throw Fault(fault.number(),
                u"The settings file \"%1\" cannot be written, so the settings and the folders in "
                "use are not kept. %2"_s.arg(file_, fault.description()));
  }
  isKept_ = true;
}

int numberSetting(const SettingsStore& store, const Setting& setting, const FaultReporter& report) {
  const double value = std::nearbyint(numberOf(store, setting, report));
  if (std::abs(value) <= std::numeric_limits<std::int16_t>::max()) return static_cast<int>(value);
  const QString standard = QLatin1String(setting.standard);
  report(Fault(FaultNumber::BadNumber,
               u"The setting %1 holds a number that is too large; %2 is used instead."_s.arg(
                   nameOf(setting), standard)));
  return standard.toInt();
}

bool flagSetting(const SettingsStore& store, const Setting& setting, const FaultReporter& report) {
  return numberOf(store, setting, report) != 0;
}

}  // namespace quillane

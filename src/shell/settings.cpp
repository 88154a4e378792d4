// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/settings.h"

#include "theme/files.h"

#include <QFile>
#include <QLocale>
#include <QSettings>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <limits>

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

// The store drops what it cannot read when it next writes the file.
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

IniSettings::IniSettings(const QString& file, const FaultReporter& report) {
  keepWhenBroken(file, report);
  settings_ = std::make_unique<QSettings>(file, QSettings::IniFormat);
  if (settings_->status() == QSettings::AccessError)
    report(Fault(FaultNumber::NoPermission,
                 u"The settings file \"%1\" cannot be read. The standard settings are "
                 "in force; allow reading and writing it and start again."_s.arg(file)));
}

IniSettings::~IniSettings() = default;

// The store writes its section General as [%General]; one that a person wrote as [General] holds
// keys without a section to it.
QString IniSettings::read(const Setting& setting) const {
  const QString name = nameOf(setting);
  const bool isBare = QLatin1String(setting.section) == "General"_L1 && !settings_->contains(name);
  return textOf(settings_->value(isBare ? QString(QLatin1String(setting.key)) : name,
                                 QLatin1String(setting.standard)));
}

void IniSettings::write(const Setting& setting, const QString& value) {
  settings_->setValue(nameOf(setting), value);
}

void IniSettings::flush() {
  // A store that has failed once says so for ever. A new one takes over what was not written, so it
  // has to be there before the old one goes.
  if (settings_->status() == QSettings::AccessError) {
    auto fresh = std::make_unique<QSettings>(settings_->fileName(), QSettings::IniFormat);
    settings_ = std::move(fresh);
  }
  settings_->sync();
  if (settings_->status() != QSettings::AccessError) return;
  throw Fault(FaultNumber::NoPermission,
              u"The settings file \"%1\" cannot be written, so the settings and "
              "the folders in use are not kept."_s.arg(settings_->fileName()));
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

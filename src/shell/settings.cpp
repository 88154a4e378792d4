// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/settings.h"

#include <QFile>
#include <QSettings>
#include <QStringList>

namespace quillane {

namespace {

QString nameOf(const Setting& setting) {
  return QLatin1String(setting.section) + QLatin1Char('/') + QLatin1String(setting.key);
}

// A value with a bare comma, as a person may write it into the file, comes back as a list.
QString textOf(const QVariant& value) {
  return value.typeId() == QMetaType::QStringList ? value.toStringList().join(QLatin1String(", "))
                                                  : value.toString();
}

}  // namespace

QString MemorySettings::read(const Setting& setting) const {
  return values_.value(nameOf(setting), QLatin1String(setting.standard));
}

void MemorySettings::write(const Setting& setting, const QString& value) {
  values_.insert(nameOf(setting), value);
}

IniSettings::IniSettings(const QString& file, const FaultReporter& report)
    : settings_(std::make_unique<QSettings>(file, QSettings::IniFormat)) {
  if (settings_->status() != QSettings::FormatError) return;
  const QString kept = file + QLatin1String(".broken");
  QFile::remove(kept);
  QFile::rename(file, kept);
  settings_ = std::make_unique<QSettings>(file, QSettings::IniFormat);
  report(
      Fault(FaultNumber::DeviceFault,
            QStringLiteral("The settings file \"%1\" cannot be understood. It was kept as \"%2\", "
                           "and the standard settings are in force.")
                .arg(file, kept)));
}

IniSettings::~IniSettings() = default;

QString IniSettings::read(const Setting& setting) const {
  return textOf(settings_->value(nameOf(setting), QLatin1String(setting.standard)));
}

void IniSettings::write(const Setting& setting, const QString& value) {
  settings_->setValue(nameOf(setting), value);
}

int numberSetting(const SettingsStore& store, const Setting& setting, const FaultReporter& report) {
  const QString text = store.read(setting);
  bool isNumber = false;
  const int value = text.trimmed().toShort(&isNumber);
  if (isNumber) return value;
  const QString standard = QLatin1String(setting.standard);
  report(
      Fault(FaultNumber::BadNumber,
            QStringLiteral("The setting %1 holds \"%2\", which is no number; %3 is used instead.")
                .arg(nameOf(setting), text, standard)));
  return standard.toInt();
}

bool flagSetting(const SettingsStore& store, const Setting& setting, const FaultReporter& report) {
  return numberSetting(store, setting, report) != 0;
}

}  // namespace quillane

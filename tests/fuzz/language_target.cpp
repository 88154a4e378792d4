// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/targets.h"
#include "preview/pipelist.h"
#include "shell/ini.h"
#include "shell/settings.h"

#include <QStringList>

#include <cstdlib>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kLongestValue = 254;

struct Place {
  QString section;
  QString key;
};

/// Some of what the program asks language files for.
const Place kPlaces[] = {{u"FileInfo"_s, u"Language"_s},
                         {u"Menu"_s, u"Titles"_s},
                         {u"Menu"_s, u"MenuList1"_s},
                         {u"JPEG"_s, u"Save Quality"_s}};

QStringList valuesIn(const QString& file) {
  QStringList values;
  for (const Place& place : kPlaces)
    values += ReadIni(place.section, place.key, u"none"_s, file);
  return values;
}

void expectValues(const QString& file) {
  for (const QString& value : valuesIn(file)) {
    expect(value.size() <= kLongestValue, "a value of at most 254 signs");
    expect(!value.contains(u'\n'), "a value of one line");
    expect(splitList(value).join(u'|') == value, "a list is cut at its bars alone");
  }
}

/// Writes each value in turn, which is then read there while all others are what they were.
void expectWritable(const QString& file) {
  QStringList values = valuesIn(file);
  for (qsizetype at = 0; at < values.size(); ++at) {
    const Place& place = kPlaces[at];
    values[at] = u"new"_s;
    WriteIni(place.section, place.key, values[at], file);
    expect(valuesIn(file) == values, "a value is read where it was written");
  }
}

void expectSettings(const QString& file) {
  const FaultReporter pass = [](const Fault&) {};
  const IniSettings settings(file, pass);
  for (const Setting& setting : {setting::SignalStrength, setting::BatteryLevel, setting::GPRSRange,
                                 setting::DesktopIcon3G}) {
    expect(std::abs(numberSetting(settings, setting, pass)) <= 32767, "a number of 16 bits");
    flagSetting(settings, setting, pass);
  }
}

}  // namespace

void languageTarget(QByteArrayView bytes) {
  static const Scratch scratch;
  const QString file = scratch.write(u"texts.ini"_s, bytes);
  expectValues(file);
  expectSettings(file);
  expectWritable(file);
}

}  // namespace quillane

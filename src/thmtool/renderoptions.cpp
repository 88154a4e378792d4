// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "thmtool/renderoptions.h"

#include "theme/files.h"
#include "thmtool/folders.h"
#include "thmtool/wholenumber.h"

#include <QCommandLineParser>

#include <limits>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

constexpr OptionRow kRows[] = {
    {"out"_L1, "DIR"_L1, "write one file a screen, ID.png, into this folder (default: .)"_L1},
    {"sheet"_L1, "FILE.png"_L1, "write all screens into one labelled sheet instead"_L1},
    {"screens"_L1, "ID,ID"_L1, "paint these screens only, in this order"_L1},
    {"border"_L1, "none|single|default"_L1, "keep so much of the margin (default: none)"_L1},
    {"scale"_L1, "N"_L1, "magnify N times, 1 to 16 (default: 1)"_L1},
    {"now"_L1, "\"YYYY-MM-DD hh:mm\""_L1, "show this date and time (default: the present)"_L1},
    {"seed"_L1, "N"_L1, "fix what is random, such as tick boxes"_L1},
    {"signal"_L1, "N"_L1, "signal strength, 0 to 5 (default: 5)"_L1},
    {"battery"_L1, "N"_L1, "battery level, 0 to 10 (default: 10)"_L1},
    {"desktop-icon"_L1, "N"_L1, "selected icon of the desktop (default: 5)"_L1},
    {"operator"_L1, "TEXT"_L1, "name of the operator (default: World)"_L1},
    {"time-format"_L1, "F"_L1, "format of the clock (default: hh:mm)"_L1},
    {"date-format"_L1, "F"_L1, "format of the date, 3G only (default: dd.mmm.yy)"_L1},
    {"gprs"_L1, "0|1|off"_L1, "GPRS icon out of range, in range, or hidden (default: 1)"_L1},
    {"ir"_L1, ""_L1, "show the infrared icon, generation 2 only"_L1},
    {"language"_L1, "FILE"_L1, "take the texts of the screens from this language file"_L1},
    {"no-images"_L1, ""_L1, "paint colours instead of images, 3G only"_L1},
};

/// An option that is a setting of the preview.
struct SettingOption {
  QLatin1String option;
  const Setting& setting;
  bool isNumber;
};

const SettingOption kSettingOptions[] = {
    {"signal"_L1, setting::SignalStrength, true},
    {"battery"_L1, setting::BatteryLevel, true},
    {"desktop-icon"_L1, setting::DesktopIcon2, true},
    {"desktop-icon"_L1, setting::DesktopIcon3G, true},
    {"operator"_L1, setting::OperatorName, false},
    {"time-format"_L1, setting::TimeFormat, false},
    {"date-format"_L1, setting::DateFormat3G, false},
};

struct BorderName {
  QLatin1String name;
  Border border;
};

constexpr BorderName kBorders[] = {
    {"none"_L1, Border::None},
    {"single"_L1, Border::Single},
    {"default"_L1, Border::Default},
};

/// A number text that the settings can hold; the engines settle what is out of their range.
QString settingNumber(const QString& text, QLatin1String option) {
  using Limits = std::numeric_limits<std::int16_t>;
  const std::optional<qint64> number = wholeNumber(text, -Limits::max(), Limits::max());
  if (!number) throw UsageError(u"\"%1\" of --%2 is no whole number."_s.arg(text, option));
  return QString::number(*number);
}

void readPhone(const QCommandLineParser& given, SettingsStore& phone) {
  for (const SettingOption& row : kSettingOptions) {
    if (!given.isSet(row.option)) continue;
    const QString text = given.value(row.option);
    phone.write(row.setting, row.isNumber ? settingNumber(text, row.option) : text);
  }
}

void readGprs(const QCommandLineParser& given, SettingsStore& phone) {
  if (!given.isSet(u"gprs"_s)) return;
  const QString text = given.value(u"gprs"_s);
  if (text == "off"_L1)
    phone.write(setting::ShowGPRSIcon, u"0"_s);
  else
    phone.write(setting::GPRSRange, settingNumber(text, "gprs"_L1));
}

Border readBorder(const QCommandLineParser& given) {
  if (!given.isSet(u"border"_s)) return Border::None;
  const QString text = given.value(u"border"_s);
  for (const BorderName& row : kBorders)
    if (row.name == text) return row.border;
  throw UsageError(u"\"%1\" of --border is none of none, single and default."_s.arg(text));
}

std::optional<QDateTime> readNow(const QCommandLineParser& given) {
  if (!given.isSet(u"now"_s)) return std::nullopt;
  const QString text = given.value(u"now"_s);
  // In a zone without changes of the clock, so that every hour of every day is there.
  const QDateTime now = QDateTime::fromString(text + u'Z', u"yyyy-MM-dd hh:mmt"_s);
  if (now.isValid()) return now;
  throw UsageError(u"\"%1\" of --now is no time like \"2003-05-17 14:05\"."_s.arg(text));
}

std::optional<quint32> readSeed(const QCommandLineParser& given) {
  if (!given.isSet(u"seed"_s)) return std::nullopt;
  return static_cast<quint32>(
      numberWithin(given.value(u"seed"_s), 0, std::numeric_limits<quint32>::max(), u"seed"_s));
}

QString readLanguage(const QCommandLineParser& given) {
  QString file = pathOf(given.value(u"language"_s));
  if (given.isSet(u"language"_s)) readFile(file);  // throws where it cannot be read
  return file;
}

RenderSettings readSettings(const QCommandLineParser& given) {
  RenderSettings settings;
  readPhone(given, settings.phone);
  readGprs(given, settings.phone);
  settings.languageFile = readLanguage(given);
  settings.now = readNow(given);
  settings.seed = readSeed(given);
  settings.infrared = given.isSet(u"ir"_s);
  settings.images = !given.isSet(u"no-images"_s);
  settings.border = readBorder(given);
  return settings;
}

}  // namespace

const std::span<const OptionRow> kRenderOptions{kRows};

RenderOptions readRenderOptions(const QCommandLineParser& given) {
  if (given.isSet(u"out"_s) && given.isSet(u"sheet"_s))
    throw UsageError(u"--out and --sheet exclude each other."_s);
  for (const QString& place : {u"out"_s, u"sheet"_s})
    if (given.isSet(place) && given.value(place).isEmpty())
      throw UsageError(u"--%1 needs a path."_s.arg(place));
  RenderOptions options;
  options.settings = readSettings(given);
  if (given.isSet(u"screens"_s)) options.screens = given.value(u"screens"_s).split(u',');
  options.folder = given.isSet(u"out"_s) ? pathOf(given.value(u"out"_s)) : u"."_s;
  if (given.isSet(u"sheet"_s)) options.sheet = pathOf(given.value(u"sheet"_s));
  if (given.isSet(u"scale"_s))
    options.scale = static_cast<int>(numberWithin(given.value(u"scale"_s), 1, 16, u"scale"_s));
  return options;
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "theme/color.h"

#include "theme/fault.h"

#include <algorithm>
#include <limits>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

constexpr int kPlaces = 6;

QString swapPairs(const QString& digits) {
  return digits.mid(4, 2) + digits.mid(2, 2) + digits.left(2);
}

bool isHexDigit(QChar digit) {
  const char16_t code = digit.unicode();
  return (code >= u'0' && code <= u'9') || (code >= u'A' && code <= u'F') ||
         (code >= u'a' && code <= u'f');
}

Fault badNumber(const QString& text, int line = __builtin_LINE()) {
  return Fault(FaultNumber::BadNumber, u"\"%1\" is no colour."_s.arg(text), line);
}

std::uint32_t numberOf(const QString& text) {
  bool ok = false;
  const qint64 number = text.toLongLong(&ok);
  if (!ok || number < std::numeric_limits<std::int32_t>::min() ||
      number > std::numeric_limits<std::uint32_t>::max())
    throw badNumber(text);
  return static_cast<std::uint32_t>(number);
}

}  // namespace

QString ColorToHtml(const QString& value) {
  const QString digits = QString::number(numberOf(value), 16).toUpper();
  return swapPairs(digits.rightJustified(kPlaces, u'0'));
}

QString HtmlToColor(QString& html) {
  html = html.leftJustified(kPlaces, u'0');
  return u"&H"_s + swapPairs(html);
}

ColorValue colorValueOf(QString html) {
  const QString digits = HtmlToColor(html).mid(2);
  if (!std::all_of(digits.begin(), digits.end(), isHexDigit)) throw badNumber(html);
  return digits.toUInt(nullptr, 16);
}

std::int16_t RedOf(ColorValue value) {
  return static_cast<std::int16_t>(value & 0xFF);
}

std::int16_t GreenOf(ColorValue value) {
  return static_cast<std::int16_t>(value >> 8 & 0xFF);
}

std::int16_t BlueOf(ColorValue value) {
  return static_cast<std::int16_t>(value >> 16 & 0xFF);
}

QString htmlOf(ColorValue value) {
  return ColorToHtml(QString::number(value));
}

}  // namespace quillane

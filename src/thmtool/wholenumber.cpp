// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "thmtool/wholenumber.h"

#include "thmtool/tool.h"

#include <QRegularExpression>

#include <algorithm>

namespace quillane {

using namespace Qt::StringLiterals;

std::optional<qint64> wholeNumber(const QString& text, qint64 lowest, qint64 highest) {
  static const QRegularExpression kDigits(u"\\A[+-]?[0-9]+\\z"_s);
  if (!kDigits.match(text).hasMatch()) return std::nullopt;
  bool fits = false;
  const qint64 number = text.toLongLong(&fits);
  if (!fits) return text.startsWith(u'-') ? lowest : highest;
  return std::clamp(number, lowest, highest);
}

qint64 numberWithin(const QString& text, qint64 lowest, qint64 highest, const QString& name) {
  const std::optional<qint64> number = wholeNumber(text, lowest - 1, highest + 1);
  if (number >= lowest && number <= highest) return *number;
  throw UsageError(u"\"%1\" is no %2, which is a whole number from %3 to %4."_s.arg(
      text, name, QString::number(lowest), QString::number(highest)));
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview/monthview.h"

#include "preview/dateformat.h"
#include "preview/world.h"

namespace quillane {

QDate FirstOfMonth(const QDate& date) {
  return date.addDays(1 - date.day());
}

QDate firstCellOf(const QDate& date) {
  const QDate first = FirstOfMonth(date);
  return first.addDays(1 - first.dayOfWeek());
}

QString calendarText(const QDate& day, const QString& pattern, const PreviewWorld& world) {
  return formatDate(QDateTime(day, QTime(0, 0), Qt::UTC), pattern, world.locale(), Qt::Monday);
}

}  // namespace quillane

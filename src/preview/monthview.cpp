// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview/monthview.h"

namespace quillane {

QDate FirstOfMonth(const QDate& date) {
  return date.addDays(1 - date.day());
}

QDate firstCellOf(const QDate& date) {
  const QDate first = FirstOfMonth(date);
  return first.addDays(1 - first.dayOfWeek());
}

}  // namespace quillane

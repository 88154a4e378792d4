// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QString>

namespace quillane {

class PreviewWorld;

/// The cells of a month view that can hold a day: 31 days from the last column of the first week.
constexpr int kMonthCells = 37;

/// The first day of the date's month.
QDate FirstOfMonth(const QDate& date);

/// The day in the first cell of the month view of a date: the Monday on or before the month's
/// first.
QDate firstCellOf(const QDate& date);

/// A day as the calendars write it, by a pattern of `formatDate`: weeks begin on Monday.
QString calendarText(const QDate& day, const QString& pattern, const PreviewWorld& world);

}  // namespace quillane

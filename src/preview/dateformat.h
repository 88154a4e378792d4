// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QLocale>
#include <QString>

namespace quillane {

/// Writes a time by a pattern, letter case aside: d dd ddd dddd day, m mm mmm mmmm month, yy yyyy
/// year, w weekday number, ww week of the year, h hh hour, n nn minute (m mm too, behind an hour),
/// s ss second, am/pm a 12-hour clock with its marker (AM/PM in capitals). Quoted text and a
/// character behind a backslash stand as they are, as does everything else.
///
/// Weeks begin on `firstDay`, and the first one holds 1 January. Short names lose a final point.
QString formatDate(const QDateTime& time, const QString& pattern, const QLocale& locale,
                   Qt::DayOfWeek firstDay = Qt::Sunday);

}  // namespace quillane

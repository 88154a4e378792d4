// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview/dateformat.h"

#include <gtest/gtest.h>

namespace quillane {

namespace {

const QDateTime kMorning{QDate(2003, 6, 4), QTime(9, 5, 7)};
const QDateTime kNight{QDate(2003, 12, 31), QTime(0, 30)};
const QDateTime kNoon{QDate(2003, 12, 31), QTime(12, 30)};
const QDateTime kAfternoon{QDate(2003, 6, 4), QTime(13, 5)};
const QDateTime kSunday{QDate(2003, 1, 5), QTime(0, 0)};
const QDateTime kLastWeek{QDate(2000, 12, 31), QTime(0, 0)};  // A leap year from a Saturday on.

TEST(DateFormatTest, Tokens) {
  const std::tuple<const char*, const QDateTime&, const char*> table[] = {
      {"hh:mm", kMorning, "09:05"},
      {"hh:mmam/pm", kMorning, "09:05am"},
      {"hh:mmam/pm", kAfternoon, "01:05pm"},
      {"h:mm am/pm", kNight, "12:30 am"},
      {"h:mm AM/PM", kNoon, "12:30 PM"},
      {"HH:NN:SS", kMorning, "09:05:07"},
      {"h:m:s", kMorning, "9:5:7"},
      {"hh\"mm\"mm", kMorning, "09mm05"},
      {"mm:hh", kMorning, "06:09"},
      {"hh mmm", kMorning, "09 Jun"},
      {"dd.mmm.yy", kMorning, "04.Jun.03"},
      {"mm\"/\"dd\"/\"yy", kMorning, "06/04/03"},
      {"d mmm yyyy", kMorning, "4 Jun 2003"},
      {"DDD dddd", kMorning, "Wed Wednesday"},
      {"m mmmm", kMorning, "6 June"},
      {"\\d\\\\d", kMorning, "d\\4"},
      {"\"open", kMorning, "open"},
      {"d\\", kMorning, "4"},
      {"1+{?}", kMorning, "1+{?}"},
      {"", kMorning, ""},
      {"w ww", kMorning, "4 23"},
      {"w ww", kSunday, "1 2"},
      {"w ww", kNight, "4 53"},
      {"w ww", kLastWeek, "1 54"}};
  for (const auto& [pattern, time, text] : table)
    EXPECT_EQ(formatDate(time, pattern, QLocale::c()).toStdString(), text) << pattern;
}

TEST(DateFormatTest, ShortNamesHaveNoFinalPoint) {
  const QLocale german(QLocale::German, QLocale::Germany);
  EXPECT_EQ(formatDate(kMorning, "ddd dd.mmm", german).toStdString(), "Mi 04.Juni");
}

}  // namespace

}  // namespace quillane

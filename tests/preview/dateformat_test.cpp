// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview/dateformat.h"

#include <gmock/gmock.h>

namespace quillane {
namespace {

const QDateTime kMorning{QDate(2003, 6, 4), QTime(9, 5, 7)};
const QDateTime kNight{QDate(2003, 12, 31), QTime(0, 30)};
const QDateTime kNoon{QDate(2003, 12, 31), QTime(12, 30)};

TEST(DateFormatTest, Tokens) {
  const struct {
    const char* pattern;
    const QDateTime& time;
    const char* text;
  } table[] = {
      {"hh:mm", kMorning, "09:05"},
      {"hh:mmam/pm", kMorning, "09:05am"},
      {"h:mm am/pm", kNight, "12:30 am"},
      {"h:mm AM/PM", kNoon, "12:30 PM"},
      {"HH:NN:SS", kMorning, "09:05:07"},
      {"h:m:s", kMorning, "9:5:7"},
      {"hmm", kMorning, "905"},
      {"hh\"mm\"mm", kMorning, "09mm05"},
      {"hh:mm mm", kMorning, "09:05 06"},
      {"mm:hh", kMorning, "06:09"},
      {"hh mmm", kMorning, "09 Jun"},
      {"dd.mmm.yy", kMorning, "04.Jun.03"},
      {"dd-mm-yy", kMorning, "04-06-03"},
      {"mm\"/\"dd\"/\"yy", kMorning, "06/04/03"},
      {"yymmdd", kMorning, "030604"},
      {"d mmm yyyy", kMorning, "4 Jun 2003"},
      {"DDD dddd", kMorning, "Wed Wednesday"},
      {"m mmmm", kMorning, "6 June"},
      {"\\d\\\\d", kMorning, "d\\4"},
      {"\"open", kMorning, "open"},
      {"d\\", kMorning, "4"},
      {"1+{?}", kMorning, "1+{?}"},
      {"", kMorning, ""},
  };
  for (const auto& row : table)
    EXPECT_EQ(formatDate(row.time, QString::fromUtf8(row.pattern), QLocale::c()).toStdString(),
              row.text)
        << row.pattern;
}

TEST(DateFormatTest, WeeksBeginWithTheGivenDay) {
  const struct {
    QDate date;
    Qt::DayOfWeek first;
    const char* text;  // Day of the week and week of the year.
  } table[] = {
      {{2003, 1, 1}, Qt::Sunday, "4 1"},  // A Wednesday.
      {{2003, 1, 4}, Qt::Sunday, "7 1"},  // Saturday
      {{2003, 1, 5}, Qt::Sunday, "1 2"},  // Sunday
      {{2003, 1, 5}, Qt::Monday, "7 1"},
      {{2003, 1, 6}, Qt::Monday, "1 2"},
      {{2003, 12, 31}, Qt::Monday, "3 53"},
      {{2000, 12, 31}, Qt::Sunday, "1 54"},  // A leap year that begins on a Saturday.
  };
  for (const auto& row : table)
    EXPECT_EQ(formatDate(row.date.startOfDay(), QStringLiteral("w ww"), QLocale::c(), row.first)
                  .toStdString(),
              row.text)
        << row.date.toString(Qt::ISODate).toStdString();
}

TEST(DateFormatTest, ShortNamesHaveNoFinalPoint) {
  const QLocale german(QLocale::German, QLocale::Germany);
  EXPECT_EQ(formatDate(QDate(2003, 8, 9).startOfDay(), QStringLiteral("ddd dd.mmm.yy"), german)
                .toStdString(),
            "Sa 09.Aug.03");
}

}  // namespace
}  // namespace quillane

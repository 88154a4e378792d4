// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview/clsvistrel3g.h"
#include "preview/monthview.h"
#include "preview/pipelist.h"
#include "preview/surface.h"
#include "preview/world.h"

namespace quillane {

using namespace Qt::StringLiterals;
using namespace gen3g;

namespace {

constexpr ColorValue kBlack = 0;
constexpr ColorValue kWhite = 0xFFFFFF;
constexpr ColorValue kGrey = 0x808080;

constexpr int kSaturday = 5;  // Columns count from Monday as 0.
constexpr int kSunday = 6;

}  // namespace

void clsVistrel3G::drawWeekNumber(const QDate& day) {
  font_.Alignment = AlignLeft;
  setTextColor(TitleTextColor);
  drawText(calendarText(day, u"ww"_s, *world_), 13, 24, 128);
}

void clsVistrel3G::drawDayHeads(int left, int step, gen3g::Color saturday) {
  font_.Alignment = AlignCentre;
  font_.Bold = false;
  setTextColor(TextColor);
  const QStringList heads = splitList(CalendarDaysOfWeek);
  for (int column = 0; column <= kSunday; ++column) {
    if (column == kSaturday) setTextColor(saturday);
    if (column == kSunday) setTextColor(CalendarWeekendTextColor);
    drawText(entryOf(heads, column), left + step * column, 45, 126);
  }
}

void clsVistrel3G::DrawCalendar() {
  const QDate today = world_->now().date();
  startScreen();
  drawTitle(calendarText(today, u"mmm yyyy"_s, *world_));
  paintBody();

  DrawFilledRect(*surface_, kWhite, 9, 57, 128, 141);
  DrawBox(*surface_, kBlack, 9, 57, 128, 141);
  for (int x = 26; x <= 111; x += 17)
    DrawLine(*surface_, x, 58, x, 141, kGrey);
  for (int y = 71; y <= 127; y += 14)
    DrawLine(*surface_, 10, y, 128, y, kGrey);

  drawDayHeads(-45, 17, CalendarWeekendTextColor);

  font_.Alignment = AlignRight;
  QDate day = firstCellOf(today);
  for (int cell = 0; cell < kMonthCells; ++cell, day = day.addDays(1)) {
    if (day.month() != today.month()) continue;
    const int x = 17 * (cell % 7);
    const int y = 14 * (cell / 7);
    if (day.day() == today.day()) {
      drawWeekNumber(day);
      font_.Alignment = AlignRight;
      DrawFilledRect(*surface_, kBlack, 10 + x, 58 + y, 26 + x, 71 + y);
      font_.Color = kWhite;
    } else {
      font_.Color = kBlack;
    }
    drawText(calendarText(day, u"d"_s, *world_), -96 + x, 58 + y, 120);
  }

  DrawSoftkeyBar(CalendarSoftkeyText, 0);
}

void clsVistrel3G::DrawWeekCalendar() {
  startScreen();
  paintBody();

  DrawFilledRect(*surface_, kWhite, 31, 58, 129, 146);
  DrawBox(*surface_, kBlack, 31, 58, 129, 146);
  for (int x = 45; x <= 115; x += 14)
    DrawLine(*surface_, x, 59, x, 146, kGrey);
  for (int y = 66; y <= 146; y += 8)
    DrawLine(*surface_, 32, y, 129, y, kGrey);

  const ColorValue mark = colorValueOf(color(CalendarWeekendHighlightColor));
  DrawFilledBox(*surface_, mark, 103, 46, 113, 55);
  DrawLine(*surface_, 104, 45, 113, 45, mark);
  DrawLine(*surface_, 104, 56, 113, 56, mark);

  drawDayHeads(-24, 14, CalendarWeekendHighlightTextColor);

  font_.Alignment = AlignRight;
  setTextColor(TextColor);
  font_.Name = u"Tahoma"_s;
  font_.Size = 7;
  for (int row = 0; row < 6; ++row)
    drawText(QString::number(10 + 2 * row), -106, 57 + 16 * row, 126);
  font_.Name = u"Small Fonts"_s;
  font_.Size = 5;
  for (int row = 0; row < 6; ++row)
    drawText(u"OO"_s, -96, 57 + 16 * row, 126);
  font_.Size = 8;
  font_.Name = u"MS Sans Serif"_s;
  font_.Alignment = AlignLeft;
  for (int row = 0; row < 5; ++row)
    drawText(u"-"_s, 17, 63 + 16 * row, 126);

  const QDate today = world_->now().date();
  const QDate saturday = today.addDays((Qt::Saturday - today.dayOfWeek() + 7) % 7);
  drawTitle(calendarText(saturday, u"d mmm yyyy"_s, *world_));
  font_.Bold = false;
  drawWeekNumber(saturday);
  DrawSoftkeyBar(CalendarSoftkeyText, 0);
}

}  // namespace quillane

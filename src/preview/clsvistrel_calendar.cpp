// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview/clsvistrel.h"
#include "preview/dateformat.h"
#include "preview/monthview.h"
#include "preview/paintsteps.h"
#include "preview/world.h"

namespace quillane {

using namespace Qt::StringLiterals;
using namespace gen2;

namespace {

constexpr int kMarkedCell = 2 * 7 + 5;  // In every month a Saturday of its own.

}  // namespace

void clsVistrel::DrawCalendar() {
  const QDateTime now = world_->now();
  PaintSteps steps = startScreen(8);
  paintTitleBar(steps, formatDate(now, CalendarDateFormat, world_->locale(), Qt::Monday));

  steps.font.Alignment = AlignRight;
  steps.font.Bold = false;
  QDate day = firstCellOf(now.date());
  for (int cell = 0; cell < kMonthCells; ++cell, day = day.addDays(1)) {
    if (day.month() != now.date().month()) continue;
    if (cell == kMarkedCell)
      paintMark(steps, day);
    else
      steps.setTextColor(
          color(day.dayOfWeek() < Qt::Saturday ? TextColor : CalendarWeekendTextColor));
    steps.text(calendarText(day, u"d"_s, *world_), 14 * (cell % 7) - 74, 18 + 11 * (cell / 7), 93);
  }
}

void clsVistrel::paintMark(PaintSteps& steps, const QDate& day) {
  steps.fill(color(CalendarWeekendHighlightColor), 76, 41, 91, 53);
  for (const QPoint corner : {QPoint(76, 41), {90, 41}, {76, 52}, {90, 52}})
    steps.fill(color(BackgroundColor), corner.x(), corner.y(), corner.x() + 1, corner.y() + 1);

  steps.setTextColor(color(TitleTextColor));
  steps.font.Size = 7;
  steps.font.Alignment = AlignLeft;
  const QString initial = calendarText(day, u"ddd"_s, *world_).left(1);
  steps.text(world_->locale().toUpper(initial), 6, 7, 93);
  steps.font.Alignment = AlignRight;
  steps.text(calendarText(day, u"ww"_s, *world_), 12, 7, 93);
  steps.font.Size = 8;
  steps.setTextColor(color(CalendarWeekendHighlightTextColor));
}

}  // namespace quillane

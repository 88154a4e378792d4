// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview/clsvistrel.h"
#include "preview/dateformat.h"
#include "preview/monthview.h"
#include "preview/paintsteps.h"
#include "preview/surface.h"
#include "preview/world.h"

namespace quillane {

using namespace Qt::StringLiterals;
using namespace gen2;

void clsVistrel::DrawCalendar() {
  const QLocale locale = world_->locale();
  const QDateTime now = world_->now();
  const auto format = [&](const QDate& day, const QString& pattern) {
    return formatDate(day, pattern, locale, Qt::Monday);
  };

  PaintSteps steps(*surface_);
  steps.setSurfaceFont(8);
  surface_->Cls();
  steps.fill(color(BackgroundColor), 5, 5, 106, 85);
  PaintTitleBar(steps, formatDate(now, CalendarDateFormat, locale, Qt::Monday));

  steps.font.Alignment = AlignRight;
  steps.font.Bold = false;
  const int month = now.date().month();
  QDate day = firstCellOf(now.date());
  for (int cell = 0, x = 1, y = 18; cell < kMonthCells; ++cell, day = day.addDays(1)) {
    if (day.month() == month) {
      if (day.dayOfWeek() < Qt::Saturday) {
        steps.setTextColor(color(TextColor));
      } else if (x != 71 || y != 40) {
        steps.setTextColor(color(CalendarWeekendTextColor));
      } else {
        steps.setTextColor(color(TitleTextColor));
        steps.font.Size = 7;
        steps.font.Alignment = AlignLeft;
        steps.text(locale.toUpper(format(day, u"DDD"_s).left(1)), 6, 7, 93);
        steps.font.Alignment = AlignRight;
        steps.text(format(day, u"ww"_s), 12, 7, 93);
        steps.font.Size = 8;
        steps.setTextColor(color(CalendarWeekendHighlightTextColor));
      }
      steps.text(format(day, u"d"_s), x - 75, y, 93);
    }
    // The next cell's mark, before its number.
    if (x == 57 && y == 40) {
      steps.fill(color(CalendarWeekendHighlightColor), 76, 41, 91, 53);
      for (const QPoint corner : {QPoint(76, 41), {90, 41}, {76, 52}, {90, 52}})
        steps.fill(color(BackgroundColor), corner.x(), corner.y(), corner.x() + 1, corner.y() + 1);
    }
    if (x < 85) {
      x += 14;
    } else {
      x = 1;
      y += 11;
    }
  }
}

}  // namespace quillane

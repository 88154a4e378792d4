// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview/clsvistrel.h"
#include "preview/paintsteps.h"

namespace quillane {

using namespace Qt::StringLiterals;
using namespace gen2;

void clsVistrel::DrawWAPBrowser() {
  PaintSteps steps = startScreen(8);
  steps.font.Size = 8;
  steps.font.Bold = true;
  steps.font.Alignment = AlignCentre;
  steps.setTextColor(color(TextColor));
  steps.text(u"SonyEricsson"_s, 6, 24, 100);
  const QString& border = color(WapbrowserTableborderColor);
  steps.line(border, 15, 24, 95, 24);
  steps.line(border, 15, 24, 15, 38);
  steps.line(border, 15, 38, 95, 38);
  steps.line(border, 95, 24, 95, 39);

  steps.font.Alignment = AlignLeft;
  steps.fill(color(HighlightColor), 5, 44, 36, 58);
  steps.setTextColor(color(HighlightTextColor));
  steps.text(u"Login"_s, 6, 44, 100);
  steps.setTextColor(color(TextColor));
  steps.text(u"SignUp"_s, 6, 57, 100);
  steps.text(u"About This Site"_s, 6, 70, 100);
  const QString& underline = color(WapbrowserUnderlineColor);
  steps.line(underline, 5, 70, 44, 70);
  steps.line(underline, 5, 83, 90, 83);

  paintTitleBar(steps, u"Mobile internet"_s);
}

}  // namespace quillane

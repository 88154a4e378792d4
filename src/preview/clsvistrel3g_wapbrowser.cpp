// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview/clsvistrel3g.h"
#include "preview/surface.h"

namespace quillane {

using namespace Qt::StringLiterals;
using namespace gen3g;

void clsVistrel3G::DrawWAPBrowser() {
  constexpr ColorValue kBlack = 0;
  constexpr ColorValue kWhite = 0xFFFFFF;

  startScreen();
  drawTitle(WapbrowserTitleText);

  DrawFilledRect(*surface_, kWhite, 5, 42, 133, 146);
  font_.Color = kBlack;
  font_.Bold = false;
  font_.Alignment = AlignCentre;
  drawText(u"Site Logo"_s, 6, 55, 126);
  DrawBox(*surface_, colorValueOf(color(WapbrowserTableborderColor)), 42, 52, 95, 70);

  font_.Alignment = AlignLeft;
  drawText(u"Pictures"_s, 15, 80, 126);
  drawText(u"Ringtones"_s, 15, 95, 126);
  drawText(u"Themes"_s, 15, 110, 126);
  drawText(u"About"_s, 16, 125, 126);
  const ColorValue underline = colorValueOf(color(WapbrowserUnderlineColor));
  DrawLine(*surface_, 16, 93, 53, 93, underline);
  DrawLine(*surface_, 16, 108, 63, 108, underline);
  DrawLine(*surface_, 16, 123, 53, 123, underline);
  DrawLine(*surface_, 16, 138, 44, 138, underline);

  DrawSoftkeyBar(WapbrowserSoftkeyText, 0);
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview/clsvistrel3g.h"
#include "preview/picture.h"
#include "preview/pipelist.h"
#include "preview/surface.h"
#include "preview/world.h"

namespace quillane {

using namespace gen3g;

void clsVistrel3G::DrawSoftkeys(int index) {
  startScreen();
  drawTitle(entryOf(splitList(SoftkeysMenuTitleText), index));
  paintBody();

  const QStringList rows = sampleOf(index, SoftkeysMenuText1, SoftkeysMenuText2);
  font_.Alignment = AlignLeft;
  font_.Bold = true;
  paintSlot(HighlightImage, HighlightColor, 5, 44, 128, 60);
  paintIcon(2501, 10, 47);
  setTextColor(index == 0 ? HighlightTextColor : HighlightDisabledTextColor);
  drawText(entryOf(rows, 0), 21, 45, 128);
  for (int row = 1, y = 61; row <= 5; ++row, y += 16) {
    world_->reseed();
    paintIcon(world_->random() < 0.5 ? 2500 : 2501, 10, y + 2);
    setTextColor(TextColor);
    drawText(entryOf(rows, row), 21, y, 128);
  }

  fill(ScrollbarFrameColor, 128, 42, 133, 146);
  fill(ScrollbarColor, 129, 43, 132, index == 0 ? 130 : 115);

  // What shows of this ground beside the bar below is an image larger than its zone.
  fill(BackgroundColor, 5, 146, 133, 165);
  if (isInForce(SoftkeysBackgroundImage)) {
    surface_->PaintPicture(LoadPicture(image(SoftkeysBackgroundImage)), 5, 146);
  } else {
    fill(SoftkeysBackgroundColor, 7, 148, 60, 163);
    fill(index == 0 ? SoftkeysBackgroundColor : SoftkeysBackgroundActivatedColor, 79, 148, 131,
         163);
  }
  DrawSoftkeyBar(SoftkeysSoftkeyText, index == 0 ? 0 : 2);
}

}  // namespace quillane

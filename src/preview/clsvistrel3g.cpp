// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview/clsvistrel3g.h"

#include "preview/picture.h"
#include "preview/pipelist.h"
#include "preview/surface.h"

namespace quillane {

using namespace gen3g;

bool clsVistrel3G::isInForce(gen3g::Image which) const {
  return DrawImages && !image(which).isEmpty();
}

void clsVistrel3G::fill(gen3g::Color which, int x1, int y1, int x2, int y2) {
  DrawFilledRect(*surface_, colorValueOf(color(which)), x1, y1, x2, y2);
}

void clsVistrel3G::paintSlot(gen3g::Image slot, gen3g::Color otherwise, int x1, int y1, int x2,
                             int y2) {
  if (isInForce(slot))
    surface_->PaintPicture(LoadPicture(image(slot)), x1, y1, 0, 0, x2 - x1, y2 - y1);
  else
    fill(otherwise, x1, y1, x2, y2);
}

void clsVistrel3G::paintIcon(int id, int x, int y) {
  surface_->PaintPicture(LoadResourcePicture(id), x, y);
}

void clsVistrel3G::setTextColor(gen3g::Color which) {
  font_.Color = colorValueOf(color(which));
}

void clsVistrel3G::drawText(const QString& text, int left, int top, int width) {
  DrawTextRect(*surface_, text, left, top, 13, width, font_);
}

void clsVistrel3G::DrawShadowText(const QString& text, gen3g::Color color, gen3g::Color shadow,
                                  int x, int y, int alignment) {
  font_.Alignment = alignment;
  font_.Bold = true;
  setTextColor(shadow);
  drawText(text, x + 1, y + 1, 126);
  setTextColor(color);
  drawText(text, x, y, 126);
}

void clsVistrel3G::DrawOutlineText(const QString& text, gen3g::Color outline, gen3g::Color color,
                                   int x, int y, int alignment, bool diagonal) {
  font_.Alignment = alignment;
  font_.Bold = true;
  setTextColor(outline);
  drawText(text, x - 1, y, 126);
  drawText(text, x, y - 1, 126);
  drawText(text, x + 1, y, 126);
  drawText(text, x, y + 1, 126);
  if (diagonal) {
    drawText(text, x - 1, y - 1, 126);
    drawText(text, x + 1, y - 1, 126);
    drawText(text, x + 1, y + 1, 126);
    drawText(text, x - 1, y + 1, 126);
  }
  setTextColor(color);
  drawText(text, x, y, 126);
}

void clsVistrel3G::DrawPopupFrame(gen3g::Color fillColor, int left, int top, int right,
                                  int bottom) {
  fill(fillColor, left + 5, top + 5, right + 5, bottom + 5);

  const ColorValue frame = colorValueOf(color(MoreListPopupFrameColor));
  DrawLine(*surface_, left + 5, top + 5, right + 5, top + 5, frame);
  DrawLine(*surface_, left + 5, top + 5, left + 5, bottom + 5, frame);
  DrawLine(*surface_, right + 5, top + 5, right + 5, bottom + 5, frame);
  DrawLine(*surface_, left + 5, bottom + 5, right + 6, bottom + 5, frame);

  const ColorValue shadow = colorValueOf(color(MoreListPopupShadowColor));
  DrawLine(*surface_, right + 6, top + 6, right + 6, bottom + 6, shadow);
  DrawLine(*surface_, left + 6, bottom + 6, right + 7, bottom + 6, shadow);
}

void clsVistrel3G::DrawStatusBar() {
  DrawFilledRect(*surface_, 0, 5, 5, 133, 19);  // Shows through a transparent image.
  paintSlot(StatusbarBackgroundImage, BackgroundColor, 5, 5, 133, 19);
  if (ShowGPRSIcon) paintIcon(2300 + GPRSRange, 6, 6);
  paintIcon(2200 + SignalStrength, 6, 10);
  paintIcon(2100 + BatteryLevel, 114, 7);
}

void clsVistrel3G::paintTitleBar() {
  paintSlot(TitleImage, TitleColor, 5, 19, 133, 42);
}

void clsVistrel3G::paintBody() {
  paintSlot(GeneralBackgroundImage, BackgroundColor, 5, 42, 133, 146);
}

void clsVistrel3G::startScreen() {
  surface_->Cls();
  DrawStatusBar();
  paintTitleBar();
}

void clsVistrel3G::drawTitle(const QString& text) {
  DrawShadowText(text, TitleTextColor, TitleTextShadowColor, 6, 24, AlignCentre);
}

void clsVistrel3G::DrawSoftkeyBar(const QString& text, int mode) {
  const QStringList labels = splitList(text);
  const bool hasRightKey = mode != 0 || labels.size() == 2;

  fill(BackgroundColor, 5, 146, 133, 165);
  font_.Size = 8;

  if (isInForce(SoftkeysBackgroundImage)) {
    paintSlot(SoftkeysBackgroundImage, BackgroundColor, 5, 146, 133, 165);
  } else if (mode == 0) {
    fill(SoftkeysBackgroundColor, 7, 148, 68, 163);
    if (hasRightKey) fill(SoftkeysBackgroundColor, 70, 148, 131, 163);
  } else if (mode == 1) {
    fill(SoftkeysBackgroundColor, 7, 148, 60, 163);
    fill(SoftkeysBackgroundColor, 80, 148, 131, 163);
  } else if (mode == 2) {
    fill(SoftkeysBackgroundColor, 7, 148, 68, 163);
    fill(SoftkeysBackgroundActivatedColor, 70, 148, 131, 163);
  }

  if (mode == 0 || mode == 1) {
    DrawShadowText(entryOf(labels, 0), SoftkeysTextColor, SoftkeysTextShadowColor, 8, 148,
                   AlignLeft);
    if (hasRightKey)
      DrawShadowText(entryOf(labels, 1), SoftkeysTextColor, SoftkeysTextShadowColor, 3, 148,
                     AlignRight);
  } else if (mode == 2) {
    DrawShadowText(entryOf(labels, 0), SoftkeysDisabledTextColor, SoftkeysDisabledTextShadowColor,
                   8, 148, AlignLeft);
    font_.Alignment = AlignRight;
    setTextColor(SoftkeysTextColor);
    drawText(entryOf(labels, 1), 4, 149, 126);
  }
}

}  // namespace quillane

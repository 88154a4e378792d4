// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview/paintsteps.h"

#include "preview/surface.h"
#include "theme/fault.h"

namespace quillane {

using namespace Qt::StringLiterals;

PaintSteps::PaintSteps(Surface& surface)
    : surface_(&surface), lineHeight_(surface.TextHeight(u"|"_s)) {}

void PaintSteps::setSurfaceFont(int points) {
  surface_->setFontSize(points);
  lineHeight_ = surface_->TextHeight(u"|"_s);
}

void PaintSteps::fill(const QString& color, int x1, int y1, int x2, int y2) {
  skipOnFault([&] { DrawFilledRect(*surface_, colorValueOf(color), x1, y1, x2, y2); });
}

void PaintSteps::line(const QString& color, int x1, int y1, int x2, int y2) {
  skipOnFault([&] { DrawLine(*surface_, x1, y1, x2, y2, colorValueOf(color)); });
}

void PaintSteps::setTextColor(const QString& color) {
  skipOnFault([&] { font.Color = colorValueOf(color); });
}

void PaintSteps::text(const QString& text, int left, int top, int width) {
  DrawTextRect(*surface_, text, left, top, lineHeight_, width, font);
}

void PaintSteps::shadowedText(const QString& text, int left, int top, int width,
                              const QString& color, const QString& shadow) {
  setTextColor(shadow);
  this->text(text, left + 1, top + 1, width);
  setTextColor(color);
  this->text(text, left, top, width);
}

void PaintSteps::textAround(const QString& text, int left, int top, int width) {
  this->text(text, left - 1, top, width);
  this->text(text, left - 1, top - 1, width);
  this->text(text, left, top - 1, width);
  this->text(text, left + 1, top - 1, width);
  this->text(text, left + 1, top, width);
  this->text(text, left + 1, top + 1, width);
  this->text(text, left, top + 1, width);
  this->text(text, left - 1, top + 1, width);
}

void PaintSteps::load(const QString& path) {
  skipOnFault([&] { picture_ = LoadPicture(path); });
}

void PaintSteps::icon(int id, int x, int y) {
  skipOnFault([&] { picture_ = LoadResourcePicture(id); });
  surface_->PaintPicture(picture_, x, y);
}

}  // namespace quillane

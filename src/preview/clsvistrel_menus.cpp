// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview/clsvistrel.h"
#include "preview/digitrows.h"
#include "preview/paintsteps.h"
#include "preview/pipelist.h"
#include "preview/surface.h"

namespace quillane {

using namespace Qt::StringLiterals;
using namespace gen2;

namespace {

constexpr RowColors<gen2::Color> kRowColors{HighlightColor, TextColor, DisabledTextColor,
                                            HighlightTextColor, HighlightDisabledTextColor};

/// How many rows a menu has, and the tops of the first one's label and digit.
struct RowPlaces {
  int count;
  int labelTop;
  int digitTop;
};

}  // namespace

/// What tells the three menus apart; pixels and points.
struct clsVistrel::MenuLook {
  QString clsVistrel::*list;
  int title;  ///< Entry of `TitleText`.
  gen2::Image titleImage;
  int fontSize;
  bool bold;
  RowPlaces plain;
  RowPlaces belowImage;
  int rowStep;
  int highlightHeight;  ///< From the digit's top.
  int titleBottom;      ///< Of the coloured bar.
  int croppedHeight;    ///< Higher title images are cropped to it.
  int titleTop;
};

void clsVistrel::DrawMenuSmall() {
  DrawMenu({.list = &clsVistrel::MenuSmallText,
            .title = 0,
            .titleImage = TitleImageSmall,
            .fontSize = 7,
            .bold = false,
            .plain = {.count = 7, .labelTop = 14, .digitTop = 14},
            .belowImage = {.count = 6, .labelTop = 24, .digitTop = 24},
            .rowStep = 10,
            .highlightHeight = 11,
            .titleBottom = 15,
            .croppedHeight = 20,
            .titleTop = 4});
}

void clsVistrel::DrawMenuMedium() {
  DrawMenu({.list = &clsVistrel::MenuMediumText,
            .title = 1,
            .titleImage = TitleImageMedium,
            .fontSize = 8,
            .bold = true,
            .plain = {.count = 5, .labelTop = 19, .digitTop = 21},
            .belowImage = {.count = 4, .labelTop = 32, .digitTop = 34},
            .rowStep = 13,
            .highlightHeight = 12,
            .titleBottom = 19,
            .croppedHeight = 27,
            .titleTop = 5});
}

void clsVistrel::DrawMenuLarge() {
  DrawMenu({.list = &clsVistrel::MenuLargeText,
            .title = 2,
            .titleImage = TitleImageLarge,
            .fontSize = 9,
            .bold = true,
            .plain = {.count = 4, .labelTop = 22, .digitTop = 25},
            .belowImage = {.count = 4, .labelTop = 22, .digitTop = 25},
            .rowStep = 15,
            .highlightHeight = 12,
            .titleBottom = 21,
            .croppedHeight = 16,
            .titleTop = 5});
}

PaintSteps clsVistrel::startScreen(int points) {
  PaintSteps steps(*surface_);
  steps.setSurfaceFont(points);
  surface_->Cls();
  steps.fill(color(BackgroundColor), 5, 5, 106, 85);
  return steps;
}

void clsVistrel::DrawMenu(const MenuLook& look) {
  PaintSteps steps = startScreen(look.fontSize);
  const QString& titleImage = image(look.titleImage);
  const RowPlaces& rows = titleImage.isEmpty() ? look.plain : look.belowImage;
  paintDigitRows(steps, values_, splitList(this->*look.list), kRowColors,
                 {.count = rows.count,
                  .labelTop = rows.labelTop,
                  .digitTop = rows.digitTop,
                  .step = look.rowStep,
                  .highlightHeight = look.highlightHeight,
                  .left = 5,
                  .right = 106,
                  .digitLeft = 6,
                  .labelLeft = 13,
                  .labelWidth = 93,
                  .fontSize = look.fontSize,
                  .bold = look.bold});

  if (titleImage.isEmpty()) {
    steps.fill(color(TitleColor), 5, 5, 106, look.titleBottom);
    paintTitleCorners(steps);
  } else {
    steps.load(titleImage);
    if (steps.picture().height() <= look.croppedHeight)
      surface_->PaintPicture(steps.picture(), 5, 5);
    else
      surface_->PaintPicture(steps.picture(), 5, 5, 0, 0, 101, look.croppedHeight);
  }
  steps.font.Alignment = AlignCentre;
  steps.font.Bold = true;
  steps.font.Size = look.fontSize;
  steps.shadowedText(splitList(TitleText).value(look.title), 7, look.titleTop, 99,
                     color(TitleTextColor), color(TitleTextShadowColor));
}

void clsVistrel::DrawMenuInput() {
  PaintSteps steps = startScreen(8);
  steps.font.Size = 8;
  steps.font.Bold = true;
  steps.font.Alignment = AlignLeft;
  steps.setTextColor(color(PromptColor));
  steps.text(PromptText, 6, 17, 100);
  steps.font.Bold = false;
  steps.setTextColor(color(CursorColor));
  steps.text(u"|"_s, 7, 28, 101);

  paintTitleBar(steps, splitList(TitleText).value(3));
}

void clsVistrel::paintTitleCorners(PaintSteps& steps) {
  const QString black = u"000000"_s;
  steps.line(black, 5, 5, 7, 5);
  steps.line(black, 5, 5, 5, 7);
  steps.line(black, 105, 5, 103, 5);
  steps.line(black, 105, 5, 105, 7);
}

void clsVistrel::paintTitleBar(PaintSteps& steps, const QString& title) {
  steps.fill(color(TitleColor), 5, 5, 106, 19);
  paintTitleCorners(steps);
  steps.font.Alignment = AlignCentre;
  steps.font.Bold = true;
  steps.font.Size = 8;
  steps.shadowedText(title, 7, 5, 99, color(TitleTextColor), color(TitleTextShadowColor));
}

}  // namespace quillane

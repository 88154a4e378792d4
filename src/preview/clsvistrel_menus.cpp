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

/// Rows of a menu and the tops of the first one's label and digit.
struct FirstRow {
  int count;
  int labelTop;
  int digitTop;
};

}  // namespace

/// What tells the three menus apart; pixels and points.
struct clsVistrel::MenuLook {
  QString clsVistrel::*list;
  gen2::Image titleImage;
  int fontSize;
  bool bold;
  FirstRow plain;
  FirstRow belowImage;
  int rowStep;
  int highlightHeight;     ///< From the digit's top.
  int titleBottom;         ///< Of the coloured bar.
  int firstCroppedHeight;  ///< Title images below it are shown whole.
  int croppedHeight;
  int title;  ///< Entry of `TitleText`.
  int titleTop;
};

namespace {

constexpr RowColors<gen2::Color> kRowColors{HighlightColor, TextColor, DisabledTextColor,
                                            HighlightTextColor, HighlightDisabledTextColor};

}  // namespace

// clang-format off
void clsVistrel::DrawMenuSmall() {
  DrawMenu({&clsVistrel::MenuSmallText, TitleImageSmall, 7, false,
            {7, 14, 14}, {6, 24, 24}, 10, 11, 15, 21, 20, 0, 4});
}

void clsVistrel::DrawMenuMedium() {
  DrawMenu({&clsVistrel::MenuMediumText, TitleImageMedium, 8, true,
            {5, 19, 21}, {4, 32, 34}, 13, 12, 19, 28, 27, 1, 5});
}

void clsVistrel::DrawMenuLarge() {
  DrawMenu({&clsVistrel::MenuLargeText, TitleImageLarge, 9, true,
            {4, 22, 25}, {4, 22, 25}, 15, 12, 21, 17, 16, 2, 5});
}
// clang-format on

void clsVistrel::DrawMenu(const MenuLook& look) {
  PaintSteps steps(*surface_);
  steps.setSurfaceFont(look.fontSize);
  surface_->Cls();
  steps.fill(color(BackgroundColor), 5, 5, 106, 85);

  const QString& titleImage = image(look.titleImage);
  const FirstRow& first = titleImage.isEmpty() ? look.plain : look.belowImage;
  paintDigitRows(steps, values_, splitList(this->*look.list), kRowColors,
                 {.count = first.count,
                  .labelTop = first.labelTop,
                  .digitTop = first.digitTop,
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
    PaintTitleCorners(steps);
  } else {
    steps.load(titleImage);
    if (steps.picture().height() < look.firstCroppedHeight)
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
  PaintSteps steps(*surface_);
  steps.setSurfaceFont(8);
  surface_->Cls();
  steps.fill(color(BackgroundColor), 5, 5, 106, 85);

  steps.font.Size = 8;
  steps.font.Bold = true;
  steps.font.Alignment = AlignLeft;
  steps.setTextColor(color(PromptColor));
  steps.text(PromptText, 6, 17, 100);
  steps.font.Bold = false;
  steps.setTextColor(color(CursorColor));
  steps.text(u"|"_s, 7, 28, 101);

  PaintTitleBar(steps, splitList(TitleText).value(3));
}

void clsVistrel::PaintTitleCorners(PaintSteps& steps) {
  const QString black = u"000000"_s;
  steps.line(black, 5, 5, 7, 5);
  steps.line(black, 5, 5, 5, 7);
  steps.line(black, 105, 5, 103, 5);
  steps.line(black, 105, 5, 105, 7);
}

void clsVistrel::PaintTitleBar(PaintSteps& steps, const QString& title) {
  steps.fill(color(TitleColor), 5, 5, 106, 19);
  PaintTitleCorners(steps);
  steps.font.Alignment = AlignCentre;
  steps.font.Bold = true;
  steps.font.Size = 8;
  steps.shadowedText(title, 7, 5, 99, color(TitleTextColor), color(TitleTextShadowColor));
}

}  // namespace quillane

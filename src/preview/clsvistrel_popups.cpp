// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview/clsvistrel.h"
#include "preview/digitrows.h"
#include "preview/paintsteps.h"
#include "preview/pipelist.h"
#include "preview/surface.h"
#include "theme/fault.h"

#include <cmath>
#include <vector>

namespace quillane {

using namespace Qt::StringLiterals;
using namespace gen2;

namespace {

constexpr RowColors<gen2::Color> kRowColors{PopupHighlightColor, PopupTextColor,
                                            PopupDisabledTextColor, PopupHighlightTextColor,
                                            PopupHighlightDisabledTextColor};

constexpr DigitRows kRows{.count = 4,
                          .labelTop = 25,
                          .digitTop = 27,
                          .step = 13,
                          .highlightHeight = 12,
                          .left = 10,
                          .right = 100,
                          .digitLeft = 11,
                          .labelLeft = 17,
                          .labelWidth = 82,
                          .fontSize = 8,
                          .bold = true};

/// A line of a centred text: which entry it shows and its top in pixels.
struct CentredLine {
  int entry;
  int top;
};

/// The lines for a text of so many entries. Five entries show the first and the third twice and the
/// last two not at all, as on the phone.
const std::vector<CentredLine>& centredLines(qsizetype entries) {
  static const std::vector<CentredLine> table[] = {
      {},
      {{0, 37}},
      {{0, 31}, {1, 43}},
      {{0, 25}, {1, 37}, {2, 49}},
      {{0, 19}, {1, 31}, {2, 43}, {3, 55}},
      {{0, 13}, {0, 25}, {1, 37}, {2, 49}, {2, 61}},
  };
  return table[entries < std::ssize(table) ? entries : 0];
}

/// One of the two numbers of a padding; what is no number counts 0.
int paddingOf(const QString& paddings, int index) {
  return static_cast<int>(std::lrint(entryOf(paddings.split(u' '), index).toDouble()));
}

}  // namespace

void clsVistrel::DrawWindow(const QString& rgb) {
  const int l = paddingOf(PopupPaddingLeftTop, 0);
  const int t = paddingOf(PopupPaddingLeftTop, 1);
  const auto line = [this](const ColorValue value, int x1, int y1, int x2, int y2) {
    DrawLine(*surface_, x1, y1, x2, y2, value);
  };

  const ColorValue frame = colorValueOf(color(PopupFrameColor));
  line(frame, l + 6, t + 5, 104 - l, t + 5);
  line(frame, l + 5, t + 6, l + 5, 83 - t);
  line(frame, l + 6, 83 - t, 104 - l, 83 - t);
  line(frame, 104 - l, t + 6, 104 - l, 83 - t);
  DrawFilledRect(*surface_, colorValueOf(rgb), l + 6, t + 6, 104 - l, 83 - t);
  line(frame, l + 6, t + 6, l + 7, t + 7);
  line(frame, l + 6, 82 - t, l + 6, 83 - t);
  line(frame, 103 - l, t + 6, 104 - l, t + 6);
  line(frame, 103 - l, 82 - t, 104 - l, 82 - t);

  const ColorValue shadow = colorValueOf(color(PopupShadowColor));
  line(shadow, l + 7, 84 - t, 105 - l, 84 - t);
  line(shadow, 105 - l, t + 7, 105 - l, 84 - t);
  line(shadow, 104 - l, 83 - t, 105 - l, 83 - t);
}

void clsVistrel::DrawCenterText(const QString& text, int size, bool bold, const QString& rgb) {
  PaintSteps steps(*surface_);
  steps.font.Alignment = AlignCentre;
  steps.font.Size = size;
  steps.font.Bold = bold;
  steps.setTextColor(rgb);
  int padding = 0;
  skipOnFault([&] { padding = paddingOf(PopupPaddingLeftTop, 0); });
  const QStringList entries = splitList(text);
  for (const CentredLine& line : centredLines(entries.size()))
    steps.text(entries[line.entry], padding + 6, line.top, 99 - 2 * padding);
}

void clsVistrel::DrawPopupWindow() {
  DrawStandby();
  skipOnFault([&] { DrawWindow(color(PopupBackgroundColor)); });
}

void clsVistrel::DrawNotesWindow() {
  DrawStandby();
  PopupPaddingLeftTop = u"14 14"_s;
  skipOnFault([&] { DrawWindow(color(NotesBackgroundColor)); });
  DrawCenterText(NotesText, 8, false, color(NotesTextColor));
  PopupPaddingLeftTop = u"3 5"_s;
}

PaintSteps clsVistrel::startPopup(const QString& title) {
  DrawMenuInput();
  skipOnFault([&] { DrawWindow(color(PopupBackgroundColor)); });

  PaintSteps steps(*surface_);
  steps.font.Size = 8;
  steps.font.Bold = true;
  steps.font.Alignment = AlignCentre;
  // The title bar fits the normal padding and no other.
  steps.fill(color(PopupTitleColor), 9, 11, 101, 24);
  steps.line(color(PopupFrameColor), 9, 11, 10, 12);
  steps.line(color(PopupFrameColor), 100, 11, 101, 11);
  steps.shadowedText(title, 9, 10, 92, color(PopupTitleTextColor),
                     color(PopupTitleTextShadowColor));
  return steps;
}

void clsVistrel::DrawPopupMenu() {
  PaintSteps steps = startPopup(splitList(PopupTitleText).value(0));
  paintDigitRows(steps, values_, splitList(PopupMenuText), kRowColors, kRows);
}

void clsVistrel::DrawPopupInput() {
  PaintSteps steps = startPopup(splitList(PopupTitleText).value(1));

  steps.font.Alignment = AlignLeft;
  steps.font.Bold = false;
  steps.setTextColor(color(PopupPromptColor));
  steps.text(PopupPromptText, 10, 23, 86);
  // Measured in the surface's own font, so the cursor may stand a little off the text's end.
  steps.setTextColor(color(PopupCursorColor));
  steps.text(u"|"_s, 10 + surface_->TextWidth(PopupPromptText), 23, 5);
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview/clsvistrel3g.h"
#include "preview/menurows.h"
#include "preview/pipelist.h"
#include "preview/surface.h"
#include "theme/fault.h"

namespace quillane {

using namespace Qt::StringLiterals;
using namespace gen3g;

namespace {

constexpr int kRowStep = 17;

constexpr RowColors<gen3g::Color> kMenuColors{HighlightColor, TextColor, DisabledTextColor,
                                              HighlightTextColor, HighlightDisabledTextColor};
constexpr RowColors<gen3g::Color> kMoreListColors{
    MoreListHighlightColor, MoreListTextColor, MoreListDisabledTextColor,
    MoreListHighlightTextColor, MoreListHighlightDisabledTextColor};

}  // namespace

void clsVistrel3G::DrawMenu(int index) {
  startScreen();
  drawTitle(entryOf(splitList(TitleText), index));
  paintBody();

  const QStringList entries = sampleOf(index, MenuText1, MenuText2);
  font_.Alignment = AlignLeft;
  font_.Bold = true;
  for (int row = 0, y = 44; row <= 5; ++row, y += kRowStep) {
    const QString entry = entryOf(entries, row);
    const QString flags = flagsOf(entry);
    if (isHighlighted(flags)) paintSlot(HighlightImage, kMenuColors.highlight, 5, y, 128, y + 16);
    setTextColor(kMenuColors.textOf(flags));
    drawText(entry.mid(2), 9, y + 1, 128);
  }

  fill(ScrollbarFrameColor, 128, 42, 133, 146);
  fill(ScrollbarColor, 129, 43, 132, 105);
  DrawSoftkeyBar(entryOf(splitList(MenuSoftkeyText), index), 0);
}

void clsVistrel3G::DrawPopupMenu(int index) {
  startWindow(u"Wallpaper"_s);
  skipOnFault([&] { paintSlot(MoreListPopupTitleImage, MoreListTitleColor, 10, 30, 128, 53); });
  skipOnFault([&] {
    DrawShadowText(entryOf(splitList(MoreListTitleText), index), MoreListTitleTextColor,
                   MoreListTitleTextShadowColor, 6, 34, AlignCentre);
  });

  const QStringList entries = sampleOf(index, MoreListMenuText1, MoreListMenuText2);
  font_.Alignment = AlignLeft;
  font_.Bold = true;
  QString entry;
  for (int row = 0, y = 55; row <= 4; ++row, y += kRowStep) {
    entry = entries.value(row, entry);  // A missing entry shows the one before again.
    const QString flags = flagsOf(entry);
    if (isHighlighted(flags))
      skipOnFault([&] {
        paintSlot(MoreListPopupHighlightImage, kMoreListColors.highlight, 10, y, 123, y + 16);
      });
    skipOnFault([&] { setTextColor(kMoreListColors.textOf(flags)); });
    drawText(entry.mid(2), 13, y + 1, 128);
  }

  skipOnFault([&] { fill(MoreListScrollbarFrameColor, 123, 53, 128, 141); });
  skipOnFault([&] { fill(MoreListScrollbarColor, 124, 54, 127, 125); });
  skipOnFault([&] { DrawSoftkeyBar(entryOf(splitList(MoreListSoftkeyText), index), 0); });
}

}  // namespace quillane

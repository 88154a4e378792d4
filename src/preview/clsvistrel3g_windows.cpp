// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview/clsvistrel3g.h"
#include "preview/pipelist.h"
#include "preview/surface.h"
#include "theme/fault.h"

#include <algorithm>

namespace quillane {

using namespace Qt::StringLiterals;
using namespace gen3g;

void clsVistrel3G::DrawNotesWindow() {
  DrawStandby();
  DrawPopupFrame(NotesBackgroundColor, 4, 34, 123, 121);

  setTextColor(NotesTextColor);
  font_.Bold = false;
  font_.Alignment = AlignCentre;
  const QStringList lines = splitList(NotesText);
  const int shown = std::min(static_cast<int>(lines.size()), 6);
  for (int line = 0, y = 76 - 13 * (shown - 1) / 2; line < shown; ++line, y += 13)
    drawText(lines[line], 15, y, 110);
}

void clsVistrel3G::startWindow(const QString& title) {
  surface_->Cls();
  skipOnFault([&] { DrawStatusBar(); });
  skipOnFault([&] { paintTitleBar(); });
  skipOnFault([&] { drawTitle(title); });
  skipOnFault([&] { paintBody(); });
  skipOnFault([&] { DrawPopupFrame(MoreListBackgroundColor, 4, 24, 123, 136); });
}

void clsVistrel3G::DrawProgressWindow() {
  startWindow(u"Themes"_s);

  font_.Alignment = AlignCentre;
  skipOnFault([&] { setTextColor(MoreListTextColor); });
  drawText(ProgressWindowText, 15, 74, 106);

  skipOnFault([&] {
    DrawFilledBox(*surface_, colorValueOf(color(MoreListTitleTextColor)), 14, 124, 123, 136);
  });
  skipOnFault(
      [&] { DrawBox(*surface_, colorValueOf(color(MoreListTextColor)), 14, 124, 123, 136); });
  skipOnFault(
      [&] { DrawFilledBox(*surface_, colorValueOf(color(MoreListTitleColor)), 25, 126, 60, 134); });

  skipOnFault([&] { paintSlot(SoftkeysBackgroundImage, BackgroundColor, 5, 146, 133, 165); });
}

void clsVistrel3G::DrawAcceptWindow() {
  startWindow(u"Wallpaper"_s);
  skipOnFault([&] { paintIcon(2600, 14, 34); });
  skipOnFault([&] {
    DrawOutlineText(AcceptWindowText, MoreListTextShadowColor, MoreListTextColor, 5, 123,
                    AlignCentre, true);
  });
  skipOnFault([&] { DrawSoftkeyBar(AcceptWindowSoftkeyText, 0); });
}

}  // namespace quillane

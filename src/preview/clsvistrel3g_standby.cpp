// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview/clsvistrel3g.h"
#include "preview/dateformat.h"
#include "preview/pipelist.h"
#include "preview/surface.h"
#include "preview/world.h"

namespace quillane {

using namespace gen3g;

void clsVistrel3G::DrawStandby() {
  surface_->Cls();
  DrawStatusBar();
  paintSlot(WallpaperImage, BackgroundColor, 5, 19, 133, 146);

  DrawOutlineText(OperatorName, StandbyOperatorNameOutlineColor, StandbyOperatorNameColor, 6, 21,
                  AlignCentre, false);
  const QString time = formatDate(world_->now(), TimeFormat, world_->locale());
  DrawOutlineText(time, StandbyTimeOutlineColor, StandbyTimeColor, 6, 130, AlignLeft, false);
  const QString date = formatDate(world_->now(), DateFormat, world_->locale());
  DrawOutlineText(date, StandbyTimeOutlineColor, StandbyTimeColor, 6, 130, AlignRight, false);

  DrawSoftkeyBar(StandbySoftkeyText, 1);
  paintIcon(2400, 64, 151);
}

void clsVistrel3G::DrawDesktop() {
  surface_->Cls();
  DrawStatusBar();
  paintSlot(DesktopBackgroundImage, DesktopBackgroundColor, 5, 19, 133, 146);

  paintIcon(2000, 5, 19);
  switch (DesktopIcon) {
    case 1:
      paintIcon(2001, 6, 41);
      break;
    case 2:
      paintIcon(2002, 48, 41);
      break;
    case 3:
      paintIcon(2003, 90, 41);
      break;
    case 4:
      paintIcon(2004, 6, 67);
      break;
    case 5:
      paintIcon(2005, 48, 67);
      break;
    case 6:
      paintIcon(2006, 90, 67);
      break;
    case 7:
      paintIcon(2007, 6, 93);
      break;
    case 8:
      paintIcon(2008, 48, 93);
      break;
    case 9:
      paintIcon(2009, 90, 93);
      break;
    case 10:
      paintIcon(2010, 6, 119);
      break;
    case 11:
      paintIcon(2011, 48, 119);
      break;
    case 12:
      paintIcon(2012, 90, 119);
      break;
  }

  DrawShadowText(entryOf(splitList(DesktopTitles), DesktopIcon - 1), DesktopTitleColor,
                 DesktopTitleOutlineColor, 6, 24, AlignCentre);
  DrawSoftkeyBar(DesktopSoftkeyText, 0);
}

}  // namespace quillane

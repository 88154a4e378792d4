// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview/clsvistrel.h"
#include "preview/dateformat.h"
#include "preview/paintsteps.h"
#include "preview/pipelist.h"
#include "preview/surface.h"
#include "preview/world.h"

namespace quillane {

using namespace gen2;

/// Centres an image in the screen: a smaller one lies on the fill colour, a larger one is cropped.
void clsVistrel::PlaceScreenImage(PaintSteps& steps, const QString& path, const QString& fill) {
  steps.load(path);
  const Picture& picture = steps.picture();
  const double w = picture.width();
  const double h = picture.height();

  if (w == 101 && h == 80) {
    surface_->PaintPicture(picture, 5, 5);
  } else if (w <= 101 && h <= 80) {
    steps.fill(fill, 5, 5, 106, 85);
    surface_->PaintPicture(picture, 55.5 - w / 2, 45 - h / 2);
  } else if (w <= 101) {
    steps.fill(fill, 5, 5, 106, 85);
    surface_->PaintPicture(picture, 55.5 - w / 2, 5, 0, h / 2 - 40, 101, 80);
  } else if (h > 80) {
    surface_->PaintPicture(picture, 5, 5, w / 2 - 50.5, h / 2 - 40, 101, 80);
  } else {
    steps.fill(fill, 5, 5, 106, 85);
    surface_->PaintPicture(picture, 5, 45 - h / 2, w / 2 - 50.5, 0, 101, 80);
  }
}

void clsVistrel::DrawStandby() {
  PaintSteps steps(*surface_);
  surface_->Cls();

  if (image(BackgroundImage).isEmpty() || StandbyType == 0)
    steps.fill(color(BackgroundColor), 5, 5, 106, 85);
  else
    PlaceScreenImage(steps, image(BackgroundImage), color(BackgroundColor));

  steps.icon(1200 + SignalStrength, 5, 76);
  steps.icon(1100 + BatteryLevel, 86, 75);
  if (ShowGPRSIcon) steps.icon(1300 + GPRSRange, 5, 72);
  if (ShowLineIcon) {
    if (StandbyType == 1)
      steps.icon(1399 + LineIcon, 8, 38);
    else if (!ShowIRIcon)
      steps.icon(1399 + LineIcon, 8, 6);
    else
      steps.icon(1399 + LineIcon, 23, 6);
  }
  if (ShowIRIcon) {
    if (StandbyType == 1)
      steps.icon(1500, 94, 35);
    else
      steps.icon(1500, 9, 6);
  }

  steps.font.Alignment = AlignCentre;
  steps.font.Bold = true;
  steps.font.Size = 8;

  if (StandbyType == 1) {
    steps.setTextColor(color(StandbyOperatorNameOutlineColor));
    steps.textAround(OperatorName, 7, 5, 99);
  }
  steps.setTextColor(color(StandbyType != 0 ? StandbyOperatorNameColor : TextColor));
  steps.text(OperatorName, 7, StandbyType != 0 ? 5 : 20, 99);

  const QString time = formatDate(world_->now(), TimeFormat, world_->locale());
  if (StandbyType == 1) {
    steps.setTextColor(color(StandbyTimeOutlineColor));
    steps.textAround(time, 7, 72, 99);
  }
  steps.setTextColor(color(StandbyType != 0 ? StandbyTimeColor : TextColor));
  steps.text(time, 7, 72, 99);
}

void clsVistrel::DrawDesktop() {
  PaintSteps steps(*surface_);
  surface_->Cls();

  if (image(DesktopBackgroundImage).isEmpty())
    steps.fill(color(DesktopBackgroundColor), 5, 5, 106, 85);
  else
    PlaceScreenImage(steps, image(DesktopBackgroundImage), color(DesktopBackgroundColor));

  steps.icon(1000, 5, 5);
  switch (DesktopIcon) {
    case 1:
      steps.icon(1001, 6, 19);
      break;
    case 2:
      steps.icon(1002, 39, 19);
      break;
    case 3:
      steps.icon(1003, 72, 19);
      break;
    case 4:
      steps.icon(1004, 6, 40);
      break;
    case 5:
      steps.icon(1005, 39, 40);
      break;
    case 6:
      steps.icon(1006, 72, 40);
      break;
    case 7:
      steps.icon(1007, 6, 61);
      break;
    case 8:
      steps.icon(1008, 39, 61);
      break;
    case 9:
      steps.icon(1009, 72, 61);
      break;
  }

  steps.font.Alignment = AlignCentre;
  steps.font.Bold = true;
  steps.font.Size = 8;
  const QString title = splitList(DesktopTitle).value(DesktopIcon - 1);
  steps.setTextColor(color(DesktopTitleOutlineColor));
  steps.textAround(title, 7, 5, 99);
  steps.setTextColor(color(DesktopTitleColor));
  steps.text(title, 7, 5, 99);
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preview/modapigraphics.h"
#include "preview/previewengine.h"

#include <QDate>
#include <QString>

namespace quillane {

/// The preview engine of 3G.
class clsVistrel3G : public PreviewEngine {
 public:
  explicit clsVistrel3G(PreviewWorld& world) : PreviewEngine(Generation::ThreeG, world) {}

  /// Whether image slots paint their images; off, they paint their colours.
  bool DrawImages = false;
  QString DateFormat;
  Bounded<1, 12, 5> DesktopIcon;

  // Texts of the screens, most of them lists with "|" between their entries.
  QString StandbySoftkeyText;
  QString DesktopTitles;
  QString DesktopSoftkeyText;
  QString TitleText;
  QString MenuText1;
  QString MenuText2;
  QString MenuSoftkeyText;
  QString MoreListTitleText;
  QString MoreListMenuText1;
  QString MoreListMenuText2;
  QString MoreListSoftkeyText;
  QString SoftkeysMenuTitleText;
  QString SoftkeysMenuText1;
  QString SoftkeysMenuText2;
  QString SoftkeysSoftkeyText;
  QString CalendarDaysOfWeek;
  QString CalendarSoftkeyText;
  QString NotesText;
  QString WapbrowserTitleText;
  QString WapbrowserSoftkeyText;
  QString ProgressWindowText;
  QString AcceptWindowText;
  QString AcceptWindowSoftkeyText;

  void DrawStandby();
  void DrawDesktop();
  /// `index` 0 paints the first sample list with normal keys, 1 the second with an activated key.
  void DrawSoftkeys(int index);
  /// A list of six rows; `index` 0 or 1 picks the sample. Throws `Fault` where an entry is missing.
  void DrawMenu(int index);
  /// The More list over an empty list, samples as in `DrawMenu`. A missing entry repeats the one
  /// before; a step that fails is skipped.
  void DrawPopupMenu(int index);
  /// The month of today.
  void DrawCalendar();
  /// The week of the coming Saturday, or of today when it is one.
  void DrawWeekCalendar();
  /// A note of up to six lines over the standby screen.
  void DrawNotesWindow();
  void DrawWAPBrowser();
  /// A step that fails is skipped.
  void DrawProgressWindow();
  /// A step that fails is skipped.
  void DrawAcceptWindow();

 private:
  bool isInForce(gen3g::Image which) const;
  void fill(gen3g::Color which, int x1, int y1, int x2, int y2);
  /// The zone's image from its top left corner, or its colour when no image is in force.
  void paintSlot(gen3g::Image slot, gen3g::Color otherwise, int x1, int y1, int x2, int y2);
  void paintIcon(int id, int x, int y);
  void setTextColor(gen3g::Color which);
  void drawText(const QString& text, int left, int top, int width);
  void DrawShadowText(const QString& text, gen3g::Color color, gen3g::Color shadow, int x, int y,
                      int alignment);
  void DrawOutlineText(const QString& text, gen3g::Color outline, gen3g::Color color, int x, int y,
                       int alignment, bool diagonal);
  /// The coordinates leave out the margin of 5 pixels.
  void DrawPopupFrame(gen3g::Color fillColor, int left, int top, int right, int bottom);
  void DrawStatusBar();
  void paintTitleBar();
  void paintBody();
  /// A cleared surface with the status bar and an empty title bar.
  void startScreen();
  /// The frame of a window over an empty list with a title; a step that fails is skipped.
  void startWindow(const QString& title);
  /// A text in the title bar.
  void drawTitle(const QString& text);
  /// The weekdays above a calendar's columns, each centred in a rectangle `step` right of the one
  /// before; the first rectangle begins at `left`.
  void drawDayHeads(int left, int step, gen3g::Color saturday);
  /// The number of a day's week at the left of the title bar.
  void drawWeekNumber(const QDate& day);
  /// `mode` 0 has a right key only for exactly two labels, 1 leaves a gap between two keys, 2 shows
  /// the left key disabled and the right one pressed.
  void DrawSoftkeyBar(const QString& text, int mode);

  FontSpec font_{QStringLiteral("MS Sans Serif"), 0, true, 8, 0};  ///< Lives across operations.
};

}  // namespace quillane

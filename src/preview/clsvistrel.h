// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preview/previewengine.h"

#include <QDate>
#include <QString>

namespace quillane {

class PaintSteps;

/// The preview engine of generation 2.
class clsVistrel : public PreviewEngine {
 public:
  explicit clsVistrel(PreviewWorld& world);

  /// `StandbyType` follows the background image.
  void takeTheme(const ThemeValues& values) override;
  /// Also brings back the plain standby and the normal padding.
  void DefaultColors() override;

  int StandbyType = 0;          ///< 0 the standby has no background image, 1 it has one.
  QString PopupPaddingLeftTop;  ///< Left and top padding in pixels, a blank between.
  DefaultedText CalendarDateFormat{QStringLiteral("mmm yyyy")};
  Bounded<1, 2, 1> LineIcon;
  Bounded<0, 9, 5> DesktopIcon;
  bool ShowLineIcon = false;
  bool ShowIRIcon = false;

  // Texts of the screens, lists with "|" between their entries.
  QString DesktopTitle;
  QString TitleText;
  QString MenuSmallText;
  QString MenuMediumText;
  QString MenuLargeText;
  QString PromptText;
  QString PopupTitleText;
  QString PopupMenuText;
  QString PopupMenuList1;  ///< The two lists that `PopupMenuText` takes in turn.
  QString PopupMenuList2;
  QString PopupPromptText;
  QString PopupWindowText;
  QString NotesText;

  void DrawStandby();
  void DrawDesktop();
  void DrawMenuSmall();
  void DrawMenuMedium();
  void DrawMenuLarge();
  void DrawMenuInput();
  /// The frame of a popup over what is there, filled with an RRGGBB colour; its edges keep the
  /// padding. Unlike the screens it throws `Fault` for a colour that is none or a padding without
  /// a second number.
  void DrawWindow(const QString& rgb);
  /// Up to five centred lines, "|" between them, inside the padding; more lines draw nothing.
  void DrawCenterText(const QString& text, int size, bool bold, const QString& rgb);
  /// Leaves the window empty; its text is `DrawCenterText` of `PopupWindowText`.
  void DrawPopupWindow();
  void DrawPopupMenu();
  void DrawPopupInput();
  /// Ends with the padding "3 5", whatever it was.
  void DrawNotesWindow();
  /// The month of today; the Saturday in the third row is marked, whatever the day.
  void DrawCalendar();
  void DrawWAPBrowser();

 private:
  void PlaceScreenImage(PaintSteps& steps, const QString& path, const QString& fill);
  struct MenuLook;
  void DrawMenu(const MenuLook& look);
  /// An empty screen in the background colour; texts are as high as the surface's font at a size in
  /// points.
  PaintSteps startScreen(int points);
  /// Rounds the top of a title bar.
  void paintTitleCorners(PaintSteps& steps);
  void paintTitleBar(PaintSteps& steps, const QString& title);
  /// The backdrop, the window and the title bar of a popup; leaves its title font behind.
  PaintSteps startPopup(const QString& title);
  /// The marked cell of the calendar and, in the title bar, its day and week; leaves the font of
  /// its number behind.
  void paintMark(PaintSteps& steps, const QDate& day);
};

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preview/bounded.h"
#include "theme/values.h"

#include <QDate>
#include <QString>

namespace quillane {

class PaintSteps;
class PreviewWorld;
class Surface;

/// The preview engine of generation 2: the values of a theme, the simulated state of the phone, and
/// the painting of its screens. It knows nothing of archives and XML.
class clsVistrel {
 public:
  /// Starts with the default colours and no images. `world` outlives the engine.
  explicit clsVistrel(PreviewWorld& world);

  /// Where the next Draw operation paints; set before each. The surface outlives the drawing.
  void setSurface(Surface& surface) { surface_ = &surface; }

  const QString& color(gen2::Color which) const { return values_.color(which); }
  /// An empty text stores the colour's default.
  void setColor(gen2::Color which, const QString& rgb) { values_.setColor(which, rgb); }
  const QString& image(gen2::Image which) const { return values_.image(which); }
  void setImage(gen2::Image which, const QString& path) { values_.setImage(which, path); }

  /// All colours and images.
  const ThemeValues& values() const { return values_; }
  /// Takes over a loaded theme of generation 2; `StandbyType` follows the background image.
  void takeTheme(const ThemeValues& values);
  /// The reset between two themes: default colours, no images, plain standby, normal padding.
  void DefaultColors();

  int StandbyType = 0;          ///< 0 the standby has no background image, 1 it has one.
  QString PopupPaddingLeftTop;  ///< Left and top padding in pixels, a blank between.
  DefaultedText CalendarDateFormat{QStringLiteral("mmm yyyy")};
  QString TimeFormat;
  QString OperatorName;
  Bounded<0, 5, 5> SignalStrength;
  Bounded<0, 10, 10> BatteryLevel;
  Bounded<0, 1, 1> GPRSRange;
  Bounded<1, 2, 1> LineIcon;
  Bounded<0, 9, 5> DesktopIcon;
  bool ShowGPRSIcon = false;
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

  PreviewWorld* world_;
  Surface* surface_ = nullptr;
  ThemeValues values_{Generation::Two};
};

}  // namespace quillane

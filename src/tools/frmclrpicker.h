// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "theme/color.h"

#include <QDialog>

#include <array>
#include <memory>

class QAction;
class QLineEdit;
class QMenu;
class QScrollBar;

namespace Ui {
class frmClrPicker;
}

namespace quillane {

class Dialogs;
class SettingsStore;
struct PublicState;

/// Picks a colour from a palette, by its parts, or by its RRGGBB. Between two uses the window is
/// hidden and keeps all that it shows.
class frmClrPicker : public QDialog {
  Q_OBJECT

 public:
  /// All that is handed in outlives the window.
  frmClrPicker(PublicState& state, Dialogs& dialogs);
  ~frmClrPicker() override;

  /// Shows the window over its owner, at first in the middle, until it is hidden.
  void showOver(QWidget* owner);
  /// Hides the window; the answer is the new colour.
  void accept() override;
  /// Hides the window; the answer is -1.
  void reject() override;

 protected:
  void showEvent(QShowEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  /// One of red, green and blue.
  struct Part {
    QLineEdit* text;
    QScrollBar* bar;
    std::int16_t (*of)(ColorValue color);
  };

  void connectSignals();
  void Form_Load();
  void makeMenu();
  void Form_Activate();
  void txtPart_Change(const Part& part);
  void vsbPart_Change(const Part& part);
  void txtHTML_Change();
  void lblOldColor_Click();
  void ctrColorPalette_Click();
  void btnPalette_Click();
  void mnuPopupSub_Click(int item);
  void btnOpen_Click();
  void btnWinCrlPicker_Click();

  /// Runs a procedure that loads a palette, and tells what is wrong with its file.
  void loadPalette(const QString& event, void (frmClrPicker::*procedure)());
  void loadBuiltIn();
  void loadUserPalette();
  void openPalette();
  /// Puts the check mark on a menu item, from 1, or with 0 on none.
  void checkItem(int item);

  void takePart(const Part& part, ColorValue color);
  /// Makes a colour the new one, in all that shows it.
  void takeColor(ColorValue color);
  void showParts(ColorValue color);
  void showNewColor();
  ColorValue colorOfTexts() const;
  ColorValue colorOfBars() const;

  std::unique_ptr<Ui::frmClrPicker> ui_;
  PublicState& state_;
  Dialogs& dialogs_;
  std::array<Part, 3> parts_;
  QMenu* mnuPopup_;
  std::array<QAction*, 2> mnuPopupSub_{};
  int checkedItem_ = 0;
  bool EchoToHtml = true;  ///< A change comes from the parts and not from the RRGGBB text.
};

/// Shows the colour picker over `owner`, with `PickerColorIn` as the old colour. True when the
/// person took a colour, which is then in `PickerColorOut`; otherwise that is -1.
bool pickColor(QWidget* owner, PublicState& state, Dialogs& dialogs);

/// Shows the system's colour dialog over `owner`, beginning with `PickerColorIn`, and keeps its
/// custom colours in the settings, where one that cannot be read is black. True when the person
/// took another colour, which is then in `PickerColorOut`.
bool pickSystemColor(QWidget* owner, PublicState& state, SettingsStore& settings, Dialogs& dialogs);

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preview/border.h"
#include "theme/values.h"

#include <QDialog>
#include <QImage>

#include <functional>
#include <memory>

class QMenu;

namespace Ui {
class frmCaptureWiz;
}

namespace quillane {

class Bevel;
class Dialogs;
struct PublicState;

/// Makes a picture of one of the screens that the main window shows, with as much of the surround
/// as a person wants. It stands beside the main window and keeps its picture until it is shown or
/// activated again.
class frmCaptureWiz : public QDialog {
  Q_OBJECT

 public:
  /// What the main window shows in a pane of the generation on show, by its `CapturePane`.
  using PanePicture = std::function<QImage(int pane)>;

  /// All that is handed in outlives the wizard.
  frmCaptureWiz(QWidget* owner, PublicState& state, Dialogs& dialogs, PanePicture panePicture);
  ~frmCaptureWiz() override;

  /// Shows the wizard, or brings it to the front, with the screen of `CapturePane`.
  void capture();

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void connectSignals();
  void Form_Load();
  void Form_Paint(Bevel& bevel);
  QMenu* makeMenu(const QString& name, Generation generation);
  void Form_Activate();
  void mnuPopupItem_Click(int item);
  void btnVistrel_Click();
  void btnBorder_Click(Border border);
  void btnClipboardCopy_Click();
  void btnCapture_Click();
  /// Cuts the result out of the whole screen.
  void showResult();
  QMenu& menu() const;

  std::unique_ptr<Ui::frmCaptureWiz> ui_;
  PublicState& state_;
  Dialogs& dialogs_;
  PanePicture panePicture_;
  QMenu* mnuPopup_;
  QMenu* mnuPopup2_;
  QImage picTempPic;                         ///< The picked screen, whole.
  Generation generation_ = Generation::Two;  ///< Of the picked screen.
  Border border_ = Border::Default;
};

}  // namespace quillane

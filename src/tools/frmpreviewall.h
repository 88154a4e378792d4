// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "theme/fault.h"

#include <QDialog>
#include <QList>

#include <memory>

namespace Ui {
class frmPreviewAll;
}

namespace quillane {

class clsVistrel3G;
class Dialogs;
class PictureBox;
class PreviewWorld;
struct PublicState;

/// All screens of the 3G theme on show, side by side in a strip that scrolls. They are painted anew
/// each time that the window is shown.
class frmPreviewAll : public QDialog {
  Q_OBJECT

 public:
  /// All that is handed in outlives the window.
  frmPreviewAll(QWidget* owner, PublicState& state, Dialogs& dialogs, PreviewWorld& world);
  ~frmPreviewAll() override;

 protected:
  void showEvent(QShowEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  void connectSignals();
  void Form_Load();
  void Form_Activate();
  /// The window is to show before the work starts.
  void waitUntilShown();
  void hsbScroll_Change();
  void loadPanes();
  /// Back to the caption and the empty bar of a window that waits for its screens.
  void hideStrip();
  void showStrip();
  void paintScreens(const FaultReporter& report);
  /// Fills the progress bar up to and with a column.
  void showProgress(int column);

  std::unique_ptr<Ui::frmPreviewAll> ui_;
  PublicState& state_;
  Dialogs& dialogs_;
  PreviewWorld& world_;
  clsVistrel3G& engine_;
  QList<PictureBox*> picPreview_;  ///< One for each screen of 3G.
};

/// Shows the screens of the 3G theme in `state` until the person closes the window.
void showPreviewAll(QWidget* owner, PublicState& state, Dialogs& dialogs, PreviewWorld& world);

}  // namespace quillane

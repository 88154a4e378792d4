// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/converter.h"

#include <QDialog>
#include <QImage>

#include <memory>

class QMenu;

namespace Ui {
class frmImageWiz;
}

namespace quillane {

class Dialogs;
class PlaceBox;
struct PublicState;

/// Cuts a picture to the size of a theme's image slot and saves or copies it.
class frmImageWiz : public QDialog {
  Q_OBJECT

 public:
  /// All that is handed in outlives the wizard.
  frmImageWiz(QWidget* owner, PublicState& state, Dialogs& dialogs);
  ~frmImageWiz() override;

 private:
  void connectSignals();
  void Form_Load();
  void makeSizesMenu();
  void mnuPopupItem_Click(int item);

  // The toolbar.
  void btnToolbar_Open();
  void btnToolbar_Save();
  void btnToolbar_SaveAs();
  void btnToolbar_Reload();
  void btnToolbar_Copy();
  void btnToolbar_Paste();
  void btnToolbar_Resize();
  void btnToolbar_Flip();
  void btnToolbar_Mirror();
  void btnToolbar_Sizes();

  /// Shows the picture of a file, or that of the clipboard for an empty name. Throws `Fault`.
  void LoadImage(const QString& fileName);
  /// Shows what is known of a picture, and what may be done with it.
  void showLoaded(const QString& fileName);
  void showPicture(const QImage& picture);
  void layScrollBars();
  void scrollHome();
  void RefreshCrop();
  /// Asks where to, and remembers the place once the result is saved there.
  void saveCropAs(const QString& title, const QString& offered);
  void saveCrop(const QString& path, PictureKind kind);

  void picImage_MouseMove(bool held, QPoint pixel);
  /// Moves the frame and shows where it is.
  void moveFrame(QPoint place);
  /// Moves the frame by so many pixels, as far as the picture goes.
  void nudgeFrame(QPoint pixels);
  void txtXY_Enter(PlaceBox& box, int room);
  void scroll();

  std::unique_ptr<Ui::frmImageWiz> ui_;
  PublicState& state_;
  Dialogs& dialogs_;
  QMenu* mnuPopup_;

  QImage SourcePicture;
  int ImageW = 0;
  int ImageH = 0;
  QString OpenFileName;
  QString SaveFileName;
  PictureKind saveKind_ = PictureKind::Gif;
  int CropX = 0;
  int CropY = 0;
};

/// Runs the wizard until the person closes it.
void showImageWizard(QWidget* owner, PublicState& state, Dialogs& dialogs);

}  // namespace quillane

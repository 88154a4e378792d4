// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QWidget;

namespace quillane {

class Dialogs;

/// The file dialog: filled before it is shown, and holding the answer afterwards.
class clsOpenSave {
 public:
  explicit clsOpenSave(Dialogs& dialogs) : dialogs_(dialogs) {}

  QString DialogTitle;
  QString InitDir;      ///< Where the dialog begins.
  QString FileName;     ///< Offered name, bare or with a folder; afterwards the full path chosen.
  QString DefaultExt;   ///< Put behind a name without one, as in ".thm".
  QString Filter;       ///< Captions and patterns in turn, as in "Themes (*.thm)|*.thm|All|*".
  int FilterIndex = 1;  ///< Of the filter in force, from 1.

  /// Asks for a file that exists. Throws `Fault` (DialogCancelled) when the person cancels.
  void ShowOpen(QWidget* owner);
  /// Asks for a file to write, and before one is replaced. Throws the same.
  void ShowSave(QWidget* owner);

 private:
  Dialogs& dialogs_;
};

}  // namespace quillane

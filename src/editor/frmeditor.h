// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/editorform.h"

namespace quillane {

class clsVistrel;

/// The editor of generation 2.
class frmEditor : public EditorForm {
  Q_OBJECT

 public:
  frmEditor(QWidget* owner, const EditorDesk& desk, bool openExisting);

 protected:
  void paintPanes(const QStringList& only, const FaultReporter& report) override;
  bool PickColor() override;
  void imageFilled(int slot, bool autoSelected) override;

 private:
  void btnView_Click();
  /// Gives an empty slot the file of another one of the same size.
  void shareImage(int from, int to, bool evenFilled);

  clsVistrel& vistrel_;
};

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/editorform.h"

namespace quillane {

class clsVistrel3G;

/// The editor of 3G.
class frmEditor2 : public EditorForm {
  Q_OBJECT

 public:
  frmEditor2(QWidget* owner, const EditorDesk& desk, bool openExisting);

 protected:
  void paintPanes(const QStringList& only, const FaultReporter& report) override;
  bool PickColor() override;

 private:
  void btnDrawImages_Click();
  /// The drawing box of a screen; empty for one that is not on show.
  QString paneOf(QLatin1String screen) const;

  clsVistrel3G& vistrel_;
};

}  // namespace quillane

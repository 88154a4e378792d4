// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/editor.h"
#include "theme/elements.h"

#include <QDialog>

#include <memory>
#include <optional>

namespace Ui {
class frmNew;
}

namespace quillane {

/// Asks which kind of theme to make.
class frmNew : public QDialog {
  Q_OBJECT

 public:
  /// The buttons show screens with the default colours and the texts of the person's language.
  frmNew(QWidget* owner, const EditorDesk& desk);
  ~frmNew() override;

  /// Whose phones the theme is for; nothing when the person cancelled.
  std::optional<Generation> choice() const { return choice_; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  std::unique_ptr<Ui::frmNew> ui_;
  std::optional<Generation> choice_;
};

}  // namespace quillane

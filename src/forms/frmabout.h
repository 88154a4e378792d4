// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class frmAbout;
}

namespace quillane {

/// What the program is, who made it, and under which terms it and its libraries come.
class frmAbout : public QDialog {
  Q_OBJECT

 public:
  explicit frmAbout(QWidget* owner);
  ~frmAbout() override;

 private:
  std::unique_ptr<Ui::frmAbout> ui_;
};

/// Shows the box over its owner until the person closes it.
void showAbout(QWidget* owner);

}  // namespace quillane

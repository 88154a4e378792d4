// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <memory>

namespace Ui {
class frmSplash;
}

namespace quillane {

/// The picture that covers the start: name, version and what is being done.
class frmSplash : public QWidget {
  Q_OBJECT

 public:
  frmSplash();
  ~frmSplash() override;

  void setStatus(const QString& text);

 private:
  std::unique_ptr<Ui::frmSplash> ui_;
};

/// The version of the program as the splash shows it: "Version: 3.0.187 Beta 2".
QString versionCaption();

}  // namespace quillane

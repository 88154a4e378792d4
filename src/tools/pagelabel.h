// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractButton>

namespace quillane {

/// An entry in a list of pages: of those in one parent, one is checked, and the arrow keys walk.
class PageLabel : public QAbstractButton {
  Q_OBJECT

 public:
  explicit PageLabel(QWidget* parent = nullptr);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace quillane

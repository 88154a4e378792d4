// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace quillane {

class Bevel;

/// The client area of a form, on which the form draws its separators and panels.
class FormArea : public QWidget {
  Q_OBJECT

 public:
  using QWidget::QWidget;

 Q_SIGNALS:
  /// The area is being painted.
  void Paint(quillane::Bevel& bevel);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace quillane

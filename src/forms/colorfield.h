// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "theme/color.h"

#include <QAbstractButton>

namespace quillane {

/// A field of one colour that a click, Space or Enter opens. Assistive programs hear the colour as
/// RRGGBB.
class ColorField : public QAbstractButton {
  Q_OBJECT

 public:
  explicit ColorField(QWidget* parent = nullptr);

  ColorValue color() const { return color_; }
  void setColor(ColorValue color);
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  ColorValue color_ = 0;
};

}  // namespace quillane

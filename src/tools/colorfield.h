// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "theme/color.h"

#include <QLabel>

namespace quillane {

/// A plain field of one colour, which can be clicked; with the focus, Enter and Space do the same.
class ColorField : public QLabel {
  Q_OBJECT

 public:
  explicit ColorField(QWidget* parent = nullptr);

  ColorValue color() const;
  /// Changes the background; assistive programs hear the colour as RRGGBB.
  void setColor(ColorValue color);

 Q_SIGNALS:
  void Click();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
};

}  // namespace quillane

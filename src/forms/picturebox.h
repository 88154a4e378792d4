// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preview/surface.h"

#include <QFrame>

#include <memory>

namespace quillane {

/// A picture box with a sunken border of two pixels: shows a surface, pixel for pixel, scaled by
/// whole device pixels on a dense screen.
class PictureBox : public QFrame {
  Q_OBJECT

 public:
  explicit PictureBox(QWidget* parent = nullptr);

  /// The surface to paint on, as large as the client area; call `showSurface` when it is painted.
  Surface& surface();
  /// Brings what was painted to the screen.
  void showSurface() { update(); }
  /// Clears the drawing.
  void Cls();

 Q_SIGNALS:
  /// The right button was released over the box, at a place on the screen.
  void rightClicked(QPoint globalPosition);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  std::unique_ptr<Surface> surface_;
};

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QRect>
#include <QWidget>

namespace quillane {

/// Shows a picture pixel for pixel and over it, once it has a size, the frame that is to be cut
/// out.
class CropCanvas : public QWidget {
  Q_OBJECT

 public:
  explicit CropCanvas(QWidget* parent = nullptr);

  /// Shows a picture in the upper left corner of an area of so many pixels.
  void setPicture(const QImage& picture, QSize area);
  /// The frame in pixels of the picture; a null one hides it.
  void setFrame(const QRect& frame);
  const QRect& frame() const { return frame_; }
  bool hasFrame() const { return !frame_.isNull(); }

 Q_SIGNALS:
  /// The mouse is at a pixel, with the left button held or not.
  void MouseMove(bool held, QPoint pixel);
  /// An arrow key asks for the frame to be moved by so many pixels.
  void Nudge(QPoint pixels);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void tellMove(const QMouseEvent& event);

  QImage picture_;
  QRect frame_;
};

}  // namespace quillane

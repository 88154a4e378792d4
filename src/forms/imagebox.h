// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractScrollArea>
#include <QImage>

namespace quillane {

/// Shows a picture at its natural size, pixel for pixel, with scroll bars when it has no room.
class ImageBox : public QAbstractScrollArea {
  Q_OBJECT

 public:
  explicit ImageBox(QWidget* parent = nullptr);

  /// Shows a picture from its upper left corner on; a null one clears the box.
  void setPicture(const QImage& picture);
  const QImage& picture() const { return picture_; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void setRanges();

  QImage picture_;
};

}  // namespace quillane

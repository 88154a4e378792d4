// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QLabel;

namespace quillane {

/// A small window shaped like a balloon, whose tip points at a place on the screen.
class Balloon : public QWidget {
  Q_OBJECT

 public:
  explicit Balloon(QWidget* owner);

  /// Shows the balloon with its tip at `target`, above or below it as the screen has room. `text`
  /// and `title` are plain text.
  void showAt(QPoint target, const QPixmap& icon, const QString& title, const QString& text);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QPainterPath outline() const;

  QLabel* icon_;
  QLabel* title_;
  QLabel* text_;
  int tip_ = 0;        ///< Distance of the tip from the left edge, in pixels.
  bool above_ = true;  ///< Whether the balloon lies above its target.
};

}  // namespace quillane

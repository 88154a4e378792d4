// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QToolButton>

namespace quillane {

/// The button of an image slot: its file, and a picture while it has one.
class ImageButton : public QToolButton {
  Q_OBJECT

 public:
  explicit ImageButton(QWidget* parent = nullptr);

  /// Path of the slot's file, empty for none.
  const QString& path() const { return path_; }
  void setPath(const QString& path);

 Q_SIGNALS:
  /// The right button was released over it, or Delete pressed.
  void removed();
  /// The pointer or the keyboard's focus came to it.
  void entered();
  /// The pointer or the focus left it.
  void left();

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  QString path_;
};

}  // namespace quillane

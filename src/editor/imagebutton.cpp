// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/imagebutton.h"

#include "forms/formicons.h"

#include <QKeyEvent>
#include <QMouseEvent>

namespace quillane {

namespace {

constexpr int kFilledPicture = 103;

}  // namespace

ImageButton::ImageButton(QWidget* parent) : QToolButton(parent) {
  setCursor(Qt::PointingHandCursor);
  setFocusPolicy(Qt::StrongFocus);
  setFixedSize(32, 30);
}

void ImageButton::setPath(const QString& path) {
  path_ = path;
  setIcon(path.isEmpty() ? QIcon() : formIcon(kFilledPicture));
}

void ImageButton::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::RightButton && rect().contains(event->position().toPoint()))
    Q_EMIT removed();
  else
    QToolButton::mouseReleaseEvent(event);
}

void ImageButton::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Delete)
    Q_EMIT removed();
  else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
    click();
  else
    QToolButton::keyPressEvent(event);
}

void ImageButton::enterEvent(QEnterEvent* event) {
  QToolButton::enterEvent(event);
  Q_EMIT entered();
}

void ImageButton::leaveEvent(QEvent* event) {
  QToolButton::leaveEvent(event);
  Q_EMIT left();
}

void ImageButton::focusInEvent(QFocusEvent* event) {
  QToolButton::focusInEvent(event);
  Q_EMIT entered();
}

void ImageButton::focusOutEvent(QFocusEvent* event) {
  QToolButton::focusOutEvent(event);
  Q_EMIT left();
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/colorfield.h"

#include "forms/formcolors.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace quillane {

ColorField::ColorField(QWidget* parent) : QLabel(parent) {
  setAutoFillBackground(true);
  setColor(0);
}

ColorValue ColorField::color() const {
  return colorValueOf(palette().color(QPalette::Window));
}

void ColorField::setColor(ColorValue color) {
  QPalette dressed = palette();
  dressed.setColor(QPalette::Window, colorOf(color));
  setPalette(dressed);
  setAccessibleDescription(ColorToHtml(QString::number(color)));
}

void ColorField::keyPressEvent(QKeyEvent* event) {
  const bool isClick = event->key() == Qt::Key_Space || event->key() == Qt::Key_Return ||
                       event->key() == Qt::Key_Enter;
  if (isClick)
    Q_EMIT Click();
  else
    QLabel::keyPressEvent(event);
}

void ColorField::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
    Q_EMIT Click();
}

void ColorField::paintEvent(QPaintEvent* event) {
  QLabel::paintEvent(event);
  if (!hasFocus()) return;
  QPainter painter(this);
  const bool isLight = qGray(palette().color(QPalette::Window).rgb()) > 127;
  painter.setPen(QPen(isLight ? Qt::black : Qt::white, 1, Qt::DotLine));
  painter.drawRect(rect().adjusted(3, 3, -4, -4));
}

void ColorField::focusInEvent(QFocusEvent* event) {
  QLabel::focusInEvent(event);
  update();
}

void ColorField::focusOutEvent(QFocusEvent* event) {
  QLabel::focusOutEvent(event);
  update();
}

}  // namespace quillane

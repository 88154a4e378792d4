// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/colorfield.h"

#include "forms/formcolors.h"

#include <QKeyEvent>
#include <QStyleOption>
#include <QStylePainter>

namespace quillane {

ColorField::ColorField(QWidget* parent) : QAbstractButton(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setColor(0);
}

void ColorField::setColor(ColorValue color) {
  color_ = color;
  setAccessibleDescription(htmlOf(color));
  update();
}

QSize ColorField::sizeHint() const {
  return {52, 22};
}

void ColorField::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  QStyleOptionFrame frame;
  frame.initFrom(this);
  frame.lineWidth = 2;
  frame.state |= QStyle::State_Sunken;
  painter.fillRect(rect().adjusted(2, 2, -2, -2), colorOf(color_));
  painter.drawPrimitive(QStyle::PE_Frame, frame);
  if (!hasFocus()) return;
  // A dotted line alone is lost on some colours.
  painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
  painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

void ColorField::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
    click();
  else
    QAbstractButton::keyPressEvent(event);
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/colorswatch.h"

#include "forms/formcolors.h"

#include <QKeyEvent>
#include <QStyleOption>
#include <QStylePainter>

namespace quillane {

ColorSwatch::ColorSwatch(QWidget* parent) : QAbstractButton(parent) {
  setCursor(Qt::PointingHandCursor);
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void ColorSwatch::setColor(ColorValue color) {
  color_ = color;
  update();
}

QSize ColorSwatch::sizeHint() const {
  return {52, 22};
}

void ColorSwatch::paintEvent(QPaintEvent*) {
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

void ColorSwatch::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
    click();
  else
    QAbstractButton::keyPressEvent(event);
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/cropcanvas.h"

#include "forms/paintpixels.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace quillane {

namespace {

/// Pixels that an arrow key moves the frame by while Shift is held.
constexpr int kFarNudge = 10;

constexpr std::pair<Qt::Key, QPoint> kNudges[] = {{Qt::Key_Left, {-1, 0}},
                                                  {Qt::Key_Right, {1, 0}},
                                                  {Qt::Key_Up, {0, -1}},
                                                  {Qt::Key_Down, {0, 1}}};

}  // namespace

CropCanvas::CropCanvas(QWidget* parent) : QWidget(parent) {
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
}

void CropCanvas::setPicture(const QImage& picture, QSize area) {
  picture_ = picture;
  resize((QSizeF(area) * pixelSize(*this)).toSize());
  update();
}

void CropCanvas::setFrame(const QRect& frame) {
  frame_ = frame;
  update();
}

void CropCanvas::paintEvent(QPaintEvent*) {
  paintPixels(*this, picture_, {0, 0});
  if (!hasFrame()) return;
  // Two colours in turn show on any picture.
  QPainter painter(this);
  painter.scale(pixelSize(*this), pixelSize(*this));
  const QRect line = frame_.adjusted(0, 0, -1, -1);
  painter.setPen(Qt::white);
  painter.drawRect(line);
  painter.setPen(QPen(Qt::black, 1, Qt::DashLine));
  painter.drawRect(line);
}

void CropCanvas::tellMove(const QMouseEvent& event) {
  Q_EMIT MouseMove(event.buttons().testFlag(Qt::LeftButton),
                   (event.position() / pixelSize(*this)).toPoint());
}

void CropCanvas::mousePressEvent(QMouseEvent* event) {
  tellMove(*event);
}

void CropCanvas::mouseMoveEvent(QMouseEvent* event) {
  tellMove(*event);
}

void CropCanvas::keyPressEvent(QKeyEvent* event) {
  const auto* nudge = std::find_if(std::begin(kNudges), std::end(kNudges),
                                   [&](const auto& row) { return row.first == event->key(); });
  if (nudge == std::end(kNudges)) return QWidget::keyPressEvent(event);
  const bool isFar = event->modifiers().testFlag(Qt::ShiftModifier);
  Q_EMIT Nudge(nudge->second * (isFar ? kFarNudge : 1));
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/paintpixels.h"

#include <QImage>
#include <QPainter>
#include <QWidget>

namespace quillane {

void paintPixels(QWidget& widget, const QImage& pixels, QPoint corner) {
  const qreal ratio = widget.devicePixelRatioF();
  const int whole = qMax(1, qFloor(ratio));
  // A place between two pixels of the screen would lose a row or a column.
  const QPointF place((QPointF(corner) * ratio).toPoint() / ratio);
  QPainter(&widget).drawImage(QRectF(place, QSizeF(pixels.size() * whole) / ratio), pixels);
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/paintpixels.h"

#include <QImage>
#include <QPainter>
#include <QWidget>

namespace quillane {

qreal pixelSize(const QWidget& widget) {
  const qreal ratio = widget.devicePixelRatioF();
  return qMax(1, qFloor(ratio)) / ratio;
}

void paintPixels(QWidget& widget, const QImage& pixels, QPointF corner) {
  const qreal ratio = widget.devicePixelRatioF();
  // A place between two pixels of the screen would lose a row or a column.
  const QPointF place((corner * ratio).toPoint() / ratio);
  QPainter(&widget).drawImage(QRectF(place, QSizeF(pixels.size()) * pixelSize(widget)), pixels);
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPoint>

class QImage;
class QWidget;

namespace quillane {

/// How large a pixel of a picture is on a widget, in the widget's own pixels: as many whole pixels
/// of the screen as go into one of them, so 1 or a little less.
qreal pixelSize(const QWidget& widget);

/// Paints a picture on a widget, from its paint event, with the upper left corner at `corner`.
/// Each pixel is `pixelSize` wide and high.
void paintPixels(QWidget& widget, const QImage& pixels, QPointF corner);

}  // namespace quillane

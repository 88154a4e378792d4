// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPoint>

class QImage;
class QWidget;

namespace quillane {

/// Paints a picture on a widget, from its paint event, with the upper left corner at `corner`.
/// Each pixel is as many whole pixels of the screen wide and high as go into one of the widget.
void paintPixels(QWidget& widget, const QImage& pixels, QPoint corner);

}  // namespace quillane

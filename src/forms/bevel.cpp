// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/bevel.h"

#include <QPainter>
#include <QPalette>

namespace quillane {

namespace {

// The lines are level or upright, so a filled rectangle one pixel thick leaves out the end exactly.
void line(QPainter& painter, int x1, int y1, int x2, int y2, const QColor& color) {
  const QRect pixels = y1 == y2 ? QRect(x1, y1, x2 - x1, 1) : QRect(x1, y1, 1, y2 - y1);
  painter.fillRect(pixels, color);
}

}  // namespace

void Bevel::shadow(int x1, int y1, int x2, int y2) {
  line(painter_, x1, y1, x2, y2, palette_.color(QPalette::Dark));
}

void Bevel::light(int x1, int y1, int x2, int y2) {
  line(painter_, x1, y1, x2, y2, palette_.color(QPalette::Light));
}

void Bevel::midlight(int x1, int y1, int x2, int y2) {
  line(painter_, x1, y1, x2, y2, palette_.color(QPalette::Midlight));
}

void DrawEtchedLine(Bevel& bevel, int width, int y) {
  bevel.shadow(0, y, width, y);
  bevel.light(0, y + 1, width, y + 1);
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview/surface.h"

#include "preview/faces.h"

#include <algorithm>
#include <cmath>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

int toPixel(double position) {
  return static_cast<int>(std::floor(position + 0.5));
}

}  // namespace

QRgb pixelOf(ColorValue color) {
  return qRgb(RedOf(color), GreenOf(color), BlueOf(color));
}

Surface::Surface(QSize size, ColorValue backColor)
    : image_(size, QImage::Format_RGB32), backColor_(backColor) {
  Cls();
}

void Surface::Cls() {
  image_.fill(pixelOf(backColor_));
}

int Surface::TextHeight(const QString& text) const {
  const SizedFace& face = Faces::shared().face(u"MS Sans Serif"_s, fontSize_, false);
  return face.cellHeight() * static_cast<int>(splitLines(text).size());
}

int Surface::TextWidth(const QString& text) const {
  SizedFace& face = Faces::shared().face(u"MS Sans Serif"_s, fontSize_, false);
  int widest = 0;
  for (const QString& line : splitLines(text))
    widest = std::max(widest, face.widthOf(line));
  return widest;
}

void Surface::PaintPicture(const Picture& picture, double x, double y) {
  const QSize size = picture.image().size();
  PaintPicture(picture, x, y, 0, 0, size.width(), size.height());
}

void Surface::PaintPicture(const Picture& picture, double x, double y, double sourceX,
                           double sourceY, double width, double height) {
  const QImage& from = picture.image();
  const QPoint source(toPixel(sourceX), toPixel(sourceY));
  const QPoint shift = QPoint(toPixel(x), toPixel(y)) - source;
  const QRect wanted(source, QSize(toPixel(width), toPixel(height)));
  const QRect visible = wanted & from.rect() & image_.rect().translated(-shift);

  for (int row = visible.top(); row <= visible.bottom(); ++row) {
    const auto* pixels = reinterpret_cast<const QRgb*>(from.constScanLine(row));
    auto* target = reinterpret_cast<QRgb*>(image_.scanLine(row + shift.y())) + shift.x();
    for (int column = visible.left(); column <= visible.right(); ++column)
      if (qAlpha(pixels[column]) != 0) target[column] = pixels[column];
  }
}

}  // namespace quillane

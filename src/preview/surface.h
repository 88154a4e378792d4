// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preview/picture.h"
#include "theme/color.h"

#include <QImage>
#include <QRgb>
#include <QString>

namespace quillane {

/// The opaque pixel of a colour value.
QRgb pixelOf(ColorValue color);

/// A picture box to paint on: 32-bit RGB pixels that stay until cleared, and a font of its own that
/// only measures. Coordinates are pixels; everything clips to the surface.
class Surface {
 public:
  /// Client area of a generation's picture box, in pixels.
  static constexpr QSize kSize2{111, 91};
  static constexpr QSize kSize3G{138, 171};

  /// `backColor` shows after `Cls`, so in the margin around the simulated screen.
  explicit Surface(QSize size, ColorValue backColor = 0xC8D0D4);

  void Cls();
  /// Size in points of the surface's own font: 7, 8 or 9.
  void setFontSize(int points) { fontSize_ = points; }
  /// Height and width in pixels of a text in the surface's own font.
  int TextHeight(const QString& text) const;
  int TextWidth(const QString& text) const;

  /// Paints the whole picture 1:1 at a place that may have a fraction (rounded half up).
  void PaintPicture(const Picture& picture, double x, double y);
  /// Paints a source rectangle 1:1; what lies beyond the picture adds nothing.
  void PaintPicture(const Picture& picture, double x, double y, double sourceX, double sourceY,
                    double width, double height);

  const QImage& image() const { return image_; }
  QImage& image() { return image_; }

 private:
  QImage image_;
  ColorValue backColor_;
  int fontSize_ = 8;
};

}  // namespace quillane

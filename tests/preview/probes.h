// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preview/picture.h"
#include "preview/surface.h"

#include <vector>

namespace quillane {

/// Where a picture has pixels of a colour; null for nowhere.
inline QRect boundsOf(const QImage& image, QRgb color) {
  QRect bounds;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (image.pixel(x, y) == color) bounds |= QRect(x, y, 1, 1);
  return bounds;
}

struct PlacedIcon {
  int id;
  QPoint at;
};

/// A surface of one colour with nothing but icons on it, in the order of their painting.
inline QImage iconsOn(QRgb ground, const std::vector<PlacedIcon>& icons) {
  Surface surface(Surface::kSize3G);
  surface.image().fill(ground);
  for (const PlacedIcon& icon : icons)
    surface.PaintPicture(LoadResourcePicture(icon.id), icon.at.x(), icon.at.y());
  return surface.image();
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

#include <string>
#include <vector>

namespace quillane {

/// A part of a picture as a square of letters: "." for the surface's own back colour, "#" black,
/// "w" white, "r", "g", "b" the pure colours and "?" any other.
inline std::vector<std::string> lettersOf(const QImage& image, const QRect& part) {
  std::vector<std::string> rows;
  for (int y = part.top(); y <= part.bottom(); ++y) {
    std::string& row = rows.emplace_back();
    for (int x = part.left(); x <= part.right(); ++x) {
      switch (image.pixel(x, y) & 0xFFFFFFU) {
        case 0xD4D0C8:
          row += '.';
          break;
        case 0x000000:
          row += '#';
          break;
        case 0xFFFFFF:
          row += 'w';
          break;
        case 0xFF0000:
          row += 'r';
          break;
        case 0x00FF00:
          row += 'g';
          break;
        case 0x0000FF:
          row += 'b';
          break;
        default:
          row += '?';
      }
    }
  }
  return rows;
}

inline std::vector<std::string> lettersOf(const QImage& image) {
  return lettersOf(image, image.rect());
}

}  // namespace quillane

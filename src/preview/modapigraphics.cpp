// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview/modapigraphics.h"

#include "preview/faces.h"
#include "preview/surface.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace quillane {

namespace {

/// A character of a text once the ampersands have been read.
struct Letter {
  char32_t character;
  bool underlined;
};

std::vector<Letter> lettersOf(const QString& line) {
  std::vector<Letter> letters;
  bool prefixed = false;
  for (const char32_t character : line.toUcs4()) {
    if (character == U'&' && !prefixed) {
      prefixed = true;
      continue;
    }
    letters.push_back({character, prefixed && character != U'&'});
    prefixed = false;
  }
  return letters;
}

void fill(QImage& image, const QRect& rect, QRgb pixel) {
  const QRect visible = rect & image.rect();
  for (int y = visible.top(); y <= visible.bottom(); ++y)
    std::fill_n(reinterpret_cast<QRgb*>(image.scanLine(y)) + visible.left(), visible.width(),
                pixel);
}

/// Paints a glyph with its cell's top left corner at `corner`, as far as it lies in `clip`.
void paintGlyph(QImage& image, const Glyph& glyph, QPoint corner, const QRect& clip, QRgb pixel) {
  const QRect box = glyph.box.translated(corner);
  const QRect visible = box & clip;
  for (int y = visible.top(); y <= visible.bottom(); ++y) {
    auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = visible.left(); x <= visible.right(); ++x)
      if (glyph.mask[static_cast<std::size_t>((y - box.top()) * box.width() + x - box.left())] != 0)
        line[x] = pixel;
  }
}

int startOf(int alignment, int left, int right, int width) {
  if (alignment == AlignCentre) return (left + right - width) / 2;
  if (alignment == AlignRight) return right - width;
  return left;
}

}  // namespace

void DrawFilledRect(Surface& surface, ColorValue color, int x1, int y1, int x2, int y2) {
  if (x1 < x2 && y1 < y2)
    fill(surface.image(), QRect(QPoint(x1, y1), QPoint(x2 - 1, y2 - 1)), pixelOf(color));
}

void DrawBox(Surface& surface, ColorValue color, int x1, int y1, int x2, int y2) {
  DrawFilledBox(surface, color, x1, y1, x2, y1);
  DrawFilledBox(surface, color, x1, y2, x2, y2);
  DrawFilledBox(surface, color, x1, y1, x1, y2);
  DrawFilledBox(surface, color, x2, y1, x2, y2);
}

void DrawFilledBox(Surface& surface, ColorValue color, int x1, int y1, int x2, int y2) {
  DrawFilledRect(surface, color, x1, y1, x2 + 1, y2 + 1);
}

void DrawLine(Surface& surface, int x1, int y1, int x2, int y2, ColorValue color) {
  QImage& image = surface.image();
  const QRgb pixel = pixelOf(color);
  const int dx = std::abs(x2 - x1);
  const int dy = std::abs(y2 - y1);
  const int stepX = x1 < x2 ? 1 : -1;
  const int stepY = y1 < y2 ? 1 : -1;
  int error = dx - dy;
  for (int x = x1, y = y1; x != x2 || y != y2;) {
    if (image.valid(x, y)) image.setPixel(x, y, pixel);
    const int twice = 2 * error;
    if (twice > -dy) {
      error -= dy;
      x += stepX;
    }
    if (twice < dx) {
      error += dx;
      y += stepY;
    }
  }
}

void DrawTextRect(Surface& surface, const QString& text, int left, int top, int height, int width,
                  const FontSpec& font) {
  if (width <= 0 || height <= 0) return;
  SizedFace& face = Faces::shared().face(font.Name, font.Size, font.Bold);
  QImage& image = surface.image();
  const QRgb pixel = pixelOf(font.Color);
  const QRect clip = QRect(left, top, width, height) & image.rect();
  int y = top;
  for (const QString& line : splitLines(text)) {
    const std::vector<Letter> letters = lettersOf(line);
    int lineWidth = 0;
    for (const Letter& letter : letters)
      lineWidth += face.glyph(letter.character).advance;

    int x = startOf(font.Alignment, left, left + width, lineWidth);
    for (const Letter& letter : letters) {
      const Glyph& glyph = face.glyph(letter.character);
      paintGlyph(image, glyph, QPoint(x, y), clip, pixel);
      if (letter.underlined)
        fill(image, QRect(x, y + face.ascent() + 1, glyph.advance, 1) & clip, pixel);
      x += glyph.advance;
    }
    y += face.cellHeight();
  }
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "theme/color.h"

#include <QString>

namespace quillane {

class Surface;

/// Values of `FontSpec::Alignment`; any other counts as left.
enum TextAlignment : int { AlignLeft = 1, AlignCentre = 2, AlignRight = 3 };

/// The font of the text primitive.
struct FontSpec {
  QString Name;
  int Alignment = 0;
  bool Bold = false;
  int Size = 0;  ///< Points.
  ColorValue Color = 0;
};

/// Fills x in [x1, x2) and y in [y1, y2).
void DrawFilledRect(Surface& surface, ColorValue color, int x1, int y1, int x2, int y2);

/// Draws the outline of a box with both corners in it.
void DrawBox(Surface& surface, ColorValue color, int x1, int y1, int x2, int y2);

/// Fills a box with both corners in it.
void DrawFilledBox(Surface& surface, ColorValue color, int x1, int y1, int x2, int y2);

/// Draws a line one pixel wide from (x1, y1) up to, but not including, (x2, y2).
void DrawLine(Surface& surface, int x1, int y1, int x2, int y2, ColorValue color);

/// Draws text from the top of the rectangle (left, top) to (left + width, top + height), clipped to
/// it. "&&" shows one ampersand, "&x" an x with a line over it below, a line end starts a new line.
void DrawTextRect(Surface& surface, const QString& text, int left, int top, int height, int width,
                  const FontSpec& font);

}  // namespace quillane

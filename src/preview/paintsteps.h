// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preview/modapigraphics.h"
#include "preview/picture.h"

namespace quillane {

/// One run of a Draw operation of generation 2: its font, its one picture, and painting steps that
/// are skipped when they fail. Font and picture then keep what they held.
class PaintSteps {
 public:
  /// Text is as high as "|" in the surface's own font at this moment.
  explicit PaintSteps(Surface& surface);

  FontSpec font{QStringLiteral("Tahoma"), 0, false, 0, 0};

  /// Sets the surface's own font to a size in points, and the height of text with it.
  void setSurfaceFont(int points);
  /// Colours are RRGGBB texts.
  void fill(const QString& color, int x1, int y1, int x2, int y2);
  void line(const QString& color, int x1, int y1, int x2, int y2);
  void setTextColor(const QString& color);
  void text(const QString& text, int left, int top, int width);
  /// The text with its shadow one pixel to the right and below; the text's colour stays.
  void shadowedText(const QString& text, int left, int top, int width, const QString& color,
                    const QString& shadow);
  /// The text at the eight places around (left, top), clockwise from the left.
  void textAround(const QString& text, int left, int top, int width);

  /// Loads a file into the picture.
  void load(const QString& path);
  const Picture& picture() const { return picture_; }
  /// Loads a numbered icon into the picture and paints that.
  void icon(int id, int x, int y);

 private:
  Surface* surface_;
  int lineHeight_;
  Picture picture_;
};

}  // namespace quillane

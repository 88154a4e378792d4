// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>
#include <QString>
#include <QStringList>
#include <ft2build.h>
#include FT_FREETYPE_H

#include <functional>
#include <map>
#include <memory>
#include <tuple>
#include <unordered_map>
#include <vector>

namespace quillane {

/// Version of the library that renders glyphs, as it is in memory: "2.12.1".
QString freeTypeVersion();

/// A character in black and white.
struct Glyph {
  int advance = 0;                  ///< Pixels to the next character.
  QRect box;                        ///< The mask's place, from the cell's top left corner.
  std::vector<unsigned char> mask;  ///< Row by row, 1 where the pixel takes the text's colour.
};

/// Cuts a text at CR, LF and CR LF; there is always at least one line.
QStringList splitLines(const QString& text);

/// A face at one size: the height of its cell and its glyphs, each rendered once.
class SizedFace {
 public:
  /// Takes over `face`, already set to its size; null gives a face without any glyph.
  /// `doubled` paints each glyph twice, one pixel apart, where there is no bold face.
  SizedFace(FT_Face face, bool doubled);

  int cellHeight() const { return cellHeight_; }
  /// Rows from the cell's top to the baseline.
  int ascent() const { return ascent_; }
  const Glyph& glyph(char32_t character);
  /// The advances of a line's characters together, in pixels.
  int widthOf(const QString& line);

 private:
  Glyph render(char32_t character) const;

  std::unique_ptr<FT_FaceRec_, void (*)(FT_Face)> face_;
  bool doubled_;
  int ascent_ = 0;
  int cellHeight_ = 0;
  std::unordered_map<char32_t, Glyph> glyphs_;
};

/// The faces of the simulated screens, opened when first asked for.
class Faces {
 public:
  /// Gives the path of a face file, or nothing when it is not installed.
  using Finder = std::function<QString(const QString& fileName)>;

  explicit Faces(Finder find);

  /// The installed faces, one set for each thread.
  static Faces& shared();

  /// A face by its name on the phone and its size in points. When its file is missing the closest
  /// installed face serves, and the first time a line on standard error tells so.
  SizedFace& face(const QString& name, int points, bool bold);

 private:
  FT_Face open(const QString& name, int points, bool bold, bool& doubled);
  FT_Face openSubstitute(const QString& name, int points, bool bold);

  std::unique_ptr<FT_LibraryRec_, void (*)(FT_Library)> library_;
  Finder find_;
  std::map<std::tuple<QString, int, bool>, SizedFace> faces_;
  bool toldMissing_ = false;
};

}  // namespace quillane

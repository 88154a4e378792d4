// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview/faces.h"

#include "preview/platform.h"

#include <QFile>
#include <QRegularExpression>

#include FT_TRUETYPE_TABLES_H

#include <cmath>
#include <cstddef>
#include <cstdio>
#include <utility>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

/// The files behind a face's name. One without a bold file is emboldened by painting it twice; one
/// that is made of strikes alone has no other sizes.
struct FaceFiles {
  QLatin1String name;
  QLatin1String regular;
  QLatin1String bold;
  bool strikesOnly;
};

constexpr FaceFiles kFaces[] = {
    {"Tahoma"_L1, "tahoma.ttf"_L1, "tahomabd.ttf"_L1, false},
    {"MS Sans Serif"_L1, "ms_sans_serif.ttf"_L1, QLatin1String(), true},
    {"Small Fonts"_L1, "tahoma.ttf"_L1, QLatin1String(), false},
};

const FaceFiles& filesOf(const QString& name) {
  for (const FaceFiles& files : kFaces)
    if (files.name == name) return files;
  return kFaces[0];
}

/// Pixels of the em square at 96 dots per inch.
unsigned pixelSize(int points) {
  return static_cast<unsigned>(std::nearbyint(qBound(1, points, 255) * 96 / 72.0));
}

/// Cell height of the strike that stands for a size in points.
unsigned strikeSize(int points) {
  return points <= 8 ? 13 : 16;
}

int scaled(int units, const FT_FaceRec_& face) {
  return static_cast<int>(
      std::lround(static_cast<double>(units) * face.size->metrics.y_ppem / face.units_per_EM));
}

bool isSet(const FT_Bitmap& bitmap, int row, int column) {
  const unsigned char* line = bitmap.buffer + static_cast<std::ptrdiff_t>(row) * bitmap.pitch;
  if (bitmap.pixel_mode == FT_PIXEL_MODE_MONO)
    return ((line[column / 8] >> (7 - column % 8)) & 1) != 0;
  return bitmap.pixel_mode == FT_PIXEL_MODE_GRAY && line[column] >= 128;
}

void freeFace(FT_Face face) {
  FT_Done_Face(face);
}

void freeLibrary(FT_Library library) {
  FT_Done_FreeType(library);
}

FT_Library newLibrary() {
  FT_Library library = nullptr;
  return FT_Init_FreeType(&library) == 0 ? library : nullptr;
}

/// Opens a face at a size in pixels; null when the file cannot serve.
FT_Face openFace(FT_Library library, const QString& path, unsigned pixels) {
  FT_Face face = nullptr;
  if (library == nullptr || path.isEmpty()) return nullptr;
  if (FT_New_Face(library, QFile::encodeName(path).constData(), 0, &face) != 0) return nullptr;
  if (face->units_per_EM > 0 && FT_Set_Pixel_Sizes(face, 0, pixels) == 0) return face;
  FT_Done_Face(face);
  return nullptr;
}

}  // namespace

QString freeTypeVersion() {
  const std::unique_ptr<FT_LibraryRec_, void (*)(FT_Library)> library(newLibrary(), freeLibrary);
  int major = 0;
  int minor = 0;
  int patch = 0;
  FT_Library_Version(library.get(), &major, &minor, &patch);
  return u"%1.%2.%3"_s.arg(major).arg(minor).arg(patch);
}

QStringList splitLines(const QString& text) {
  if (!text.contains(u'\r') && !text.contains(u'\n')) return {text};
  static const QRegularExpression lineEnd(u"\r\n|\r|\n"_s);
  return text.split(lineEnd);
}

SizedFace::SizedFace(FT_Face face, bool doubled) : face_(face, &freeFace), doubled_(doubled) {
  if (face_ == nullptr) return;
  const auto* metrics = static_cast<TT_OS2*>(FT_Get_Sfnt_Table(face, FT_SFNT_OS2));
  ascent_ = scaled(metrics != nullptr ? metrics->usWinAscent : face->ascender, *face);
  cellHeight_ =
      ascent_ + scaled(metrics != nullptr ? metrics->usWinDescent : -face->descender, *face);
}

int SizedFace::widthOf(const QString& line) {
  int width = 0;
  for (const char32_t character : line.toUcs4())
    width += glyph(character).advance;
  return width;
}

const Glyph& SizedFace::glyph(char32_t character) {
  if (const auto known = glyphs_.find(character); known != glyphs_.end()) return known->second;
  return glyphs_.emplace(character, render(character)).first->second;
}

Glyph SizedFace::render(char32_t character) const {
  Glyph glyph;
  if (face_ == nullptr) return glyph;
  if (FT_Load_Char(face_.get(), character, FT_LOAD_TARGET_MONO) != 0) return glyph;
  const FT_GlyphSlot slot = face_->glyph;
  if (slot->format == FT_GLYPH_FORMAT_BITMAP) {
    glyph.advance = static_cast<int>(slot->advance.x / 64);
  } else {
    glyph.advance =
        static_cast<int>(std::lround(static_cast<double>(slot->linearHoriAdvance) / 65536));
    if (FT_Render_Glyph(slot, FT_RENDER_MODE_MONO) != 0) return glyph;
  }

  const int rows = static_cast<int>(slot->bitmap.rows);
  const int columns = static_cast<int>(slot->bitmap.width);
  const int extra = doubled_ ? 1 : 0;
  glyph.advance += extra;
  glyph.box = QRect(slot->bitmap_left, ascent_ - slot->bitmap_top, columns + extra, rows);
  for (int row = 0; row < rows; ++row)
    for (int column = 0; column < columns + extra; ++column) {
      const bool here = column < columns && isSet(slot->bitmap, row, column);
      const bool before = extra == 1 && column > 0 && isSet(slot->bitmap, row, column - 1);
      glyph.mask.push_back(here || before ? 1 : 0);
    }
  return glyph;
}

Faces::Faces(Finder find) : library_(newLibrary(), &freeLibrary), find_(std::move(find)) {}

Faces& Faces::shared() {
  // A cache of what the disk holds: it changes no result, and each thread has its own.
  thread_local Faces faces(&findFaceFile);
  return faces;
}

SizedFace& Faces::face(const QString& name, int points, bool bold) {
  const auto key = std::make_tuple(name, points, bold);
  if (const auto known = faces_.find(key); known != faces_.end()) return known->second;
  bool doubled = false;
  FT_Face face = open(name, points, bold, doubled);
  return faces_.try_emplace(key, face, doubled).first->second;
}

FT_Face Faces::open(const QString& name, int points, bool bold, bool& doubled) {
  const FaceFiles& files = filesOf(name);
  const bool ownBold = bold && !files.bold.isEmpty();
  const QString path = find_(ownBold ? files.bold : files.regular);
  const unsigned pixels = files.strikesOnly ? strikeSize(points) : pixelSize(points);
  doubled = bold && !ownBold;
  if (FT_Face face = openFace(library_.get(), path, pixels)) return face;
  doubled = false;
  return openSubstitute(files.name, points, bold);
}

FT_Face Faces::openSubstitute(const QString& name, int points, bool bold) {
  if (!toldMissing_)
    std::fputs("The phones' typefaces are missing; install the package fonts-wine.\n", stderr);
  toldMissing_ = true;
  return openFace(library_.get(), closestFaceFile(name, bold), pixelSize(points));
}

}  // namespace quillane

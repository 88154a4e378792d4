// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preview/picture.h"
#include "preview/surface.h"
#include "shell/language.h"
#include "shell/settings.h"
#include "shell/state.h"
#include "support/stillworld.h"
#include "support/tempfolder.h"

#include <map>
#include <string>
#include <vector>

namespace quillane {

constexpr QRgb kMargin = 0xFFD4D0C8;  ///< The surface's own back colour.
constexpr QRgb kRed = 0xFFFF0000;
constexpr QRgb kGreen = 0xFF00FF00;

/// Where a part of a picture has pixels of a colour; null for nowhere.
inline QRect boundsOf(const QImage& image, QRgb color, const QRect& part) {
  QRect bounds;
  for (int y = part.top(); y <= part.bottom(); ++y)
    for (int x = part.left(); x <= part.right(); ++x)
      if (image.pixel(x, y) == color) bounds |= QRect(x, y, 1, 1);
  return bounds;
}

inline QRect boundsOf(const QImage& image, QRgb color) {
  return boundsOf(image, color, image.rect());
}

/// A picture as rows of letters: "." for the surface's own back colour, "#" black, "r", "g", "b"
/// the pure colours and "?" any other.
inline std::vector<std::string> lettersOf(const QImage& image) {
  const std::map<QRgb, char> letters{
      {kMargin, '.'}, {0xFF000000, '#'}, {kRed, 'r'}, {kGreen, 'g'}, {0xFF0000FF, 'b'}};
  std::vector<std::string> rows;
  for (int y = 0; y < image.height(); ++y) {
    std::string& row = rows.emplace_back();
    for (int x = 0; x < image.width(); ++x) {
      const auto known = letters.find(image.pixel(x, y));
      row += known == letters.end() ? '?' : known->second;
    }
  }
  return rows;
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

/// Gives an engine the texts and the state of a phone at rest that a new user sees, or the texts of
/// a language file.
template <class Engine>
void fillPhone(Engine& engine, const QString& languageFile = {}) {
  PublicState state;
  state.LanguageFile2 = state.LanguageFile3G = languageFile;
  const auto report = [](const Fault& fault) { ADD_FAILURE() << fault.what(); };
  if constexpr (requires { engine.DrawImages; })
    InitPreview3G(engine, state, MemorySettings(), report);
  else
    InitPreview2(engine, state, MemorySettings(), report);
}

/// An engine with a surface to paint on, and a folder for its pictures.
template <class Engine>
class EngineTest : public TempFolder {
 protected:
  explicit EngineTest(QSize size) : surface(size) { engine.setSurface(surface); }

  QRgb pixel(int x, int y) const { return surface.image().pixel(x, y); }
  QImage part(const QRect& rect) const { return surface.image().copy(rect); }
  QString save(const QImage& image) const {
    QString file = path("image.bmp");
    EXPECT_TRUE(image.save(file));
    return file;
  }

  StillWorld world;
  Engine engine{world};
  Surface surface;
};

}  // namespace quillane

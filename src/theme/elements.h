// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLatin1String>
#include <QSize>
#include <QStringView>

#include <cstdint>
#include <span>

namespace quillane {

/// The two phone generations; the number is the one kept in `ThemeGeneration`.
enum class Generation : std::uint8_t { Two = 1, ThreeG = 2 };

/// Indexes of generation 2's colours and image slots: the engine properties, in writer order.
namespace gen2 {
enum Color : int {
#define QUILLANE_COLOR(property, ...) property,
#define QUILLANE_IMAGE(...)
#include "theme/generation2.def"
};
enum Image : int {
#define QUILLANE_COLOR(...)
#define QUILLANE_IMAGE(property, ...) property,
#include "theme/generation2.def"
};
}  // namespace gen2

/// The same for 3G.
namespace gen3g {
enum Color : int {
#define QUILLANE_COLOR(property, ...) property,
#define QUILLANE_IMAGE(...)
#include "theme/generation3g.def"
};
enum Image : int {
#define QUILLANE_COLOR(...)
#define QUILLANE_IMAGE(property, ...) property,
#include "theme/generation3g.def"
};
}  // namespace gen3g

/// A colour of a theme: `<element Color="0xRRGGBB"/>`.
struct ColorElement {
  QLatin1String element;   ///< Name on the wire.
  QLatin1String property;  ///< Name of the engine property.
  QLatin1String standard;  ///< RRGGBB that `DefaultColors` assigns.
};

/// How the size of a slot binds a picture that is chosen for it.
enum class SizeRule : std::uint8_t { Exact, AtMost };

/// An image slot of a theme: `<element Source="file.gif"/>`.
struct ImageElement {
  QLatin1String element;       ///< Name on the wire.
  QLatin1String property;      ///< Name of the engine property.
  int state;                   ///< Index in `ImageState`, 0 to 12.
  int loadRank;                ///< Place among the images when a theme is read.
  int readAfter;               ///< Index of the colour after which it is read.
  SizeRule rule;               ///< How `size` binds a picture.
  QLatin1String missingWords;  ///< Begin of the message for a file that is not there.
  QSize size;                  ///< In pixels.
  QLatin1String word;  ///< What messages about a chosen picture call the slot: "title small".
};

/// All that a generation's XML can hold. Rows stand in the order in which they are written.
struct ThemeSchema {
  Generation generation;
  QLatin1String root;
  std::span<const ColorElement> colors;
  std::span<const ImageElement> images;
  /// What an empty colour becomes in the engine: its default (generation 2), or nothing (3G).
  bool emptyColorTakesDefault;
  /// Whether an image may be a JPEG; a GIF always may.
  bool takesJpeg;
};

/// The schema of a generation; it lives as long as the program.
const ThemeSchema& schemaOf(Generation generation);

/// Tells the generation of a theme text: 3G exactly when it holds "Sony_Ericsson_theme" anywhere.
Generation generationOf(QStringView themeXml);

}  // namespace quillane

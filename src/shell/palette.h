// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "theme/color.h"

#include <QByteArray>
#include <QString>

#include <vector>

namespace quillane {

/// Colours to choose from, in the order in which they are shown; one at least.
using Palette = std::vector<ColorValue>;

/// The most colours that a palette has.
inline constexpr std::size_t kMostPaletteColors = 256;

/// Reads a palette by what the bytes are: the text form of `.pal`, its RIFF form, or `.gpl`.
/// Throws `Fault`: InvalidPaletteFile when they are none of these, InvalidColorCount for a wrong
/// number of colours, InvalidPalette for entries that are no colours.
Palette readPalette(QByteArrayView bytes);

/// The same of a file, which has at most a mebibyte. Throws what reading a file throws, too.
Palette loadPalette(const QString& path);

/// Writes the text form of `.pal` in place of what was there. Throws `Fault`.
void savePalette(const QString& path, const Palette& palette);

/// The palette that the program brings along: sixteen rows of sixteen, greys in the first column
/// and a hue in each other, from tints over the pure colour and its shades to muted tones.
const Palette& builtInPalette();

}  // namespace quillane

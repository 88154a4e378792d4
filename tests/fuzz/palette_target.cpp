// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/targets.h"
#include "shell/palette.h"
#include "theme/fault.h"

#include <algorithm>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

bool tellsOfAPalette(FaultNumber number) {
  return number == FaultNumber::InvalidPaletteFile || number == FaultNumber::InvalidColorCount ||
         number == FaultNumber::InvalidPalette;
}

}  // namespace

void paletteTarget(QByteArrayView bytes) {
  static const Scratch scratch;
  Palette palette;
  try {
    palette = readPalette(bytes);
  } catch (const Fault& fault) {
    expect(tellsOfAPalette(fault.number()), "a fault of a palette's own");
    return;
  }
  expect(!palette.empty() && palette.size() <= kMostPaletteColors, "1 to 256 colours");
  expect(std::all_of(palette.begin(), palette.end(),
                     [](ColorValue color) { return color <= 0xFFFFFF; }),
         "colours of 24 bits");
  const QString saved = scratch.path(u"saved.pal"_s);
  savePalette(saved, palette);
  expect(loadPalette(saved) == palette, "a saved palette is read as it was");
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preview/screens.h"
#include "preview/surface.h"
#include "theme/fault.h"

namespace quillane {

inline auto screensOf(const clsVistrel&) {
  return screensOfGeneration2();
}
inline auto screensOf(const clsVistrel3G&) {
  return screensOf3G();
}

/// Paints every screen of an engine; one that ends in a fault does not keep the others from it.
template <class Engine>
void paintAll(Engine& engine) {
  constexpr bool isSecond = std::is_same_v<Engine, clsVistrel>;
  for (const Screen<Engine>& screen : screensOf(engine)) {
    Surface surface(isSecond ? Surface::kSize2 : Surface::kSize3G);
    engine.setSurface(surface);
    skipOnFault([&] { screen.paint(engine); });
  }
}

}  // namespace quillane

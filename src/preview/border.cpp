// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview/border.h"

#include "preview/surface.h"

namespace quillane {

QImage framedScreen(const Surface& surface, Generation generation, Border border) {
  const QRect screen = generation == Generation::Two ? QRect(5, 5, 101, 80) : QRect(5, 5, 128, 160);
  switch (border) {
    case Border::None:
      return surface.image().copy(screen);
    case Border::Single:
      return surface.image().copy(screen.adjusted(-1, -1, 1, 1));
    case Border::Default:
      break;
  }
  return surface.image().copy();
}

}  // namespace quillane

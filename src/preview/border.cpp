// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview/border.h"

namespace quillane {

QImage framedScreen(const QImage& surface, Generation generation, Border border) {
  const QRect screen = generation == Generation::Two ? QRect(5, 5, 101, 80) : QRect(5, 5, 128, 160);
  switch (border) {
    case Border::None:
      return surface.copy(screen);
    case Border::Single:
      return surface.copy(screen.adjusted(-1, -1, 1, 1));
    case Border::Default:
      break;
  }
  return surface.copy();
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "theme/elements.h"

#include <QImage>

#include <cstdint>

namespace quillane {

class Surface;

/// How much of the margin around the simulated screen a picture of it keeps.
enum class Border : std::uint8_t {
  None,     ///< The screen alone.
  Single,   ///< One pixel on each side.
  Default,  ///< The whole surface.
};

/// A copy of the screen on a surface with so much of its margin.
QImage framedScreen(const Surface& surface, Generation generation, Border border);

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "theme/elements.h"

#include <QImage>

#include <cstdint>

namespace quillane {

/// How much of the margin around the simulated screen a picture of it keeps.
enum class Border : std::uint8_t {
  None,     ///< The screen alone.
  Single,   ///< One pixel on each side.
  Default,  ///< The whole surface.
};

/// A copy of the screen in the picture of a surface, with so much of its margin.
QImage framedScreen(const QImage& surface, Generation generation, Border border);

}  // namespace quillane

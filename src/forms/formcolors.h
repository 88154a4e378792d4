// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "theme/color.h"

#include <QColor>

namespace quillane {

/// The colour of a widget for a colour value.
inline QColor colorOf(ColorValue value) {
  return {RedOf(value), GreenOf(value), BlueOf(value)};
}

/// The colour value of a widget's colour.
inline ColorValue colorValueOf(const QColor& color) {
  return static_cast<ColorValue>(color.red() | color.green() << 8 | color.blue() << 16);
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <cstdint>

namespace quillane {

/// A colour value as the primitives take it: 0x00BBGGRR.
using ColorValue = std::uint32_t;

/// Turns a colour value given as decimal text into RRGGBB, upper-case digits.
/// Of a value with more than six hexadecimal digits the first six count. Throws `Fault` (BadNumber)
/// when the text is no whole number of 32 bits.
QString ColorToHtml(const QString& value);

/// A colour value as RRGGBB, upper-case digits.
QString htmlOf(ColorValue value);

/// Pads `html` in place on the right with "0" to six places and returns "&HBBGGRR", a text that
/// reads as a colour value. Of a longer text the first six digits count; an empty one is black.
QString HtmlToColor(QString& html);

/// The number that `HtmlToColor` of an RRGGBB text stands for; the text itself stays as it is.
/// Throws `Fault` (BadNumber) when the six places are no hexadecimal digits.
ColorValue colorValueOf(QString html);

/// Parts of a colour value, each 0 to 255.
std::int16_t RedOf(ColorValue value);
std::int16_t GreenOf(ColorValue value);
std::int16_t BlueOf(ColorValue value);

}  // namespace quillane

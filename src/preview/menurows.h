// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace quillane {

/// How the flags at the begin of a list's entry want its row: "H" anywhere in them highlights it,
/// "HD", "H-" and "-D" decide the colour of its text.
enum class RowText { Normal, Disabled, Highlighted, HighlightedDisabled };

bool isHighlighted(const QString& flags);
RowText rowTextOf(const QString& flags);

/// The colours of a list's rows, as indexes into the theme's colours.
template <class Color>
struct RowColors {
  Color highlight;
  Color text;
  Color disabledText;
  Color highlightText;
  Color highlightDisabledText;

  Color of(RowText look) const {
    switch (look) {
      case RowText::Disabled:
        return disabledText;
      case RowText::Highlighted:
        return highlightText;
      case RowText::HighlightedDisabled:
        return highlightDisabledText;
      case RowText::Normal:
        break;
    }
    return text;
  }
};

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace quillane {

/// The two letters at the beginning of a list's entry that tell how its row looks.
inline QString flagsOf(const QString& entry) {
  return entry.left(2);
}

inline bool isHighlighted(const QString& flags) {
  return flags.contains(u'H');
}

/// The colours of a list's rows, as indexes into the theme's colours.
template <class Color>
struct RowColors {
  Color highlight;
  Color text;
  Color disabledText;
  Color highlightText;
  Color highlightDisabledText;

  Color textOf(const QString& flags) const {
    if (flags.contains(QLatin1String("HD"))) return highlightDisabledText;
    if (flags.contains(QLatin1String("H-"))) return highlightText;
    if (flags.contains(QLatin1String("-D"))) return disabledText;
    return text;
  }
};

}  // namespace quillane

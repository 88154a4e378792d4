// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview/menurows.h"

namespace quillane {

using namespace Qt::StringLiterals;

bool isHighlighted(const QString& flags) {
  return flags.contains(u'H');
}

RowText rowTextOf(const QString& flags) {
  if (flags.contains("HD"_L1)) return RowText::HighlightedDisabled;
  if (flags.contains("H-"_L1)) return RowText::Highlighted;
  if (flags.contains("-D"_L1)) return RowText::Disabled;
  return RowText::Normal;
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preview/menurows.h"
#include "theme/values.h"

#include <QStringList>

namespace quillane {

class PaintSteps;

/// Where the rows of a list with shortcut digits lie; pixels and points.
struct DigitRows {
  int count;
  int labelTop;  ///< Of the first row, as the next.
  int digitTop;
  int step;             ///< From row to row.
  int highlightHeight;  ///< From the digit's top; the highlight begins at the label's.
  int left;             ///< Of the highlight.
  int right;
  int digitLeft;
  int labelLeft;
  int labelWidth;
  int fontSize;  ///< Of the labels.
  bool bold;
};

/// Paints a list whose entries are two flags, a digit and a label. Where entries are missing the
/// last one is painted again.
void paintDigitRows(PaintSteps& steps, const ThemeValues& theme, const QStringList& entries,
                    const RowColors<gen2::Color>& colors, const DigitRows& rows);

}  // namespace quillane

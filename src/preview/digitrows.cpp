// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview/digitrows.h"

#include "preview/paintsteps.h"

namespace quillane {

void paintDigitRows(PaintSteps& steps, const ThemeValues& theme, const QStringList& entries,
                    const RowColors<gen2::Color>& colors, const DigitRows& rows) {
  steps.font.Alignment = AlignLeft;
  QString entry;
  for (int row = 0; row < rows.count; ++row) {
    const int labelTop = rows.labelTop + row * rows.step;
    const int digitTop = rows.digitTop + row * rows.step;
    entry = entries.value(row, entry);
    const QString flags = flagsOf(entry);

    if (isHighlighted(flags))
      steps.fill(theme.color(colors.highlight), rows.left, labelTop, rows.right,
                 digitTop + rows.highlightHeight);
    steps.setTextColor(theme.color(colors.textOf(flags)));
    steps.font.Size = 7;
    steps.font.Bold = false;
    steps.text(entry.mid(2, 1), rows.digitLeft, digitTop, 5);
    steps.font.Size = rows.fontSize;
    steps.font.Bold = rows.bold;
    steps.text(entry.mid(3), rows.labelLeft, labelTop, rows.labelWidth);
  }
}

}  // namespace quillane

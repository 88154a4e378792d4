// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview/modapigraphics.h"
#include "support/probes.h"

#include <QLine>
#include <gtest/gtest.h>

namespace quillane {

namespace {

TEST(LineTest, StopsBeforeItsEnd) {
  const struct {
    QLine line;
    std::vector<std::string> rows;
  } table[] = {
      {{1, 1, 3, 1}, {".....", ".rr..", ".....", "....."}},
      {{3, 1, 1, 1}, {".....", "..rr.", ".....", "....."}},
      {{1, 3, 1, 1}, {".....", ".....", ".r...", ".r..."}},
      {{1, 1, 2, 2}, {".....", ".r...", ".....", "....."}},
      {{1, 1, 1, 1}, {".....", ".....", ".....", "....."}},
      {{0, 0, 2, 4}, {"r....", "r....", ".r...", ".r..."}},
      {{-3, 2, 9, 2}, {".....", ".....", "rrrrr", "....."}},
  };
  for (const auto& row : table) {
    Surface surface(QSize(5, 4));
    DrawLine(surface, row.line.x1(), row.line.y1(), row.line.x2(), row.line.y2(), 0x0000FF);
    EXPECT_EQ(lettersOf(surface.image()), row.rows) << row.line.x1() << ' ' << row.line.y2();
  }
}

TEST(LineTest, TheSurfaceMeasuresWidthsInItsOwnFont) {
  const Surface surface(QSize(1, 1));
  EXPECT_EQ(surface.TextWidth(QStringLiteral("W |")), 11 + 3 + 2);
  EXPECT_EQ(surface.TextWidth(QStringLiteral("i\nW")), 11);
}

}  // namespace

}  // namespace quillane

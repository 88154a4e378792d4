// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview/faces.h"
#include "preview/modapigraphics.h"
#include "preview/platform.h"
#include "preview/surface.h"
#include "support/letters.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace quillane {
namespace {

using Rows = std::vector<std::string>;

FontSpec tahomaBold(int alignment = AlignLeft) {
  return {QStringLiteral("Tahoma"), alignment, true, 8, 0};
}

/// A text painted on a surface of its own from the top left corner.
Rows painted(const QString& text, const FontSpec& font, QSize size) {
  Surface surface(size);
  DrawTextRect(surface, text, 0, 0, size.height(), size.width(), font);
  return lettersOf(surface.image());
}

TEST(TextTest, TheSurfaceMeasuresInItsOwnFont) {
  Surface surface(QSize(1, 1));
  for (const auto& [points, height] : {std::pair{7, 13}, {8, 13}, {9, 16}}) {
    surface.setFontSize(points);
    EXPECT_EQ(surface.TextHeight(QStringLiteral("|")), height);
    EXPECT_EQ(surface.TextHeight(QString()), height);
    EXPECT_EQ(surface.TextHeight(QStringLiteral("a\r\nb\n")), 3 * height);
  }
}

TEST(TextTest, AmpersandsAndLineEnds) {
  const FontSpec font = tahomaBold();
  const QSize size(24, 30);
  const auto same = [&](const char* one, const char* other) {
    EXPECT_EQ(painted(QString::fromUtf8(one), font, size),
              painted(QString::fromUtf8(other), font, size))
        << one;
  };
  same("a&", "a");
  same("a\rb", "a\nb");
  same("a\r\nb", "a\nb");
  same("a&\nb", "a\nb");
  same("a&&&&", "a&&&&&");

  // The line lies below the letter over its whole advance, one row under the baseline.
  Rows plain = painted(QStringLiteral("Ag"), font, QSize(15, 14));
  plain[12].replace(0, 8, "########");
  EXPECT_EQ(painted(QStringLiteral("&Ag"), font, QSize(15, 14)), plain);

  // "&&" is a letter without a line, and the second line begins one cell lower.
  const Rows twice = painted(QStringLiteral("&&\n&&"), font, QSize(12, 26));
  EXPECT_EQ(Rows(twice.begin(), twice.begin() + 13), Rows(twice.begin() + 13, twice.end()));
  EXPECT_EQ(twice[12], "............");
  EXPECT_NE(twice[8], "............");
}

/// Columns from the first to the last that a text colours, on a surface 30 wide.
std::pair<int, int> extent(const QString& text, int alignment, int left, int width) {
  Surface surface(QSize(30, 13));
  DrawTextRect(surface, text, left, 0, 13, width, tahomaBold(alignment));
  int first = 99;
  int last = -1;
  for (const std::string& row : lettersOf(surface.image()))
    for (int x = 0; x < 30; ++x)
      if (row[static_cast<std::size_t>(x)] == '#') {
        first = std::min(first, x);
        last = std::max(last, x);
      }
  return {first, last};
}

TEST(TextTest, AlignmentAndClip) {
  // An "A" colours 7 of its 8 columns.
  const struct {
    const char* name;
    const char* text;
    int alignment, left, width;
    std::pair<int, int> columns;
  } table[] = {
      {"left", "A", AlignLeft, 4, 20, {4, 10}},
      {"anything else is left", "A", 0, 4, 20, {4, 10}},
      {"right", "A", AlignRight, 4, 20, {16, 22}},
      {"centre", "A", AlignCentre, 4, 20, {10, 16}},
      {"centre, odd room goes right", "A", AlignCentre, 4, 21, {10, 16}},
      {"centre, odd place", "A", AlignCentre, 5, 20, {11, 17}},
      {"centre before the surface truncates towards zero", "A", AlignCentre, -2, 9, {0, 5}},
      {"centre, too wide, truncates towards zero", "AAA", AlignCentre, 0, 9, {1, 7}},
      {"right, too wide", "AAA", AlignRight, 0, 9, {1, 7}},
      {"left, cut at the right", "AA", AlignLeft, 0, 5, {0, 4}},
      {"cut at the surface", "AAAA", AlignLeft, 20, 40, {20, 29}},
      {"no room", "A", AlignLeft, 5, 0, {99, -1}},
      {"negative room", "A", AlignCentre, 9, -4, {99, -1}},
      {"beside the surface", "A", AlignLeft, 30, 9, {99, -1}},
  };
  for (const auto& row : table)
    EXPECT_EQ(extent(QString::fromUtf8(row.text), row.alignment, row.left, row.width), row.columns)
        << row.name;

  // Cut at the rectangle's top and bottom: rows 3 to 10 hold the letter.
  Surface surface(QSize(8, 6));
  DrawTextRect(surface, QStringLiteral("A"), 0, -5, 9, 8, tahomaBold());
  EXPECT_THAT(lettersOf(surface.image()), testing::ElementsAre(".##.##..", ".##.##..", ".##.##..",
                                                               "#######.", "........", "........"));
}

TEST(TextTest, MissingGlyphIsTheFacesBox) {
  const FontSpec font{QStringLiteral("Tahoma"), AlignLeft, false, 8, 0};
  const Rows box = painted(QString(QChar(0x4E00)), font, QSize(11, 13));
  EXPECT_EQ(box[3], ".#########.");
  EXPECT_EQ(box[5], ".#.......#.");
  EXPECT_EQ(painted(QString::fromUcs4(U"\U0001F600"), font, QSize(11, 13)), box);
}

TEST(TextTest, WithoutTheFacesAnotherServesAndALineTellsSoOnce) {
  testing::internal::CaptureStderr();
  Faces faces([](const QString&) { return QString(); });
  faces.face(QStringLiteral("Tahoma"), 8, false).glyph(U'A');
  SizedFace& sans = faces.face(QStringLiteral("MS Sans Serif"), 8, true);
  EXPECT_GT(sans.glyph(U'A').advance, 0);
  const std::string told = testing::internal::GetCapturedStderr();
  EXPECT_NE(told.find("fonts-wine"), std::string::npos);
  EXPECT_EQ(std::count(told.begin(), told.end(), '\n'), 1);

  EXPECT_EQ(findFaceFile(QStringLiteral("no such face.ttf")), QString());
  Faces broken([](const QString&) { return QStringLiteral("/dev/null"); });
  testing::internal::CaptureStderr();
  broken.face(QStringLiteral("Tahoma"), 8, true).glyph(U'A');
  EXPECT_NE(testing::internal::GetCapturedStderr(), "");
}

}  // namespace
}  // namespace quillane

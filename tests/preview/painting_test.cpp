// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview/border.h"
#include "preview/faces.h"
#include "preview/modapigraphics.h"
#include "preview/platform.h"
#include "support/probes.h"

#include <QLine>
#include <gmock/gmock.h>

#include <algorithm>

namespace quillane {

namespace {

using testing::ElementsAre;
using Rows = std::vector<std::string>;

constexpr ColorValue kRed = 0x0000FF;

TEST(PaintingTest, RectanglesExcludeRightAndBottomAndClip) {
  Surface surface(QSize(6, 4));
  DrawFilledRect(surface, kRed, 1, 1, 3, 3);
  DrawFilledRect(surface, 0xFF0000, 3, 0, 3, 4);  // Nothing: no width.
  DrawFilledRect(surface, 0xFF0000, 3, 3, 2, 4);  // Nothing: the wrong way round.
  EXPECT_THAT(lettersOf(surface.image()), ElementsAre("......", ".rr...", ".rr...", "......"));

  surface.Cls();
  DrawFilledRect(surface, kRed, -2, -9, 1, 1);
  DrawFilledRect(surface, 0x00FF00, 5, 3, 99, 99);
  DrawFilledRect(surface, 0xFF0000, 6, 0, 8, 4);
  EXPECT_THAT(lettersOf(surface.image()), ElementsAre("r.....", "......", "......", ".....g"));
}

TEST(PaintingTest, LinesStopBeforeTheirEnd) {
  const std::pair<QLine, Rows> table[] = {{{1, 1, 3, 1}, {".....", ".rr..", ".....", "....."}},
                                          {{3, 1, 1, 1}, {".....", "..rr.", ".....", "....."}},
                                          {{1, 3, 1, 1}, {".....", ".....", ".r...", ".r..."}},
                                          {{1, 1, 2, 2}, {".....", ".r...", ".....", "....."}},
                                          {{1, 1, 1, 1}, {".....", ".....", ".....", "....."}},
                                          {{0, 0, 2, 4}, {"r....", "r....", ".r...", ".r..."}},
                                          {{-3, 2, 9, 2}, {".....", ".....", "rrrrr", "....."}}};
  for (const auto& [line, rows] : table) {
    Surface surface(QSize(5, 4));
    DrawLine(surface, line.x1(), line.y1(), line.x2(), line.y2(), kRed);
    EXPECT_EQ(lettersOf(surface.image()), rows) << line.x1() << ' ' << line.y2();
  }
}

/// Three columns red, green, blue; two rows, the lower one with a hole in the middle.
Picture flag() {
  QImage image(3, 2, QImage::Format_ARGB32);
  for (int i = 0; i < 6; ++i)
    image.setPixel(i % 3, i / 3, i == 4 ? 0x0000FF00 : 0xFF000000 | 0xFF0000U >> i % 3 * 8);
  return Picture(image);
}

TEST(PaintingTest, PicturesLandOnTheNearestPixelAndClip) {
  const std::tuple<const char*, QPointF, QRectF, Rows> table[] = {
      {"half goes up", {0.5, 0.5}, {0, 0, 3, 2}, {".....", ".rgb.", ".r.b."}},
      {"below half stays", {1.49, 0}, {0, 0, 3, 2}, {".rgb.", ".r.b.", "....."}},
      {"negative half goes up", {-0.5, 0}, {0, 0, 3, 2}, {"rgb..", "r.b..", "....."}},
      {"left and top edge", {-2, -1}, {0, 0, 3, 2}, {"b....", ".....", "....."}},
      {"right and bottom edge", {4, 2}, {0, 0, 3, 2}, {".....", ".....", "....r"}},
      {"outside", {5, 0}, {0, 0, 3, 2}, {".....", ".....", "....."}},
      {"a part", {1, 1}, {1, 0, 1, 1}, {".....", ".g...", "....."}},
      {"its half goes up", {1, 1}, {0.5, 0, 2, 1}, {".....", ".gb..", "....."}},
      {"beyond right and bottom", {1, 1}, {2, 1, 9, 9}, {".....", ".b...", "....."}},
      {"before left and top", {1, 1}, {-1, -1, 3, 2}, {".....", ".....", "..rg."}},
      {"negative half is the origin", {1, 1}, {-0.5, 0, 2, 1}, {".....", ".rg..", "....."}},
      {"no part", {1, 1}, {3, 0, 2, 2}, {".....", ".....", "....."}}};
  for (const auto& [name, at, source, rows] : table) {
    Surface surface(QSize(5, 3));
    surface.PaintPicture(Picture(), 0, 0);
    surface.PaintPicture(flag(), at.x(), at.y(), source.x(), source.y(), source.width(),
                         source.height());
    EXPECT_EQ(lettersOf(surface.image()), rows) << name;
  }
}

TEST(PaintingTest, BordersKeepNoneOneOrAllOfTheMargin) {
  for (const auto& [border, margin] :
       {std::pair{Border::None, 0}, {Border::Single, 1}, {Border::Default, 5}})
    for (const auto& [generation, size] :
         {std::pair{Generation::Two, QSize(101, 80)}, {Generation::ThreeG, QSize(128, 160)}}) {
      Surface surface(generation == Generation::Two ? Surface::kSize2 : Surface::kSize3G);
      surface.image().setPixel(5, 5, 0xFF0000);
      const QImage framed = framedScreen(surface.image(), generation, border);
      EXPECT_EQ(framed.size(), border == Border::Default ? surface.image().size()
                                                         : size.grownBy(QMargins() + margin));
      EXPECT_EQ(boundsOf(framed, 0xFFFF0000), QRect(margin, margin, 1, 1));
    }
}

FontSpec tahomaBold(int alignment = AlignLeft) {
  return {"Tahoma", alignment, true, 8, 0};
}

/// A text painted on a surface of its own from the top left corner.
Rows painted(const QString& text, const FontSpec& font, QSize size) {
  Surface surface(size);
  DrawTextRect(surface, text, 0, 0, size.height(), size.width(), font);
  return lettersOf(surface.image());
}

TEST(PaintingTest, TheSurfaceMeasuresInItsOwnFont) {
  Surface surface(QSize(1, 1));
  for (const auto& [points, height] : {std::pair{7, 13}, {8, 13}, {9, 16}}) {
    surface.setFontSize(points);
    EXPECT_EQ(surface.TextHeight(QString()), height);
    EXPECT_EQ(surface.TextHeight("a\r\nb\n"), 3 * height);
  }
  const Surface fresh(QSize(1, 1));
  EXPECT_EQ(fresh.TextWidth("W |"), 11 + 3 + 2);
  EXPECT_EQ(fresh.TextWidth("i\nW"), 11);
}

TEST(PaintingTest, AmpersandsAndLineEnds) {
  const char* const same[][2] = {
      {"a&", "a"}, {"a\rb", "a\nb"}, {"a\r\nb", "a\nb"}, {"a&\nb", "a\nb"}, {"a&&&&", "a&&&&&"}};
  for (const auto& [one, other] : same)
    EXPECT_EQ(painted(one, tahomaBold(), {24, 30}), painted(other, tahomaBold(), {24, 30})) << one;
}

TEST(PaintingTest, AlignmentAndClip) {
  // An "A" colours 7 of its 8 columns.
  // The last two are columns, -1 for none.
  const std::tuple<const char*, const char*, int, int, int, int, int> table[] = {
      {"left", "A", AlignLeft, 4, 20, 4, 10},
      {"anything else is left", "A", 0, 4, 20, 4, 10},
      {"right", "A", AlignRight, 4, 20, 16, 22},
      {"centre", "A", AlignCentre, 4, 20, 10, 16},
      {"centre before the surface truncates towards zero", "A", AlignCentre, -2, 9, 0, 5},
      {"centre, too wide, truncates towards zero", "AAA", AlignCentre, 0, 9, 1, 7},
      {"right, too wide", "AAA", AlignRight, 0, 9, 1, 7},
      {"cut at the surface", "AAAA", AlignLeft, 20, 40, 20, 29},
      {"no room", "A", AlignLeft, 5, 0, 0, -1},
      {"beside the surface", "A", AlignLeft, 30, 9, 0, -1}};
  for (const auto& [name, text, alignment, left, width, first, last] : table) {
    Surface wide(QSize(30, 13));
    DrawTextRect(wide, text, left, 0, 13, width, tahomaBold(alignment));
    const QRect bounds = boundsOf(wide.image(), 0xFF000000);
    EXPECT_EQ(bounds.left(), first) << name;
    EXPECT_EQ(bounds.right(), last) << name;
  }

  // Cut at the rectangle's top and bottom: rows 3 to 10 hold the letter.
  Surface surface(QSize(8, 6));
  DrawTextRect(surface, "A", 0, -5, 9, 8, tahomaBold());
  EXPECT_THAT(lettersOf(surface.image()),
              ElementsAre(".##.##..", ".##.##..", ".##.##..", "#######.", "........", "........"));
}

TEST(PaintingTest, MissingGlyphIsTheFacesBox) {
  const FontSpec font{"Tahoma", AlignLeft, false, 8, 0};
  const Rows box = painted(QString(QChar(0x4E00)), font, QSize(11, 13));
  EXPECT_EQ(box[3], ".#########.");
  EXPECT_EQ(box[5], ".#.......#.");
  EXPECT_EQ(painted(QString::fromUcs4(U"\U0001F600"), font, QSize(11, 13)), box);
}

TEST(PaintingTest, WithoutTheFacesAnotherServesAndALineTellsSoOnce) {
  testing::internal::CaptureStderr();
  Faces faces([](const QString&) { return QString(); });
  faces.face("Tahoma", 8, false).glyph(U'A');
  SizedFace& sans = faces.face("MS Sans Serif", 8, true);
  EXPECT_GT(sans.glyph(U'A').advance, 0);
  const std::string told = testing::internal::GetCapturedStderr();
  EXPECT_NE(told.find("fonts-wine"), std::string::npos);
  EXPECT_EQ(std::count(told.begin(), told.end(), '\n'), 1);

  EXPECT_EQ(findFaceFile("no such face.ttf"), QString());
  Faces broken([](const QString&) { return "/dev/null"; });
  testing::internal::CaptureStderr();
  broken.face("Tahoma", 8, true).glyph(U'A');
  EXPECT_NE(testing::internal::GetCapturedStderr(), "");
}

}  // namespace

}  // namespace quillane

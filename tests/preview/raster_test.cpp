// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview/border.h"
#include "preview/modapigraphics.h"
#include "preview/surface.h"
#include "support/letters.h"

#include <gmock/gmock.h>

namespace quillane {
namespace {

using testing::ElementsAre;

constexpr ColorValue kRed = 0x0000FF;

TEST(RasterTest, RectanglesExcludeRightAndBottomAndClip) {
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

  Surface tiny(QSize(3, 2), 0xFFFFFF);
  EXPECT_THAT(lettersOf(tiny.image()), ElementsAre("www", "www"));
}

/// Three columns red, green, blue; two rows, the lower one with a hole in the middle.
Picture flag() {
  QImage image(3, 2, QImage::Format_ARGB32);
  for (int y = 0; y < 2; ++y) {
    image.setPixel(0, y, 0xFFFF0000);
    image.setPixel(1, y, y == 0 ? 0xFF00FF00 : 0x0000FF00);
    image.setPixel(2, y, 0xFF0000FF);
  }
  return Picture(image);
}

TEST(RasterTest, PicturesLandOnTheNearestPixelAndClip) {
  const struct {
    const char* name;
    double x, y;
    std::vector<std::string> rows;
  } table[] = {
      {"whole", 1, 1, {".....", ".rgb.", ".r.b."}},
      {"half goes up", 0.5, 0.5, {".....", ".rgb.", ".r.b."}},
      {"below half stays", 1.49, 0, {".rgb.", ".r.b.", "....."}},
      {"negative half goes up", -0.5, 0, {"rgb..", "r.b..", "....."}},
      {"left and top edge", -2, -1, {"b....", ".....", "....."}},
      {"right and bottom edge", 4, 2, {".....", ".....", "....r"}},
      {"outside", 5, 0, {".....", ".....", "....."}},
  };
  for (const auto& row : table) {
    Surface surface(QSize(5, 3));
    surface.PaintPicture(flag(), row.x, row.y);
    EXPECT_EQ(lettersOf(surface.image()), row.rows) << row.name;
  }
}

TEST(RasterTest, SourceRectanglesBeyondThePictureAddNothing) {
  const struct {
    const char* name;
    double sourceX, sourceY, width, height;
    std::vector<std::string> rows;
  } table[] = {
      {"inside", 1, 0, 1, 1, {".....", ".g...", "....."}},
      {"half goes up", 0.5, 0, 2, 1, {".....", ".gb..", "....."}},
      {"beyond right and bottom", 2, 1, 9, 9, {".....", ".b...", "....."}},
      {"before left and top", -1, -1, 3, 2, {".....", ".....", "..rg."}},
      {"negative half is the origin", -0.5, 0, 2, 1, {".....", ".rg..", "....."}},
      {"outside", 3, 0, 2, 2, {".....", ".....", "....."}},
      {"empty", 0, 0, 0, 2, {".....", ".....", "....."}},
  };
  for (const auto& row : table) {
    Surface surface(QSize(5, 3));
    surface.PaintPicture(flag(), 1, 1, row.sourceX, row.sourceY, row.width, row.height);
    EXPECT_EQ(lettersOf(surface.image()), row.rows) << row.name;
  }
  Surface surface(QSize(2, 1));
  surface.PaintPicture(Picture(), 0, 0);
  EXPECT_THAT(lettersOf(surface.image()), ElementsAre(".."));
}

TEST(RasterTest, BordersKeepNoneOneOrAllOfTheMargin) {
  const struct {
    Generation generation;
    Border border;
    QSize size;
    int origin;
  } table[] = {
      {Generation::Two, Border::None, {101, 80}, 5},
      {Generation::Two, Border::Single, {103, 82}, 4},
      {Generation::Two, Border::Default, {111, 91}, 0},
      {Generation::ThreeG, Border::None, {128, 160}, 5},
      {Generation::ThreeG, Border::Single, {130, 162}, 4},
      {Generation::ThreeG, Border::Default, {138, 171}, 0},
  };
  for (const auto& row : table) {
    Surface surface(row.generation == Generation::Two ? Surface::kSize2 : Surface::kSize3G);
    surface.image().setPixel(row.origin, row.origin, qRgb(255, 0, 0));
    const QImage framed = framedScreen(surface, row.generation, row.border);
    EXPECT_EQ(framed.size(), row.size);
    EXPECT_EQ(framed.pixel(0, 0), qRgb(255, 0, 0));
  }
}

}  // namespace
}  // namespace quillane

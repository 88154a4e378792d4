// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
// Menus and popups of generation 2; the reference sheets hold the rest.
#include "preview/clsvistrel.h"
#include "support/probes.h"
#include "support/tinygif.h"

namespace quillane {

namespace {

constexpr QRgb kGround = 0xFFFFFFFF;
const QRect kScreen(5, 5, 101, 80);

using Draw = void (clsVistrel::*)();

class VistrelScreensTest : public EngineTest<clsVistrel> {
 protected:
  VistrelScreensTest() : EngineTest(Surface::kSize2) { fillPhone(engine); }

  QString gif(QSize size) const {
    return write(QString("%1.gif").arg(size.height()), tinyGif(size, {{}, size}, 2));
  }
  QImage drawn(Draw draw) {
    (engine.*draw)();
    return surface.image();
  }
};

TEST_F(VistrelScreensTest, TitleImagesAreShownWholeOrCropped) {
  // The height that the picture is placed by may be one less than its own: 27 counts as 26.
  const std::tuple<Draw, gen2::Image, int, bool, int> table[] = {
      {&clsVistrel::DrawMenuSmall, gen2::TitleImageSmall, 20, true, 20},
      {&clsVistrel::DrawMenuSmall, gen2::TitleImageSmall, 21, false, 20},
      {&clsVistrel::DrawMenuMedium, gen2::TitleImageMedium, 27, true, 27},
      {&clsVistrel::DrawMenuMedium, gen2::TitleImageMedium, 28, false, 27},
      {&clsVistrel::DrawMenuLarge, gen2::TitleImageLarge, 16, true, 16},
      {&clsVistrel::DrawMenuLarge, gen2::TitleImageLarge, 40, false, 16}};
  engine.TitleText = "|||";
  for (const auto& [draw, slot, height, whole, shown] : table) {
    engine.setImage(slot, gif({110, height}));
    // A whole one reaches over the screen's edge to that of the surface.
    EXPECT_EQ(boundsOf(drawn(draw), kGreen), QRect(5, 5, whole ? 106 : 101, shown)) << height;
    EXPECT_EQ(pixel(5, 5), kGreen) << "no corner";
    engine.setImage(slot, path("none.gif"));
    EXPECT_EQ(boundsOf(drawn(draw), kGround).topLeft(), kScreen.topLeft()) << "and no bar";
  }
}

TEST_F(VistrelScreensTest, CentredLines) {
  const std::pair<const char*, std::vector<std::pair<const char*, int>>> table[] = {
      {"", {}},
      {"a", {{"a", 37}}},
      {"a|b", {{"a", 31}, {"b", 43}}},
      {"a|b|c", {{"a", 25}, {"b", 37}, {"c", 49}}},
      {"a|b|c|d", {{"a", 19}, {"b", 31}, {"c", 43}, {"d", 55}}},
      {"a|b|c|d|e", {{"a", 13}, {"a", 25}, {"b", 37}, {"c", 49}, {"c", 61}}},
      {"a|b|c|d|e|f", {}}};
  for (const auto& [padding, left] : {std::pair{"3 5", 9}, {"14.5 2", 20}, {"", 6}, {"x y", 6}}) {
    engine.PopupPaddingLeftTop = padding;
    for (const auto& [text, lines] : table) {
      surface.Cls();
      engine.DrawCenterText(text, 8, true, "FF0000");
      Surface expected(Surface::kSize2);
      for (const auto& [line, top] : lines)
        DrawTextRect(expected, line, left, top, 13, 111 - 2 * left,
                     {"Tahoma", AlignCentre, true, 8, 0x0000FF});
      EXPECT_EQ(surface.image(), expected.image()) << text << ", " << padding;
    }
  }
}

TEST_F(VistrelScreensTest, TheWindowKeepsThePaddingAndTheTitleBarDoesNot) {
  engine.setColor(gen2::PopupTitleColor, "00FF00");
  const std::pair<const char*, QRect> table[] = {{"3 5", {9, 11, 92, 67}},
                                                 {"1 1", {7, 7, 96, 75}},
                                                 {"2.5 14", {8, 20, 94, 49}},
                                                 {"x 5", {6, 11, 98, 67}},
                                                 {"3", {}},
                                                 {"", {}}};
  for (const auto& [padding, inside] : table) {
    engine.PopupPaddingLeftTop = padding;
    surface.Cls();
    EXPECT_EQ(faultNumberOf([&] { engine.DrawWindow("FF0000"); }), inside.isNull() ? 9 : 0);
    EXPECT_EQ(boundsOf(surface.image(), kRed), inside) << padding;
    EXPECT_EQ(boundsOf(drawn(&clsVistrel::DrawPopupMenu), kGreen), QRect(9, 11, 92, 13)) << padding;
    engine.DrawNotesWindow();
    EXPECT_EQ(engine.PopupPaddingLeftTop, "3 5");
  }
  EXPECT_NE(faultNumberOf([&] { engine.DrawWindow("nocolr"); }), 0);
}

TEST_F(VistrelScreensTest, FailingStepsOfTheOtherScreensAreSkipped) {
  const Draw all[] = {&clsVistrel::DrawMenuSmall,   &clsVistrel::DrawMenuInput,
                      &clsVistrel::DrawPopupWindow, &clsVistrel::DrawPopupMenu,
                      &clsVistrel::DrawPopupInput,  &clsVistrel::DrawNotesWindow,
                      &clsVistrel::DrawCalendar,    &clsVistrel::DrawWAPBrowser};
  for (int which = 0; which < static_cast<int>(engine.values().schema().colors.size()); ++which)
    engine.setColor(static_cast<gen2::Color>(which), "nocolr");
  for (const Draw draw : all) {
    EXPECT_EQ(faultNumberOf([&] { (engine.*draw)(); }), 0);
    EXPECT_EQ(pixel(105, 60), kMargin) << "no ground";
    EXPECT_FALSE(boundsOf(surface.image(), 0xFF000000, kScreen).isNull()) << "but something";
  }
}

}  // namespace

}  // namespace quillane

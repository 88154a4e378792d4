// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
// Menus, popups and calendar of generation 2; the reference sheets hold the rest.
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

TEST_F(VistrelScreensTest, RowsOfTheMenus) {
  struct Rows {
    int count, firstTop, firstHeight, lastTop;
  };
  // Height of a highlight, and the rows without and with a title image.
  const std::tuple<Draw, QString clsVistrel::*, gen2::Image, int, Rows, Rows> table[] = {
      {&clsVistrel::DrawMenuSmall,
       &clsVistrel::MenuSmallText,
       gen2::TitleImageSmall,
       11,
       {7, 15, 10, 74},
       {6, 24, 11, 74}},  // The bar covers the first one's top.
      {&clsVistrel::DrawMenuMedium,
       &clsVistrel::MenuMediumText,
       gen2::TitleImageMedium,
       14,
       {5, 19, 14, 71},
       {4, 32, 14, 71}},
      {&clsVistrel::DrawMenuLarge,
       &clsVistrel::MenuLargeText,
       gen2::TitleImageLarge,
       15,
       {4, 22, 15, 67},
       {4, 22, 15, 67}}};
  engine.setColor(gen2::HighlightColor, "FF0000");
  for (const auto& [draw, list, slot, height, plain, belowImage] : table)
    for (const bool image : {false, true}) {
      const Rows& rows = image ? belowImage : plain;
      engine.setImage(slot, image ? gif({101, 8}) : QString());
      engine.*list = "H-1" + QString("|--2").repeated(rows.count - 1);
      EXPECT_EQ(boundsOf(drawn(draw), kRed), QRect(5, rows.firstTop, 101, rows.firstHeight))
          << slot;
      engine.*list = QString("--1|").repeated(rows.count - 1) + "H-2|H-3";
      EXPECT_EQ(boundsOf(drawn(draw), kRed), QRect(5, rows.lastTop, 101, height)) << slot;
    }
}

TEST_F(VistrelScreensTest, FlagsChooseTheColourOfARow) {
  engine.setColor(gen2::HighlightColor, "FFFFFF");
  engine.setColor(gen2::TextColor, "FF0000");
  engine.setColor(gen2::DisabledTextColor, "00FF00");
  engine.setColor(gen2::HighlightTextColor, "0000FF");
  engine.setColor(gen2::HighlightDisabledTextColor, "FFFF00");
  const std::pair<const char*, QRgb> table[] = {{"--1Row", kRed},       {"-D1Row", kGreen},
                                                {"H-1Row", 0xFF0000FF}, {"HD1Row", 0xFFFFFF00},
                                                {"xH1Row", kRed},       {"h-1Row", kRed}};
  for (const auto& [entry, color] : table) {
    engine.MenuLargeText = QString(entry) + "|--";
    const QImage image = drawn(&clsVistrel::DrawMenuLarge);
    EXPECT_FALSE(boundsOf(image, color, {6, 25, 5, 12}).isNull()) << entry << ", digit";
    EXPECT_FALSE(boundsOf(image, color, {13, 22, 93, 15}).isNull()) << entry << ", label";
  }
}

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

TEST_F(VistrelScreensTest, AMissingRowRepeatsTheOneBefore) {
  const std::tuple<Draw, QString clsVistrel::*, QRect, int> table[] = {
      {&clsVistrel::DrawMenuMedium, &clsVistrel::MenuMediumText, {5, 32, 101, 13}, 13},
      {&clsVistrel::DrawPopupMenu, &clsVistrel::PopupMenuText, {10, 38, 90, 13}, 13}};
  for (const auto& [draw, list, second, step] : table) {
    engine.*list = "--1Up|H-2Down";
    const QImage image = drawn(draw);
    EXPECT_EQ(image.copy(second), image.copy(second.translated(0, step)));
    EXPECT_NE(image.copy(second), image.copy(second.translated(0, -step)));
    engine.*list = QString();
    const QImage empty = drawn(draw);
    EXPECT_EQ(boundsOf(empty, empty.pixel(second.center()), second), second) << "no rows";
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

TEST_F(VistrelScreensTest, TheSaturdayOfTheThirdRowIsMarkedWhateverTheDay) {
  engine.setColor(gen2::CalendarWeekendHighlightColor, "FFFFFF");
  engine.setColor(gen2::CalendarWeekendHighlightTextColor, "00FF00");
  engine.setColor(gen2::CalendarWeekendTextColor, "FF0000");
  for (const QDate& month : {QDate(2003, 6, 1), QDate(2003, 9, 1)}) {  // From a Sunday, a Monday.
    world.time.setDate(month);
    const QImage first = drawn(&clsVistrel::DrawCalendar);
    EXPECT_TRUE(QRect(76, 41, 15, 12).contains(boundsOf(first, kGreen)));
    EXPECT_TRUE(boundsOf(first, kRed, {76, 41, 15, 12}).isNull());
    for (int day = 1; day <= 30; ++day) {
      world.time.setDate({month.year(), month.month(), day});
      EXPECT_EQ(drawn(&clsVistrel::DrawCalendar), first) << day;
    }
  }
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

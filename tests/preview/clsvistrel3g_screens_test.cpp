// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
// Lists, calendars and windows of 3G; the reference sheets hold the rest.
#include "preview/screens.h"
#include "support/probes.h"
#include "support/tinygif.h"

namespace quillane {

namespace {

constexpr QRgb kGround = 0xFFC0DFFF;
constexpr QRgb kBlack = 0xFF000000;
constexpr QRgb kWhite = 0xFFFFFFFF;

class Vistrel3GScreensTest : public EngineTest<clsVistrel3G> {
 protected:
  Vistrel3GScreensTest() : EngineTest(Surface::kSize3G) { fillPhone(engine); }

  int menu(int index) {
    return faultNumberOf([&] { engine.DrawMenu(index); });
  }
  int popupMenu(int index) {
    return faultNumberOf([&] { engine.DrawPopupMenu(index); });
  }
};

TEST_F(Vistrel3GScreensTest, FlagsChooseHighlightAndColourOfARow) {
  engine.setColor(gen3g::HighlightColor, "FF00FF");
  engine.setColor(gen3g::MoreListHighlightColor, "FF00FF");
  const gen3g::Color texts[][2] = {
      {gen3g::TextColor, gen3g::MoreListTextColor},
      {gen3g::DisabledTextColor, gen3g::MoreListDisabledTextColor},
      {gen3g::HighlightTextColor, gen3g::MoreListHighlightTextColor},
      {gen3g::HighlightDisabledTextColor, gen3g::MoreListHighlightDisabledTextColor}};
  const std::tuple<const char*, bool, int> table[] = {{"--Row", false, 0}, {"-DRow", false, 1},
                                                      {"H-Row", true, 2},  {"HDRow", true, 3},
                                                      {"xHRow", true, 0},  {"h-Row", false, 0}};
  for (const auto& [entry, highlighted, text] : table) {
    for (int which = 0; which < 4; ++which)
      for (const gen3g::Color color : texts[which])
        engine.setColor(color, which == text ? "00FF00" : "FF0000");
    engine.MenuText1 = "--|" + QString(entry) + "||||";
    ASSERT_EQ(menu(0), 0);
    EXPECT_EQ(boundsOf(surface.image(), 0xFFFF00FF), highlighted ? QRect(5, 61, 123, 16) : QRect());
    EXPECT_TRUE(QRect(9, 62, 30, 13).contains(boundsOf(surface.image(), kGreen))) << entry;
    EXPECT_TRUE(boundsOf(surface.image(), kRed).isNull()) << entry;
    engine.MoreListMenuText1 = "--|" + QString(entry) + "|||";
    ASSERT_EQ(popupMenu(0), 0);
    EXPECT_EQ(boundsOf(surface.image(), 0xFFFF00FF),
              highlighted ? QRect(10, 72, 113, 16) : QRect());
    EXPECT_TRUE(QRect(13, 73, 30, 13).contains(boundsOf(surface.image(), kGreen))) << entry;
  }
}

TEST_F(Vistrel3GScreensTest, AListTooShortEndsTheMenuAndRepeatsInTheMoreList) {
  engine.MenuText1 = "--a|--b|H-c";
  engine.MoreListMenuText1 = "--a|H-b";
  EXPECT_EQ(menu(0), 9);
  EXPECT_EQ(pixel(6, 79), 0xFF1E396C) << "the third row is there";
  EXPECT_EQ(pixel(130, 60), kGround) << "the scroll bar is not";
  EXPECT_EQ(pixel(7, 148), kMargin) << "nor are the keys";
  EXPECT_EQ(popupMenu(0), 0);
  const QRect second(10, 72, 113, 16);
  for (int row = 1; row <= 3; ++row)
    EXPECT_EQ(part(second.translated(0, 17 * row)), part(second)) << row;
  EXPECT_EQ(pixel(7, 148), 0xFFBDBDBD);

  for (const int index : {-1, 2}) {
    engine.TitleText = "a|b|c";
    EXPECT_EQ(menu(index), 9) << index;
    EXPECT_EQ(pixel(6, 100), index < 0 ? kMargin : kGround) << index;
    EXPECT_EQ(popupMenu(index), 0) << index;
    EXPECT_EQ(pixel(60, 80), kWhite) << "no rows";
    EXPECT_EQ(pixel(125, 60), 0xFF173E62) << index;
    EXPECT_EQ(pixel(7, 148), kMargin) << "no label, no keys";
  }
}

TEST_F(Vistrel3GScreensTest, SomeScreensSkipWhatFailsAndTheOthersEnd) {
  const QString none = path("none.gif");
  const QString green = write("green.gif", tinyGif({200, 200}, {0, 0, 200, 200}, 2));
  const QStringList skipping{"popup-menu-1", "popup-menu-2", "progress-window", "accept-window"};
  const QStringList untitled{"standby", "desktop", "notes"};
  engine.setImage(gen3g::TitleImage, none);
  engine.setImage(gen3g::GeneralBackgroundImage, green);
  int skipped = 0;
  for (const auto& screen : screensOf3G()) {
    if (untitled.contains(screen.id)) continue;
    const bool skips = skipping.contains(screen.id);
    skipped += skips ? 1 : 0;
    EXPECT_EQ(faultNumberOf([&] { screen.paint(engine); }), skips ? 0 : 53) << screen.id.data();
    EXPECT_EQ(pixel(5, 25), kMargin) << screen.id.data() << ", no title";
    EXPECT_EQ(pixel(5, 60), skips ? kGreen : kMargin) << screen.id.data();
  }
  EXPECT_EQ(skipped, skipping.size());
  engine.setImage(gen3g::MoreListPopupTitleImage, none);
  engine.setImage(gen3g::MoreListPopupHighlightImage, green);
  EXPECT_EQ(popupMenu(0), 0);
  EXPECT_EQ(pixel(12, 40), kWhite) << "the popup's ground stays";
  EXPECT_EQ(boundsOf(surface.image(), kGreen, {10, 54, 113, 87}), QRect(10, 89, 113, 16));
}

TEST_F(Vistrel3GScreensTest, LinesOfANoteAreCentred) {
  engine.setColor(gen3g::NotesTextColor, "FF0000");
  for (int lines = 0; lines <= 8; ++lines) {
    engine.NotesText = QStringList(QList<QString>(lines, "H")).join('|');
    engine.DrawNotesWindow();
    const QRect inked = boundsOf(surface.image(), kRed);
    constexpr int kTops[] = {0, 76, 70, 63, 57, 50, 44, 44, 44};
    constexpr int kCap = 9;  // Rows of a capital; its first lies two below the text's top.
    EXPECT_EQ(inked.top(), lines == 0 ? 0 : kTops[lines] + 2) << lines;
    EXPECT_EQ(inked.height(), lines == 0 ? 0 : 13 * (std::min(lines, 6) - 1) + kCap) << lines;
  }
}

TEST_F(Vistrel3GScreensTest, TheCalendarMarksToday) {
  const std::tuple<QDate, int, int> table[] = {// Column and row.
                                               {{2003, 9, 1}, 0, 0},  {{2003, 6, 14}, 5, 2},
                                               {{2002, 12, 1}, 6, 0}, {{2002, 12, 31}, 1, 5},
                                               {{2010, 2, 28}, 6, 3}, {{2004, 2, 29}, 6, 4}};
  for (const auto& [today, column, row] : table) {
    world.time.setDate(today);
    engine.DrawCalendar();
    for (int cell = 0; cell < 42; ++cell) {
      const QRgb corner = pixel(10 + 17 * (cell % 7), 58 + 14 * (cell / 7));
      EXPECT_EQ(corner, cell == 7 * row + column ? kBlack : kWhite) << cell;
    }
  }
}

TEST_F(Vistrel3GScreensTest, TheWeekIsThatOfTheComingSaturday) {
  const auto weekOf = [&](int day) {
    world.time.setDate({2003, 6, day});
    engine.DrawWeekCalendar();
    return surface.image();
  };
  const QImage saturday = weekOf(14);
  for (int day = 8; day < 14; ++day)
    EXPECT_EQ(weekOf(day), saturday) << day;
  EXPECT_NE(weekOf(7), saturday);
  EXPECT_NE(weekOf(15), saturday);
}

/// The font lives across operations, so each screen must set what it needs.
TEST_F(Vistrel3GScreensTest, NoScreenDependsOnTheOneBefore) {
  const auto painted = [this](clsVistrel3G& on, const Screen<clsVistrel3G>& screen) {
    on.setSurface(surface);
    screen.paint(on);
    return surface.image();
  };
  for (const auto& before : screensOf3G())
    for (const auto& screen : screensOf3G()) {
      clsVistrel3G fresh(world);
      fillPhone(fresh);
      painted(engine, before);
      EXPECT_EQ(painted(engine, screen), painted(fresh, screen))
          << screen.id.data() << " after " << before.id.data();
    }
}

}  // namespace

}  // namespace quillane

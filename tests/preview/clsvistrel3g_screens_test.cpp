// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
// Lists and windows of 3G; the reference sheets hold the rest.
#include "preview/screens.h"
#include "support/probes.h"
#include "support/tinygif.h"

namespace quillane {

namespace {

constexpr QRgb kWhite = 0xFFFFFFFF;

class Vistrel3GScreensTest : public EngineTest<clsVistrel3G> {
 protected:
  Vistrel3GScreensTest() : EngineTest(Surface::kSize3G) { fillPhone(engine); }
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
    engine.DrawMenu(0);
    EXPECT_EQ(boundsOf(surface.image(), 0xFFFF00FF), highlighted ? QRect(5, 61, 123, 16) : QRect());
    EXPECT_TRUE(QRect(9, 62, 30, 13).contains(boundsOf(surface.image(), kGreen))) << entry;
    EXPECT_TRUE(boundsOf(surface.image(), kRed).isNull()) << entry;
    engine.MoreListMenuText1 = "--|" + QString(entry) + "|||";
    engine.DrawPopupMenu(0);
    EXPECT_EQ(boundsOf(surface.image(), 0xFFFF00FF),
              highlighted ? QRect(10, 72, 113, 16) : QRect());
    EXPECT_TRUE(QRect(13, 73, 30, 13).contains(boundsOf(surface.image(), kGreen))) << entry;
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
  engine.DrawPopupMenu(0);
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

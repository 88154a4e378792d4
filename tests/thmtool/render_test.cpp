// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview/screens.h"
#include "preview/surface.h"
#include "support/tinygif.h"
#include "thmtool/toolrun.h"

#include <QDir>

namespace quillane {

namespace {

class Render : public ToolTest {
 protected:
  void SetUp() override {
    ToolTest::SetUp();
    two_ = theme2("<Desktop_background Color=\"0x336699\"/><Background_image Source=\"xxx.gif\"/>");
    write("theme3g/title.gif", tinyGif({128, 23}, {0, 0, 128, 23}, 1));
    threeG_ = theme3G(
        "<Title_image Source=\"title.gif\"/><Title Color=\"0x0000FF\"/>"
        "<Desktop_background Color=\"0x336699\"/><Standby_operatorname_text Color=\"0xFFFFFF\"/>"
        "<Standby_time Color=\"0xFFFFFF\"/>");
  }

  /// One screen as these words after the theme have it painted, at a fixed time and seed.
  QImage screen(const QString& theme, const QString& id, const QStringList& words) const {
    const QStringList fixed{"--now", "2003-06-14 09:41", "--seed", "1"};
    EXPECT_EQ(runTool(QStringList{"render", theme, "--out", path("out"), "--screens", id} + fixed +
                      words),
              kQuiet);
    return image("out/" + id + ".png");
  }

  QString two_;
  QString threeG_;
};

template <typename Screens>
QStringList idsOf(const Screens& screens) {
  QStringList ids;
  for (const auto& screen : screens)
    ids += screen.id;
  return ids;
}

TEST_F(Render, SizesFollowBorderAndScale) {
  const std::tuple<QString, QStringList, QSize> rows[] = {
      {two_, {"--border", "none", "--scale", "3"}, {303, 240}},
      {threeG_, {"--border=single"}, {130, 162}},
      {threeG_, {"--border=default", "--scale=16"}, {2208, 2736}}};
  for (const auto& [theme, words, size] : rows)
    EXPECT_EQ(screen(theme, "desktop", words).size(), size) << words.join(u' ').toStdString();
}

TEST_F(Render, SampleThemesLookLikeTheirReferences) {
  const QDir themes(SAMPLE_THEMES);
  ASSERT_GE(themes.entryList({"*.thm"}).size(), 6);
  for (const QFileInfo& theme : themes.entryInfoList({"*.thm"})) {
    const QImage sheet(REFERENCE_FOLDER "/" + theme.completeBaseName() + "/sheet.png");
    EXPECT_EQ(runTool({"render", theme.filePath(), "--out", path("out"), "--border", "default",
                       "--now", "2003-06-14 09:41"}),
              kQuiet);
    constexpr int kColumns = 7;  // As on the reference sheets.
    const bool two = sheet.width() == kColumns * Surface::kSize2.width();
    const QStringList ids = two ? idsOf(screensOfGeneration2()) : idsOf(screensOf3G());
    for (int place = 0; place < ids.size(); ++place) {
      if (ids[place].startsWith("softkeys")) continue;  // Tick boxes at random.
      const QImage seen = image("out/" + ids[place] + ".png");
      const QPoint corner(place % kColumns * seen.width(), place / kColumns * seen.height());
      EXPECT_EQ(seen.convertToFormat(QImage::Format_RGB32),
                sheet.copy(QRect(corner, seen.size())).convertToFormat(QImage::Format_RGB32))
          << theme.fileName().toStdString() << ' ' << ids[place].toStdString();
    }
  }
}

/// Which screens an option changes.
enum Changes { Nothing = 0, Two = 1, ThreeG = 2, Both = 3 };

TEST_F(Render, OptionsChangeTheirScreens) {
  const QString language = write("my.lng", "[Desktop]\r\nTitles=A|B|C|D|E|F|G|H|I|J|K|L\r\n");
  const std::tuple<const char*, QString, QStringList, Changes> rows[] = {
      {"now", "standby", {"--now", "2003-06-14 09:42"}, Both},
      {"day", "standby", {"--now", "2003-06-15 09:41"}, ThreeG},
      {"signal", "standby", {"--signal", "0"}, Both},
      {"signal out of range is 5", "standby", {"--signal", "-1"}, Nothing},
      {"signal beyond the settings", "standby", {"--signal", "99999999999999999999"}, Nothing},
      {"battery", "standby", {"--battery", "0"}, Both},
      {"battery out of range is 10", "standby", {"--battery", "11"}, Nothing},
      {"desktop icon", "desktop", {"--desktop-icon", "2"}, Both},
      {"desktop icon of 3G only", "desktop", {"--desktop-icon", "12"}, ThreeG},
      {"operator", "standby", {"--operator", "Moon"}, Both},
      {"empty operator", "standby", {"--operator", QString()}, Both},
      {"time format", "standby", {"--time-format", "hh:mmam/pm"}, Both},
      {"date format", "standby", {"--date-format", "yyyy"}, ThreeG},
      {"GPRS off", "standby", {"--gprs", "off"}, Both},
      {"GPRS out of range", "standby", {"--gprs", "0"}, Both},
      {"GPRS range above 1 is 1", "standby", {"--gprs", "2"}, Nothing},
      {"GPRS in range", "standby", {"--gprs", "1"}, Nothing},
      {"infrared", "standby", {"--ir"}, Two},
      {"language", "desktop", {"--language", language}, Both},
      {"no images", "wap-browser", {"--no-images"}, ThreeG}};
  for (const auto& [name, id, words, changes] : rows) {
    SCOPED_TRACE(name);
    EXPECT_EQ(screen(two_, id, words) != screen(two_, id, {}), (changes & Two) != 0);
    EXPECT_EQ(screen(threeG_, id, words) != screen(threeG_, id, {}), (changes & ThreeG) != 0);
  }
}

TEST_F(Render, SeedFixesTheTickBoxes) {
  const QString id = "softkeys-2";
  const QImage alone = screen(threeG_, id, {});
  EXPECT_EQ(screen(threeG_, id, {}), alone);
  EXPECT_NE(screen(threeG_, id, {"--seed", "2"}), alone);
  screen(threeG_, "softkeys-1", {"--screens", "softkeys-1,softkeys-2"});
  EXPECT_EQ(image("out/softkeys-2.png"), alone) << "depends on what was painted before";
}

TEST_F(Render, SeedGivesEachTickBoxItsOwnNumber) {
  const QImage screen = this->screen(threeG_, "softkeys-1", {});
  int ticked = 0;
  const QImage tick = screen.copy(5, 42, 11, 11);
  for (int row = 1; row <= 5; ++row)
    ticked += screen.copy(5, 42 + 16 * row, 11, 11) == tick ? 1 : 0;
  EXPECT_GT(ticked, 0);
  EXPECT_LT(ticked, 5);
}

TEST_F(Render, UnknownScreenIsWrongUsage) {
  const ToolRun run =
      runTool({"render", two_, "--out", path("out"), "--screens", "desktop,week-calendar"});
  EXPECT_EQ(run.status, WrongUsage);
  EXPECT_EQ(run.err.find("thmtool render: The theme's phones have no screen \"week-calendar\". "
                         "They have: standby desktop"),
            0U)
      << run.err;
  EXPECT_FALSE(QFile::exists(path("out")));
}

TEST_F(Render, TellsWhatIsNotFound) {
  const std::string file = path("none/x").toStdString();
  EXPECT_EQ(runTool({"render", two_, "--out", path("out"), "--language", path("none/x")}),
            (ToolRun{NotDone, "", "thmtool render: File \"" + file + "\" not found.\n"}));
  const std::string folder = path("none").toStdString();
  EXPECT_EQ(runTool({"thumbnail", two_, path("none/x"), "64"}),
            (ToolRun{NotDone, "", "thmtool thumbnail: Folder \"" + folder + "\" not found.\n"}));
}

TEST_F(Render, FaultKeepsWhatWasPainted) {
  write("theme3g/bad.gif", "no picture");
  const QString theme =
      theme3G("<Title Color=\"0x00FF00\"/><General_background_image Source=\"bad.gif\"/>");
  EXPECT_EQ(runTool({"render", theme, "--out", path("out"), "--screens", "desktop,softkeys-1"}),
            (ToolRun{NotDone, "",
                     "thmtool render: \"" + theme.toStdString() +
                         "\": Screen \"softkeys-1\" is painted in part only: \"bad.gif\" is "
                         "no GIF, JPEG, BMP or icon file that can be shown, or has more than 4096 "
                         "pixels a side.\n"}));
  EXPECT_EQ(image("out/softkeys-1.png").pixel(0, 20), 0xFF00FF00U);
  EXPECT_FALSE(image("out/desktop.png").isNull());
}

class Thumbnail : public ToolTest {};

TEST_F(Thumbnail, FitsItsSquare) {
  const QString two = theme2("");
  const QString threeG = theme3G("<Title Color=\"0x1\"/>");
  const std::tuple<QString, QString, QSize> rows[] = {
      {two, "1", {1, 1}},          {two, "64", {64, 51}},      {two, "100", {100, 79}},
      {two, "101", {101, 80}},     {two, "201", {101, 80}},    {two, "202", {202, 160}},
      {two, "512", {505, 400}},    {threeG, "80", {64, 80}},   {threeG, "160", {128, 160}},
      {threeG, "319", {128, 160}}, {threeG, "320", {256, 320}}};
  for (const auto& [theme, size, fitted] : rows) {
    EXPECT_EQ(runTool({"thumbnail", theme, path("t.png"), size}), kQuiet);
    EXPECT_EQ(image("t.png").size(), fitted) << size.toStdString();
  }
}

TEST_F(Thumbnail, ShowsTheStandbyScreen) {
  const QString theme = theme3G("<Standby_time Color=\"0x1\"/>");
  runTool({"render", theme, "--out", path(), "--screens", "standby", "--time-format", " "});
  runTool({"thumbnail", theme, path("t.png"), "320"});
  const QImage standby = image("standby.png");
  const QImage thumbnail = image("t.png");
  // All but the lowest quarter, where the clock is.
  EXPECT_EQ(thumbnail.copy(0, 0, 256, 240),
            standby.scaled(256, 320).copy(0, 0, 256, 240).convertToFormat(thumbnail.format()));
}

}  // namespace

}  // namespace quillane

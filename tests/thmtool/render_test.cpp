// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview/screens.h"
#include "support/tinygif.h"
#include "thmtool/toolrun.h"

namespace quillane {
namespace {

class Render : public ToolTest {
 protected:
  void SetUp() override {
    ToolTest::SetUp();
    two_ = theme2("<Desktop_background Color=\"0x336699\"/><Background_image Source=\"xxx.gif\"/>");
    write(u"theme3g/title.gif"_s, tinyGif({128, 23}, {0, 0, 128, 23}, 1));
    threeG_ = theme3G(
        "<Title_image Source=\"title.gif\"/><Title Color=\"0x0000FF\"/>"
        "<Desktop_background Color=\"0x336699\"/><Standby_operatorname_text Color=\"0xFFFFFF\"/>"
        "<Standby_time Color=\"0xFFFFFF\"/>");
  }

  /// One screen as these words after the theme have it painted, at a fixed time and seed.
  QImage screen(const QString& theme, const QString& id, const QStringList& words) const {
    const QStringList fixed{u"--now"_s, u"2003-06-14 09:41"_s, u"--seed"_s, u"1"_s};
    EXPECT_EQ(
        runTool(QStringList{u"render"_s, theme, u"--out"_s, path(u"out"_s), u"--screens"_s, id} +
                fixed + words),
        kQuiet);
    return image(u"out/"_s + id + u".png"_s);
  }

  QString two_;
  QString threeG_;
};

template <typename Screens>
QStringList filesOf(const Screens& screens) {
  QStringList files;
  for (const auto& screen : screens)
    files += screen.id + u".png"_s;
  files.sort();
  return files;
}

TEST_F(Render, WritesEveryScreen) {
  EXPECT_EQ(runTool({u"render"_s, two_, u"--out"_s, path(u"a/two"_s)}), kQuiet);
  EXPECT_EQ(listOf(u"a/two"_s), filesOf(screensOfGeneration2()));
  EXPECT_EQ(runTool({u"render"_s, threeG_, u"--out"_s, path(u"a/3g"_s)}), kQuiet);
  EXPECT_EQ(listOf(u"a/3g"_s), filesOf(screensOf3G()));
}

TEST_F(Render, SizesFollowBorderAndScale) {
  const struct {
    QString theme;
    QStringList words;
    QSize size;
  } rows[] = {
      {two_, {}, {101, 80}},
      {two_, {u"--border"_s, u"none"_s, u"--scale"_s, u"3"_s}, {303, 240}},
      {two_, {u"--border"_s, u"single"_s}, {103, 82}},
      {two_, {u"--border"_s, u"default"_s}, {111, 91}},
      {threeG_, {u"--border=none"_s}, {128, 160}},
      {threeG_, {u"--border=single"_s}, {130, 162}},
      {threeG_, {u"--border=default"_s, u"--scale=16"_s}, {2208, 2736}},
  };
  for (const auto& row : rows)
    EXPECT_EQ(screen(row.theme, u"desktop"_s, row.words).size(), row.size)
        << row.words.join(u' ').toStdString();
}

TEST_F(Render, ScaleRepeatsPixels) {
  const QImage plain = screen(threeG_, u"standby"_s, {});
  const QImage scaled = screen(threeG_, u"standby"_s, {u"--scale"_s, u"3"_s});
  for (int y = 0; y < scaled.height(); ++y)
    for (int x = 0; x < scaled.width(); ++x)
      ASSERT_EQ(scaled.pixel(x, y), plain.pixel(x / 3, y / 3)) << x << ' ' << y;
}

TEST_F(Render, TakesTheColoursOfTheTheme) {
  EXPECT_EQ(screen(two_, u"desktop"_s, {}).pixel(0, 79), 0xFF336699U);
  EXPECT_EQ(screen(threeG_, u"desktop"_s, {}).pixel(0, 100), 0xFF336699U);
}

/// Which screens an option changes.
enum Changes { Nothing = 0, Two = 1, ThreeG = 2, Both = 3 };

TEST_F(Render, OptionsChangeTheirScreens) {
  const QString language = write(u"my.lng"_s, "[Desktop]\r\nTitles=A|B|C|D|E|F|G|H|I|J|K|L\r\n");
  const struct {
    const char* name;
    const char16_t* screen;
    QStringList words;
    Changes changes;
  } rows[] = {
      {"now", u"standby", {u"--now"_s, u"2003-06-14 09:42"_s}, Both},
      {"day", u"standby", {u"--now"_s, u"2003-06-15 09:41"_s}, ThreeG},
      {"signal", u"standby", {u"--signal"_s, u"0"_s}, Both},
      {"signal out of range is 5", u"standby", {u"--signal"_s, u"-1"_s}, Nothing},
      {"signal beyond the settings",
       u"standby",
       {u"--signal"_s, u"99999999999999999999"_s},
       Nothing},
      {"battery", u"standby", {u"--battery"_s, u"0"_s}, Both},
      {"battery out of range is 10", u"standby", {u"--battery"_s, u"11"_s}, Nothing},
      {"desktop icon", u"desktop", {u"--desktop-icon"_s, u"2"_s}, Both},
      {"desktop icon of 3G only", u"desktop", {u"--desktop-icon"_s, u"12"_s}, ThreeG},
      {"operator", u"standby", {u"--operator"_s, u"Moon"_s}, Both},
      {"empty operator", u"standby", {u"--operator"_s, QString()}, Both},
      {"time format", u"standby", {u"--time-format"_s, u"hh:mmam/pm"_s}, Both},
      {"date format", u"standby", {u"--date-format"_s, u"yyyy"_s}, ThreeG},
      {"GPRS off", u"standby", {u"--gprs"_s, u"off"_s}, Both},
      {"GPRS out of range", u"standby", {u"--gprs"_s, u"0"_s}, Both},
      {"GPRS range above 1 is 1", u"standby", {u"--gprs"_s, u"2"_s}, Nothing},
      {"GPRS in range", u"standby", {u"--gprs"_s, u"1"_s}, Nothing},
      {"infrared", u"standby", {u"--ir"_s}, Two},
      {"language", u"desktop", {u"--language"_s, language}, Both},
      {"no images, none there", u"standby", {u"--no-images"_s}, Nothing},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    const QString id = QString::fromUtf16(row.screen);
    EXPECT_EQ(screen(two_, id, row.words) != screen(two_, id, {}), (row.changes & Two) != 0);
    EXPECT_EQ(screen(threeG_, id, row.words) != screen(threeG_, id, {}),
              (row.changes & ThreeG) != 0);
  }
}

TEST_F(Render, ImagesCanBeLeftOut) {
  const QString id = u"softkeys-1"_s;
  EXPECT_EQ(screen(threeG_, id, {}).pixel(0, 20), 0xFFFF0000U);
  EXPECT_EQ(screen(threeG_, id, {u"--no-images"_s}).pixel(0, 20), 0xFF0000FFU);
}

TEST_F(Render, SeedFixesTheTickBoxes) {
  const QString id = u"softkeys-2"_s;
  const QImage alone = screen(threeG_, id, {});
  EXPECT_EQ(screen(threeG_, id, {}), alone);
  EXPECT_NE(screen(threeG_, id, {u"--seed"_s, u"2"_s}), alone);
  screen(threeG_, u"softkeys-1"_s, {u"--screens"_s, u"softkeys-1,softkeys-2"_s});
  EXPECT_EQ(image(u"out/softkeys-2.png"_s), alone) << "depends on what was painted before";
}

TEST_F(Render, SeedGivesEachTickBoxItsOwnNumber) {
  const QImage screen = this->screen(threeG_, u"softkeys-1"_s, {});
  int ticked = 0;
  const QImage tick = screen.copy(5, 42, 11, 11);
  for (int row = 1; row <= 5; ++row)
    ticked += screen.copy(5, 42 + 16 * row, 11, 11) == tick ? 1 : 0;
  EXPECT_GT(ticked, 0);
  EXPECT_LT(ticked, 5);
}

TEST_F(Render, UnknownScreenIsWrongUsage) {
  const ToolRun run = runTool(
      {u"render"_s, two_, u"--out"_s, path(u"out"_s), u"--screens"_s, u"desktop,week-calendar"_s});
  EXPECT_EQ(run.status, WrongUsage);
  EXPECT_EQ(run.err.find("thmtool render: The theme's phones have no screen \"week-calendar\". "
                         "They have: standby desktop"),
            0U)
      << run.err;
  EXPECT_FALSE(QFile::exists(path(u"out"_s)));
}

TEST_F(Render, MissingLanguageFile) {
  const QString file = path(u"none.lng"_s);
  EXPECT_EQ(
      runTool({u"render"_s, two_, u"--out"_s, path(u"out"_s), u"--language"_s, file}),
      (ToolRun{NotDone, "", "thmtool render: File \"" + file.toStdString() + "\" not found.\n"}));
}

TEST_F(Render, FaultKeepsWhatWasPainted) {
  write(u"theme3g/bad.gif"_s, "no picture");
  const QString theme =
      theme3G("<Title Color=\"0x00FF00\"/><General_background_image Source=\"bad.gif\"/>");
  EXPECT_EQ(runTool({u"render"_s, theme, u"--out"_s, path(u"out"_s), u"--screens"_s,
                     u"desktop,softkeys-1"_s}),
            (ToolRun{NotDone, "",
                     "thmtool render: \"" + theme.toStdString() +
                         "\": Screen \"softkeys-1\" is painted in part only: \"bad.gif\" is "
                         "no GIF, JPEG, BMP or icon file that can be shown.\n"}));
  EXPECT_EQ(image(u"out/softkeys-1.png"_s).pixel(0, 20), 0xFF00FF00U);
  EXPECT_FALSE(image(u"out/desktop.png"_s).isNull());
}

}  // namespace
}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/tarbuilder.h"
#include "support/tinygif.h"
#include "theme/writer.h"
#include "thmtool/toolrun.h"

#include <QBuffer>
#include <QImageWriter>

namespace quillane {

namespace {

const QByteArray kName("Theme_name Name=\"Tea\"");

/// A clean theme with one image, "back.gif", in the first place that takes one of 101x80.
QByteArray cleanXml(Generation generation = Generation::Two) {
  ThemeValues values(generation);
  if (generation == Generation::Two) values.setImage(gen2::BackgroundImage, "back.gif");
  return generateXml(values, {"Tea"}).toLatin1();
}

QByteArray gif(QSize size = {101, 80}) {
  return tinyGif(size, QRect({}, size), 1);
}

QByteArray encoded(const char* format, bool isProgressive = false) {
  QImage image(101, 80, QImage::Format_RGB32);
  image.fill(Qt::red);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QImageWriter writer(&buffer, format);
  writer.setProgressiveScanWrite(isProgressive);
  EXPECT_TRUE(writer.write(image));
  return bytes;
}

class Check : public ToolTest {
 protected:
  /// The lines that a theme gives, without its name and the line ends.
  QStringList findingsOf(const QByteArray& theme) const {
    const QString file = write("t.thm", theme);
    const ToolRun run = runTool({"check", file});
    EXPECT_EQ(run.err, "");
    QStringList lines = QString::fromStdString(run.out).split('\n');
    EXPECT_EQ(lines.takeLast(), "");
    EXPECT_EQ(run.status, lines.isEmpty() ? AllWell : NotDone);
    for (QString& line : lines) {
      EXPECT_TRUE(line.startsWith(file + ": "));
      line.remove(0, file.size() + 2);
    }
    return lines;
  }
  static QByteArray themeOf(const QByteArray& xml, const QByteArray& picture = gif()) {
    return TarBuilder().file("t.xml", xml).file("back.gif", picture).end().bytes();
  }
};

TEST_F(Check, FindsWhatIsOddInTheText) {
  struct Row {
    QByteArray before, after;
    QStringList findings;
    Generation generation = Generation::Two;
  };
  const Row rows[] = {
      {"back.gif", "xxx.gif", {"note: No element names the file \"back.gif\"."}},
      {"back.gif", "", {"note: No element names the file \"back.gif\"."}},
      {"back.gif\"/>",
       "back.gif\"/><Title_image_small Source=\"gone.gif\"/>",
       {"error: Title small image defined, file \"gone.gif\" not found."}},
      {"\"back.gif\"/>",
       "\"back.gif\"/><Title_image_small Source=\"a/b.gif\"/><Title_image_large Source=\"*.gif\"/>",
       {"error: Title_image_small: \"a/b.gif\" cannot be the name of a file.",
        "error: Title_image_large: \"*.gif\" cannot be the name of a file."}},
      {"\"back.gif\"/>",
       "\"back.gif\"/><Title_image_large Source=\"back.gif\"/>",
       {"error: Title_image_large: \"back.gif\" has 101x80 pixels and must have 101x16."}},
      {"<Highlight Color=\"0x000000\"/>", "", {"warning: Colours that are missing: Highlight."}},
      {"<Cursor Color=\"0x000000\"/>",
       "",
       {"error: \"Cursor\" will be read as \"000000\" and not as \"\".",
        "warning: Colours that are missing: Cursor."}},
      {"<Cursor ",
       "<Cursor Color=\"0x0000FF\"/><Cursor ",
       {"warning: Elements that come again, of which the first counts: Cursor."}},
      {"<Background_image Source=\"back.gif\"/>",
       "<!-- <Cursor Color=\"0x000000\"/> <Background_image Source=\"back.gif\"/> -->",
       {"warning: Elements that come again, of which the first counts: Cursor.",
        "warning: Elements that stand in a comment, which only some readers look into: "
        "Background_image."}},
      {"<Wapbrowser_tableborder ",
       "<!-- <Wapbrowser_tableborder ",
       {"warning: Elements that stand in a comment, which only some readers look into: "
        "Wapbrowser_tableborder."}},
      {"<Theme_name Name=\"Tea\"/>-->",
       "--><Theme_name Name=\"Tea\"/>",
       {"warning: Elements that are unknown: Theme_name."}},
      {"<Cursor ",
       "<Sound Source=\"a\"/><Theme_name Name=\"Tea\"/><Cursor ",
       {"warning: Elements that are unknown: Sound, Theme_name."}},
      {"<Cursor ", "<!-- a \" <Sound Source=\"a\"/> --><Cursor ", {}},
      {"<Cursor Color=\"0x000000\"",
       "<Cursor Color=\"0x00000\"",
       {"error: Cursor: \"0x00000\" is no colour, which is 0x and six hexadecimal digits."}},
      {"<Cursor Color=\"0x000000\"",
       "<Cursor Color=\"0X000000\"",
       {"error: Cursor: \"0X000000\" is no colour, which is 0x and six hexadecimal digits."}},
      {"<Cursor Color=\"0x000000\"",
       "<Cursor Color=\"0x\"",
       {"error: Cursor: \"0x\" is no colour, which is 0x and six hexadecimal digits."},
       Generation::ThreeG},
      {"<Cursor Color=",
       "<Cursor color=",
       {"error: \"Cursor\" will be read as \"0x000000\" and not as \"000000\"."}},
      {"<Title Color=\"0x0000FF\"",
       "<Title Color='0x0000FF'",
       {"error: \"Title\" will be read as \"FFFFFF\" and not as \"0000FF\"."}},
      {"<Title ", "<Title\n", {"error: \"Title\" will be read as \"\" and not as \"0000FF\"."}},
      {"Wapbrowser_tableborder Color=\"0x000000\"/>",
       "Wapbrowser_tableborder Color=\"0x000000\">",
       {"error: The element \"Wapbrowser_tableborder\" is never closed by \"/>\"."}},
      {"\"Tea\"",
       "\"Text game\"",
       {"error: \"Text\" will be read as \"/>-->?\?<Background_image Source=\" and not as "
        "\"000000\"."}},
      {"<Text Color=\"0x000000\"",
       "<Text Color=\"0xFFFFFF\"",
       {"warning: Colours that are too close to tell apart: Background, Text."}},
      {"<Ericsson_theme>",
       "<Theme>",
       {"error: The root element \"Ericsson_theme\" is missing.",
        "warning: Elements that are unknown: Theme."}},
      {"Tea", "a > b <c & d's", {}},
  };
  for (const Row& row : rows) {
    QByteArray xml = cleanXml(row.generation);
    ASSERT_TRUE(xml.contains(row.before)) << row.before.data();
    xml.replace(row.before, row.after);
    const QByteArray theme = row.generation == Generation::Two
                                 ? themeOf(xml)
                                 : TarBuilder().file("t.xml", xml).end().bytes();
    EXPECT_EQ(findingsOf(theme), row.findings) << row.after.data();
  }
}

TEST_F(Check, FindsPicturesThatPhonesDoNotShow) {
  const QByteArray frame = gif().mid(25).chopped(1);
  QByteArray interlaced = gif();
  interlaced[34] = 0x40;
  QByteArray noised = encoded("jpg");
  noised.replace(noised.size() - 200, 190, QByteArray(190, '\xFE'));
  const QString progressive =
      "error: \"back.gif\" is no baseline JPEG but a progressive one or the like, which phones do "
      "not show.";
  const QString damaged = "error: \"back.gif\" is damaged.";
  struct Row {
    const char* what;
    QByteArray picture;
    QString finding2, finding3G;
  };
  const QString noGif = "error: \"back.gif\" is no GIF file.";
  const QString neither = "error: \"back.gif\" is neither a GIF nor a JPEG file.";
  const QString interlacedText = "error: \"back.gif\" is interlaced, which phones do not show.";
  const QString animated = "error: \"back.gif\" is animated, and phones show still pictures.";
  const Row rows[] = {
      {"fine", gif(), "", ""},
      {"interlaced", interlaced, interlacedText, interlacedText},
      {"two frames", gif().chopped(1) + frame + ';', animated, animated},
      {"loop, one frame",
       gif().insert(
           25, QByteArray::fromHex("21ff0b") + "NETSCAPE2.0" + QByteArray::fromHex("0301000000")),
       "", ""},
      {"cut off", gif().chopped(40), damaged, damaged},
      {"no end", gif().chopped(1), damaged, damaged},
      {"no frame", gif().first(25) + ';', damaged, damaged},
      {"wide screen, small frame", gif().replace(6, 2, "\xFF\xFF"),
       damaged + "|error: Background_image: \"back.gif\" has 65535x80 pixels and must have at most "
                 "101x80.",
       damaged +
           "|error: Wallpaper_image: \"back.gif\" has 65535x80 pixels and must have 128x127."},
      {"wide frame", gif().replace(30, 2, "\xFF\xFF"), damaged, damaged},
      {"JPEG", encoded("jpg"), noGif, ""},
      {"progressive JPEG", encoded("jpg", true), noGif, progressive},
      {"JPEG without an end", encoded("jpg").chopped(2), noGif, damaged},
      {"JPEG cut in its tables", encoded("jpg").first(100), noGif, damaged},
      {"JPEG with wrong pixels", noised, noGif, damaged},
      {"PNG", encoded("png"), noGif, neither},
      {"empty", "", noGif, neither},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(findingsOf(themeOf(cleanXml(), row.picture)).join('|'), row.finding2) << row.what;
    QByteArray xml = cleanXml(Generation::ThreeG);
    xml.replace("<Standby_time ", "<Wallpaper_image Source=\"back.gif\"/><Standby_time ");
    QStringList findings = findingsOf(themeOf(xml, row.picture));
    // The size is wrong wherever it is told.
    findings.removeAll(
        "error: Wallpaper_image: \"back.gif\" has 101x80 pixels and must have 128x127.");
    EXPECT_EQ(findings.join('|'), row.finding3G) << row.what;
  }
}

TEST_F(Check, FindsWhatIsOddInTheArchive) {
  const TarBuilder clean = TarBuilder().file("t.xml", cleanXml()).file("back.gif", gif());
  const QByteArray size = QByteArray::number(cleanXml().size());
  const QByteArray picture = "back.gif <" + QByteArray::number(gif().size()) + '>';
  const QByteArray xml = "t.xml <" + size + '>';
  const auto with = [&](const QByteArray& name, const QByteArray& bytes) {
    return TarBuilder(clean).file(name, bytes).end().bytes();
  };
  const auto passed = [&](const QByteArray& name, char type) {
    return TarBuilder(clean).header({.name = name, .type = type, .link = "x"}).end().bytes();
  };
  // With a small title image and the end of an index, in which that image may be left out.
  const QByteArray title = gif({101, 20});
  const QByteArray titleSize = " <" + QByteArray::number(title.size()) + '>';
  const auto titled = [&](const QByteArray& small, const QByteArray& indexEnd) {
    QByteArray text = cleanXml();
    text.replace("gif\"/>", "gif\"/><Title_image_small Source=\"" + small + "\"/>");
    TarBuilder theme = TarBuilder().file("t.xml", text).file("back.gif", title);
    if (small != "back.gif") theme.file(small, title);
    const QByteArray index = "t.xml <" + QByteArray::number(text.size()) + '>' + indexEnd;
    return theme.file("index.txt", index).end().bytes();
  };
  const std::pair<QByteArray, QStringList> rows[] = {
      {TarBuilder(clean).cut(700).bytes(), {"error: Unexpected end of TAR file."}},
      {with("a.XML", ""),
       {"warning: The name \"a.XML\" is not in lower case.",
        "warning: There are 2 XML files, of which \"a.XML\" is taken.",
        "error: The root element \"Ericsson_theme\" is missing.",
        "warning: Colours that are missing: Standby_operatorname, Standby_operatorname_outline, "
        "Standby_time, Standby_time_outline, Desktop_background, Desktop_title, "
        "Desktop_title_outline, Title, Title_text, Title_text_shadow, Background, Text, "
        "Disabled_text, Prompt, Cursor, Highlight, Highlight_text, Highlight_disabled_text, "
        "Popup_title, Popup_title_text and 18 more.",
        "note: No element names the file \"back.gif\"."}},
      {with("a.gif\n\x1B[2m\xE2\x80\xAE", "1"),
       {"note: No element names the file \"a.gif??[2m?\"."}},
      {TarBuilder(clean).file("Back.gif", "1").file("BACK.gif", "1").end().bytes(),
       {"warning: The name \"Back.gif\" is not in lower case.",
        "warning: The name \"BACK.gif\" is not in lower case.",
        "warning: \"back.gif\" and \"Back.gif\" differ in letter case only.",
        "warning: \"back.gif\" and \"BACK.gif\" differ in letter case only.",
        "note: No element names the file \"Back.gif\".",
        "note: No element names the file \"BACK.gif\"."}},
      {TarBuilder().file("dir/t.xml", cleanXml()).file("./back.gif", gif()).end().bytes(),
       {"warning: \"dir/t.xml\" lies in a folder; all files of a theme lie side by side.",
        "warning: \"./back.gif\" lies in a folder; all files of a theme lie side by side."}},
      {with("back.gif", gif({101, 79})),
       {"warning: \"back.gif\" is in the archive several times; the last one counts."}},
      {with("t.xml", cleanXml()),
       {"warning: \"t.xml\" is in the archive several times; the last one counts."}},
      {passed("dir/", '5'), {"note: \"dir/\" is a folder, which a theme does not need."}},
      {passed("a.gif", '2'), {"warning: \"a.gif\" is a link and is passed over."}},
      {passed("a.gif", '3'), {"warning: \"a.gif\" is a device or the like and is passed over."}},
      {with("xxx.gif", gif()), {"note: No element names the file \"xxx.gif\"."}},
      {TarBuilder()
           .file("t.xml", cleanXml().replace("back.gif", "xxx.gif"))
           .file("xxx.gif", gif())
           .end()
           .bytes(),
       {"error: \"xxx.gif\" stands for no image; the file of that name is not shown."}},
      {with("dir/..", "1"), {"warning: \"dir/..\" is passed over: no file can have such a name."}},
      {with("big.gif", QByteArray(60'000, 'x')),
       {"note: No element names the file \"big.gif\".",
        "warning: The theme has 69632 bytes; phones may refuse more than 65536."}},
      {with("index.txt", xml + "\r\n" + picture), {}},
      {with("index.txt", xml + "\r\n" + picture + "\r\n"), {}},
      {with("index.txt", picture + "\r\n" + xml),
       {"note: \"index.txt\" says \"" + picture + "\" where \"" + xml + "\" belongs."}},
      {with("index.txt", xml + "\r\nback.gif <1>"),
       {"note: \"index.txt\" says \"back.gif <1>\" where \"" + picture + "\" belongs."}},
      {with("index.txt", xml), {"note: \"index.txt\" ends before \"" + picture + "\"."}},
      {with("index.txt", xml + "\r\n" + picture + "\r\na.gif <1>"),
       {"note: \"index.txt\" says \"a.gif <1>\", which is not in the archive."}},
      {titled("small.gif", "\r\nback.gif" + titleSize), {}},
      {titled("small.gif", "\r\nback.gif" + titleSize + "\r\nsmall.gif <1>"),
       {"note: \"index.txt\" says \"small.gif <1>\" where \"small.gif" + titleSize +
        "\" belongs."}},
      {titled("back.gif", "\r\nback.gif" + titleSize), {}},
      {titled("back.gif", ""), {"note: \"index.txt\" ends before \"back.gif" + titleSize + "\"."}},
  };
  for (const auto& [theme, findings] : rows)
    EXPECT_EQ(findingsOf(theme), findings) << findings.join('\n').toStdString();
}

TEST_F(Check, SampleThemesAreClean) {
  const QDir folder(SAMPLE_THEMES);
  QStringList words{"check"};
  for (const QString& name : folder.entryList({"*.thm"}))
    words += folder.filePath(name);
  EXPECT_EQ(words.size(), 9);
  EXPECT_EQ(runTool(words), kQuiet);
}

/// What a save packs for its slots is its own business: images left out of the index, or twice.
TEST_F(Check, SavedThemesAreClean) {
  const QString back = write("B\u00E4ck.GIF", gif({101, 20}));
  const QString large = write("large.gif", gif({101, 16}));
  const QString wall = write("wall.gif", gif({128, 127}));
  const QStringList rows[] = {
      {"new", "2", "--image", "Background_image=" + back, "--image",
       "Desktop_background_image=" + back, "--image", "Title_image_small=" + back, "--image",
       "Title_image_large=" + large, "--image", "Title_image_asian=" + large, "--tag",
       "Theme_name=Tea > 'n' <b & c-->"},
      {"new", "3g", "--image", "Wallpaper_image=" + wall, "--image",
       "Desktop_background_image=" + wall}};
  // The bytes of the second name are UTF-8 by chance.
  for (const char* title : {"saved", "\u00C3\u00A9", "\u7FE0"}) {
    const QString theme = path(QString(title) + ".thm");
    for (const QStringList& row : rows) {
      for (const QStringList& options : {QStringList(), {"--no-compress"}, {"--no-index"}}) {
        EXPECT_EQ(runTool(row.first(2) + QStringList(theme) + row.sliced(2) + options), kQuiet);
        EXPECT_EQ(runTool({"check", theme}), kQuiet) << row[1].toStdString();
        EXPECT_EQ(runTool({"edit", theme, theme}), kQuiet);
        EXPECT_EQ(runTool({"check", theme}), kQuiet) << row[1].toStdString();
      }
    }
  }
}

TEST_F(Check, SavesTellWhatWillBeFound) {
  const QString wall = write("wall.gif", gif({128, 127}).chopped(1));
  const QString theme = path("a.thm");
  const ToolRun made =
      runTool({"new", "3g", theme, "--set", "Title=", "--image", "Wallpaper_image=" + wall});
  EXPECT_EQ(made, (ToolRun{AllWell, "",
                           "thmtool new: Title: \"0x\" is no colour, which is 0x and six "
                           "hexadecimal digits.\nthmtool new: \"wall.gif\" is damaged.\n"}));
  const ToolRun warned =
      runTool({"edit", theme, theme, "--set", "Title=0000FF", "--tag", "Theme_name=\""});
  EXPECT_EQ(warned, (ToolRun{AllWell, "",
                             "thmtool edit: \"Theme_name\" will be read as \"\" and not as "
                             "\"\"\".\nthmtool edit: \"wall.gif\" is damaged.\n"}));
}

TEST_F(Check, GoesOnAfterAThemeThatCannotBeRead) {
  const QString clean = write("clean.thm", themeOf(cleanXml()));
  const QString odd = write("odd\n.thm", themeOf(cleanXml().replace("back.gif", "")));
  const std::string folder = path().toStdString();
  EXPECT_EQ(runTool({"check", path("gone.thm"), path(), clean, odd}).out,
            folder + "/gone.thm: error: File \"gone.thm\" not found or no read permission.\n" +
                folder + ": error: File \"" + QFileInfo(path()).fileName().toStdString() +
                "\" not found or no read permission.\n" + folder +
                "/odd?.thm: note: No element names the file \"back.gif\".\n");
}

}  // namespace

}  // namespace quillane

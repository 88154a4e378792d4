// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/tarbuilder.h"
#include "support/tinygif.h"
#include "theme/archive.h"
#include "thmtool/toolrun.h"

#include <QDateTime>

namespace quillane {

namespace {

class Edit : public ToolTest {
 protected:
  /// A picture of one colour, 0 to 3, and its path.
  QString gif(const QString& name, QSize size, int color = 1) const {
    return write(name, tinyGif(size, QRect({0, 0}, size), color));
  }
  /// Names of the members, the XML and the index of a theme of the folder.
  QString membersOf(const QString& theme) const {
    QStringList names;
    for (const ArchiveMember& member : listArchive(path(theme)).members)
      names += member.name;
    return names.join(' ');
  }
  std::string xmlOf(const QString& theme) const { return runTool({"xml", path(theme)}).out; }
  QByteArray unpacked(const QString& theme, const QString& member) const {
    QDir(path("out")).removeRecursively();
    EXPECT_EQ(runTool({"unpack", path(theme), path("out")}), kQuiet);
    return read("out/" + member);
  }
  static bool holds(const std::string& text, const char* part) {
    return text.find(part) != std::string::npos;
  }
};

TEST_F(Edit, NewWritesDefaultsAndChanges) {
  const QStringList changes{"--set",   "Title_text=ffEE00",
                            "--set",   "Title=FFFFFF",
                            "--set",   "Title=",
                            "--image", "Title_image_small=" + gif("S.GIF", {101, 20}),
                            "--tag",   "Theme_name=Caf\u00E9 = Tea",
                            "--tag",   "Theme_creator=nobody",
                            "--tag",   "Theme_creator="};
  EXPECT_EQ(runTool(QStringList{"new", "2", path("My New.v2.thm"), "--no-compress"} + changes),
            kQuiet);
  EXPECT_EQ(membersOf("My New.v2.thm"), "my new.xml index.txt s.gif");
  const std::string xml = unpacked("My New.v2.thm", "my new.xml").toStdString();
  EXPECT_EQ(xml, expected("new 2.xml"));
  EXPECT_EQ(read("out/index.txt"),
            "my new.xml <" + QByteArray::number(qsizetype(xml.size())) + '>');

  EXPECT_EQ(runTool({"new", "3g", path("b.thm"), "--no-index", "--no-tags", "--tag",
                     "Theme_name=Tea", "--set", "Title="})
                .status,
            AllWell);
  EXPECT_EQ(membersOf("b.thm"), "b.xml");
  const QByteArray threeG = unpacked("b.thm", "b.xml");
  EXPECT_FALSE(threeG.contains('\n'));
  EXPECT_TRUE(threeG.contains("<!--CreatedWithQuillane30187>--><Standby_operatorname_text "));
  EXPECT_TRUE(threeG.contains("<Title Color=\"0x\"/><Title_text Color=\"0x000000\"/>"));
}

TEST_F(Edit, ChangesAThemeInItsPlace) {
  gif("theme2/Back.GIF", {90, 70});
  gif("theme2/large.gif", {101, 16});
  const QString theme = theme2(
      "<Theme_created Time=\"1.2.2003 04:05\"/><Title Color=\"0xabcdef\"/>"
      "<Background_image Source=\"back.gif\"/><Title_image_large Source=\"large.gif\"/>"
      "<Title_image_medium Source=\"gone.gif\"/><Sound Source=\"back.gif\"/>");
  EXPECT_EQ(runTool({"edit", theme, theme, "--image", "Title_image_large=", "--image",
                     "Title_image_asian=" + gif("new/large.gif", {101, 16}, 2), "--tag",
                     "Theme_name=Tea"}),
            kQuiet);
  EXPECT_EQ(membersOf("theme2.thm"), "theme2.xml index.txt back.gif large.gif");
  EXPECT_EQ(unpacked("theme2.thm", "large.gif"), read("new/large.gif"));
  const std::string xml = xmlOf("theme2.thm");
  for (const char* part : {"30187>\r\n<Theme_name Name=\"Tea\"/>\r\n<Theme_created "
                           "Time=\"1.2.2003 04:05\"/>-->\r\n<Background_image Source=\"back.gif\"/>"
                           "\r\n<Title_image_asian Source=\"large.gif\"/>\r\n<Standby",
                           "<Title Color=\"0xabcdef\"/>"})
    EXPECT_TRUE(holds(xml, part)) << xml;
  EXPECT_EQ(runTool({"edit", theme, path("other.thm")}), kQuiet);
  EXPECT_EQ(xmlOf("other.thm"), xml);
}

TEST_F(Edit, KnowsWhenAThemeWasCreated) {
  const QString theme =
      write("t.thm", TarBuilder().file("t.xml", "<Ericsson_theme></Ericsson_theme>").end().bytes());
  const QString time =
      QDateTime::fromSecsSinceEpoch(TarBuilder::kTime).toString("'\"'d.M.yyyy hh:mm'\"'");
  const std::pair<QStringList, QString> rows[] = {
      {{}, "\r\n<Theme_created Time=" + time + "/>-->"},
      {{"--tag", "Theme_created=now"}, "\r\n<Theme_created Time=\"now\"/>-->"},
      {{"--tag", "Theme_created="}, "30187>-->"},
      {{"--no-tags"}, "30187>-->"}};
  for (const auto& [words, part] : rows) {
    EXPECT_EQ(runTool(QStringList{"edit", theme, path("a.thm")} + words), kQuiet);
    EXPECT_TRUE(holds(xmlOf("a.thm"), qPrintable(part))) << xmlOf("a.thm");
  }
}

TEST_F(Edit, ListsTheSmallTitleByTheThemeThatWasOpened) {
  const QString small = "Title_image_small=" + gif("small.gif", {101, 20});
  const QString other = "Title_image_small=" + gif("other.gif", {101, 20}, 2);
  const QString bare = path("bare.thm");
  const QString titled = path("titled.thm");
  runTool({"new", "2", bare});
  EXPECT_EQ(runTool({"edit", bare, titled, "--image", small}), kQuiet);
  EXPECT_FALSE(unpacked("titled.thm", "index.txt").contains("small.gif"));
  EXPECT_EQ(runTool({"edit", titled, path("a.thm"), "--image", other}), kQuiet);
  EXPECT_TRUE(unpacked("a.thm", "index.txt").contains("\r\nother.gif <"));
  EXPECT_EQ(runTool({"edit", titled, path("a.thm"), "--image", "Title_image_small="}), kQuiet);
  EXPECT_EQ(membersOf("a.thm"), "a.xml index.txt");
}

TEST_F(Edit, RefusesPicturesAndWritesNothing) {
  const QString theme = theme2("");
  const QString out = write("Out.thm", "old");
  const QString wide = gif("a%1.gif", {102, 80});
  const QString png = path("png.gif");
  const QString jpeg = path("fine.jpg");
  QImage picture(128, 14, QImage::Format_RGB32);
  picture.fill(Qt::red);
  ASSERT_TRUE(picture.save(png, "PNG") && picture.save(jpeg, "JPG"));
  const std::tuple<QStringList, QString, QString> rows[] = {
      {{"edit", theme},
       "Background_image=" + wide,
       "The dimensions for background image must be 101x80 pixels. Selected image: \"a%1.gif\" "
       "Dimensions: 102x80 pixels"},
      {{"new", "3g"},
       "Morelist_popup_title_image=" + wide,
       "The dimensions for popup title image must be 118x23 pixels. Selected image: \"a%1.gif\" "
       "Dimensions: 102x80 pixels"},
      {{"new", "2"}, "Background_image=" + jpeg, '"' + jpeg + "\" is no GIF file."},
      {{"new", "3g"}, "Wallpaper_image=" + png, '"' + png + "\" is neither a GIF nor a JPEG file."},
      {{"new", "2"},
       "Background_image=" + path("gone.gif"),
       "File \"" + path("gone.gif") + "\" not found."}};
  for (const auto& [words, image, complaint] : rows)
    EXPECT_EQ(
        runTool(words + QStringList{out, "--image", image}),
        (ToolRun{NotDone, "", ("thmtool " + words[0] + ": " + complaint + '\n').toStdString()}));
  EXPECT_EQ(runTool({"edit", theme, out, "--set", "Scrollbar=000000"}).status, WrongUsage);
  EXPECT_EQ(read("Out.thm"), "old");
  EXPECT_EQ(runTool({"new", "3g", out, "--image", "Statusbar_background_image=" + wide, "--image",
                     "Statusbar_background_image=" + jpeg}),
            kQuiet)
      << "the later picture counts alone";
  EXPECT_EQ(membersOf("Out.thm"), "out.xml index.txt fine.jpg");
}

TEST_F(Edit, WarnsOfWhatCannotBeSeenAndGoesOn) {
  gif("theme2/large.gif", {101, 16});
  const QString theme =
      theme2("<Title_image_large Source=\"large.gif\"/><Title_image_asian Source=\"large.gif\"/>");
  const std::tuple<QStringList, QString> rows[] = {
      {{"--set", "Text=FFFFF0", "--set", "Highlight_text=000000"},
       "Colours that are too close to tell apart: Background, Text, Highlight, Highlight_text."},
      {{"--image", "Title_image_large=" + gif("new/large.gif", {101, 16}, 2)},
       "Different images are named \"large.gif\"; one will be seen for all."},
      {{"--image", "Title_image_large=" + gif("new/\u7FE0.gif", {101, 16}, 2)},
       "The image \"\u7FE0.gif\" will not be seen: no theme can hold such a name."},
      {{"--image", "Title_image_large=" + gif("new/\u00DF\u00A4.gif", {101, 16}, 2)},
       "The image \"\u00DF\u00A4.gif\" will not be seen: no theme can hold such a name."},
      {{"--tag", "Theme_name=The \"Blue\" one"},
       "\"Theme_name\" will be read as \"The \" and not as \"The \"Blue\" one\"."},
      {{"--tag", "Theme_name=My Theme_creator is", "--tag", "Theme_creator=Tea"},
       "\"Theme_creator\" will be read as \"/>?\?<Theme_creator Name=\" and not as \"Tea\"."},
      {{"--tag", "Theme_name=Text adventure"},
       "\"Text\" will be read as \"/>?\?<Theme_created Time=\" and not as \"000000\"."},
      {{"--tag", "Theme_name=Background_image unset"},
       "\"Background_image\" will be read as \"/>?\?<Theme_created Time=\" and not as \"\"."},
      {{"--tag", "Theme_name=Sony_Ericsson_theme"},
       "The theme will be read as one of the other generation."},
      {{"--image", "Title_image_asian=" + gif("new/a><b.gif", {101, 16}, 2)},
       "\"Title_image_asian\" will be read as \"a>?\?<b.gif\" and not as \"a><b.gif\"."}};
  for (const auto& [words, warning] : rows) {
    const ToolRun run = runTool(QStringList{"edit", theme, path("a.thm")} + words);
    EXPECT_EQ(run, (ToolRun{AllWell, "", ("thmtool edit: " + warning + '\n').toStdString()}));
    EXPECT_TRUE(QFile::remove(path("a.thm")));
  }
}

}  // namespace

}  // namespace quillane

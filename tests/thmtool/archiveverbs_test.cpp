// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/tarbuilder.h"
#include "theme/archive.h"
#include "thmtool/toolrun.h"

namespace quillane {

namespace {

class ArchiveVerbs : public ToolTest {
 protected:
  QStringList membersOf(const QString& theme) const {
    QStringList names;
    for (const ArchiveMember& member : listArchive(theme).members)
      names += member.name;
    return names;
  }
};

TEST_F(ArchiveVerbs, PackKeepsTheOrderOfTheFiles) {
  const QStringList files{write("b/Zebra.GIF", "zebra"), write("a/my.xml", "<x/>")};
  EXPECT_EQ(runTool(QStringList{"pack", path("New.thm")} + files), kQuiet);
  EXPECT_EQ(membersOf(path("New.thm")), (QStringList{"zebra.gif", "my.xml"}));
}

TEST_F(ArchiveVerbs, PackPutsTheIndexFirst) {
  const QStringList files{write("My.xml", "<x/>"), write("Back.gif", "0123456789")};
  EXPECT_EQ(runTool(QStringList{"pack", "--index", path("New.thm")} + files), kQuiet);
  EXPECT_EQ(membersOf(path("New.thm")), (QStringList{"index.txt", "my.xml", "back.gif"}));
  EXPECT_EQ(runTool({"unpack", path("New.thm"), path("out")}), kQuiet);
  EXPECT_EQ(read("out/index.txt"), QByteArray("my.xml <4>\r\nback.gif <10>\r\n"));
}

TEST_F(ArchiveVerbs, PackLeavesTheOldThemeWhenAFileIsMissing) {
  const QString theme = write("Old.thm", "old");
  const QString file = write("my.xml", "<x/>");
  const QString missing = path("back.gif");
  const std::string complaint = "thmtool pack: File \"" + missing.toStdString() + "\" not found.\n";
  for (const QStringList& options : {QStringList{}, QStringList{"--index"}}) {
    EXPECT_EQ(runTool(QStringList{"pack", theme, file, missing} + options),
              (ToolRun{NotDone, "", complaint}));
    EXPECT_EQ(read("Old.thm"), QByteArray("old"));
    EXPECT_EQ(listOf(QString()), (QStringList{"Old.thm", "my.xml"}));
  }
}

TEST_F(ArchiveVerbs, PackToNowhere) {
  const QString file = write("my.xml", "<x/>");
  const std::string complaint =
      "thmtool pack: Folder \"" + path("none").toStdString() + "\" not found.\n";
  EXPECT_EQ(runTool({"pack", path("none/New.thm"), file}), (ToolRun{NotDone, "", complaint}));
}

TEST_F(ArchiveVerbs, UnpackAddsToItsFolder) {
  write("theme2/a.gif", "new");
  const QString theme = theme2("<Title Color=\"0x112233\"/>");
  write("out/deeper/a.gif", "old");
  write("out/deeper/other.txt", "kept");
  EXPECT_EQ(runTool({"unpack", theme, path("out/deeper")}), kQuiet);
  EXPECT_EQ(listOf("out/deeper"), (QStringList{"a.gif", "other.txt", "theme.xml"}));
  EXPECT_EQ(read("out/deeper/a.gif"), QByteArray("new"));
}

TEST_F(ArchiveVerbs, UnpackNeedsAFolder) {
  const QString theme = theme2("");
  const QString file = write("file", "");
  const std::string complaint = "thmtool unpack: The folder \"" + file.toStdString() +
                                "/below\" cannot be made; choose one where you may write.\n";
  EXPECT_EQ(runTool({"unpack", theme, file + "/below"}), (ToolRun{NotDone, "", complaint}));
}

TEST_F(ArchiveVerbs, UnpackKeepsWhatCameBeforeTheDamage) {
  TarBuilder tar;
  tar.file("a.xml", "<x/>").header({.name = "b.gif", .badChecksum = true}).end();
  const QString theme = write("bad.thm", tar.bytes());
  EXPECT_EQ(runTool({"unpack", theme, path("out")}),
            (ToolRun{NotDone, "", "thmtool unpack: \"" + theme.toStdString() + "\": Bad CRC.\n"}));
  EXPECT_EQ(listOf("out"), QStringList{"a.xml"});
}

TEST_F(ArchiveVerbs, XmlIsOneTagALineInItsOwnBytes) {
  const QString theme = theme2("<Theme_name Name=\"Caf\xE9\x81\"/><Title Color=\"0x1\"/>");
  EXPECT_EQ(runTool({"xml", theme}),
            (ToolRun{AllWell,
                     "<Ericsson_theme>\r\n<Theme_name Name=\"Caf\xE9\x81\"/>\r\n"
                     "<Title Color=\"0x1\"/>\r\n</Ericsson_theme>",
                     ""}));
}

struct BadTheme {
  const char* name;
  QByteArray bytes;
  const char* complaint;
};

TEST_F(ArchiveVerbs, UnreadableThemesAreNamed) {
  const BadTheme rows[] = {
      {"text", "no theme at all",
       "The file you attempted to open could not be read or does not contain valid TAR data."},
      {"zipped", QByteArray::fromHex("1f8b0800"), "Unknown compression method."},
      {"cut", TarBuilder().file("a.xml", QByteArray(2000, 'x')).cut(1500).bytes(),
       "Unexpected end of TAR file."},
      {"noxml", TarBuilder().file("a.gif", "x").end().bytes(),
       "This theme does not contain an XML file."},
  };
  for (const BadTheme& row : rows) {
    const QString theme = write(QString(row.name), row.bytes);
    const std::string complaint = "\"" + theme.toStdString() + "\": " + row.complaint + "\n";
    EXPECT_EQ(runTool({"xml", theme}), (ToolRun{NotDone, "", "thmtool xml: " + complaint}));
    EXPECT_EQ(runTool({"info", theme}), (ToolRun{NotDone, "", "thmtool info: " + complaint}));
    EXPECT_EQ(runTool({"render", theme, "--out", path("out")}),
              (ToolRun{NotDone, "", "thmtool render: " + complaint}));
    EXPECT_FALSE(QFile::exists(path("out")));
  }
}

TEST_F(ArchiveVerbs, MissingThemeIsToldInOneLine) {
  const std::string complaint = "thmtool xml: \"" + path("x.thm").toStdString() +
                                "\": File \"x.thm\" not found or no read permission.\n";
  EXPECT_EQ(runTool({"xml", path("x.thm")}), (ToolRun{NotDone, "", complaint}));
}

}  // namespace

}  // namespace quillane

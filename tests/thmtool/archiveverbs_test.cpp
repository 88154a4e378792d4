// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/tinygif.h"
#include "theme/archive.h"
#include "thmtool/toolrun.h"

namespace quillane {

namespace {

class ArchiveVerbs : public ToolTest {};

TEST_F(ArchiveVerbs, PackKeepsTheOrderBehindTheIndex) {
  const QStringList files{write("b/My.xml", "<x/>"), write("a/Back.gif", "0123456789")};
  EXPECT_EQ(runTool(QStringList{"pack", "--index", path("New.thm")} + files), kQuiet);
  QStringList names;
  for (const ArchiveMember& member : listArchive(path("New.thm")).members)
    names += member.name;
  EXPECT_EQ(names, (QStringList{"index.txt", "my.xml", "back.gif"}));
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

TEST_F(ArchiveVerbs, NamesMayBeginWithAColon) {
  const QString before = QDir::currentPath();
  ASSERT_TRUE(QDir::setCurrent(path()));
  write("./:b.gif", tinyGif({101, 80}, {0, 0, 101, 80}, 1));
  const QStringList rows[] = {{"new", "2", ":a.thm", "--image", "Background_image=:b.gif"},
                              {"edit", ":a.thm", ":a.thm"},
                              {"check", ":a.thm"},
                              {"unpack", ":a.thm", ":out"},
                              {"pack", "--index", ":b.thm", ":out/:a.xml", ":b.gif"},
                              {"check", ":b.thm"},
                              {"render", ":b.thm", "--out", ":pictures", "--screens", "standby"},
                              {"render", ":b.thm", "--sheet", ":sheet.png"},
                              {"thumbnail", ":b.thm", ":small.png", "64"}};
  for (const QStringList& row : rows)
    EXPECT_EQ(runTool(row), kQuiet) << row.join(' ').toStdString();
  EXPECT_EQ(runTool({"info", ":b.thm"}).out.substr(0, 14), "File: :b.thm\nG");
  EXPECT_EQ(runTool({"check", ":gone.thm"}).out,
            ":gone.thm: error: File \":gone.thm\" not found or no read permission.\n");
  EXPECT_EQ(listOf(""), (QStringList{":a.thm", ":b.gif", ":b.thm", ":out", ":pictures",
                                     ":sheet.png", ":small.png"}));
  QDir::setCurrent(before);
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
  EXPECT_EQ(runTool({"unpack", file, path("out")}).status, NotDone);
  EXPECT_FALSE(QFile::exists(path("out"))) << "for what is no theme";
}

TEST_F(ArchiveVerbs, XmlIsOneTagALineInItsOwnBytes) {
  const QString theme = theme2("<Theme_name Name=\"Caf\xE9\x81\"/><Title Color=\"0x1\"/>");
  EXPECT_EQ(runTool({"xml", theme}),
            (ToolRun{AllWell,
                     "<Ericsson_theme>\r\n<Theme_name Name=\"Caf\xE9\x81\"/>\r\n"
                     "<Title Color=\"0x1\"/>\r\n</Ericsson_theme>",
                     ""}));
}

}  // namespace

}  // namespace quillane

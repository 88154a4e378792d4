// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/tar_builder.h"
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
  const QStringList files{write(u"b/Zebra.GIF"_s, "zebra"), write(u"a/my.xml"_s, "<x/>")};
  EXPECT_EQ(runTool(QStringList{u"pack"_s, path(u"New.thm"_s)} + files), kQuiet);
  EXPECT_EQ(membersOf(path(u"New.thm"_s)), (QStringList{u"zebra.gif"_s, u"my.xml"_s}));
}

TEST_F(ArchiveVerbs, PackPutsTheIndexFirst) {
  const QStringList files{write(u"My.xml"_s, "<x/>"), write(u"Back.gif"_s, "0123456789")};
  EXPECT_EQ(runTool(QStringList{u"pack"_s, u"--index"_s, path(u"New.thm"_s)} + files), kQuiet);
  EXPECT_EQ(membersOf(path(u"New.thm"_s)),
            (QStringList{u"index.txt"_s, u"my.xml"_s, u"back.gif"_s}));
  EXPECT_EQ(runTool({u"unpack"_s, path(u"New.thm"_s), path(u"out"_s)}), kQuiet);
  EXPECT_EQ(read(u"out/index.txt"_s), QByteArray("my.xml <4>\r\nback.gif <10>\r\n"));
}

TEST_F(ArchiveVerbs, PackLeavesTheOldThemeWhenAFileIsMissing) {
  const QString theme = write(u"Old.thm"_s, "old");
  const QString file = write(u"my.xml"_s, "<x/>");
  const QString missing = path(u"back.gif"_s);
  const std::string complaint = "thmtool pack: File \"" + missing.toStdString() + "\" not found.\n";
  for (const QStringList& options : {QStringList{}, QStringList{u"--index"_s}}) {
    EXPECT_EQ(runTool(QStringList{u"pack"_s, theme, file, missing} + options),
              (ToolRun{NotDone, "", complaint}));
    EXPECT_EQ(read(u"Old.thm"_s), QByteArray("old"));
    EXPECT_EQ(listOf(QString()), (QStringList{u"Old.thm"_s, u"my.xml"_s}));
  }
}

TEST_F(ArchiveVerbs, PackToNowhere) {
  const QString file = write(u"my.xml"_s, "<x/>");
  const std::string complaint =
      "thmtool pack: Folder \"" + path(u"none"_s).toStdString() + "\" not found.\n";
  EXPECT_EQ(runTool({u"pack"_s, path(u"none/New.thm"_s), file}), (ToolRun{NotDone, "", complaint}));
}

TEST_F(ArchiveVerbs, UnpackAddsToItsFolder) {
  write(u"theme2/a.gif"_s, "new");
  const QString theme = theme2("<Title Color=\"0x112233\"/>");
  write(u"out/deeper/a.gif"_s, "old");
  write(u"out/deeper/other.txt"_s, "kept");
  EXPECT_EQ(runTool({u"unpack"_s, theme, path(u"out/deeper"_s)}), kQuiet);
  EXPECT_EQ(listOf(u"out/deeper"_s), (QStringList{u"a.gif"_s, u"other.txt"_s, u"theme.xml"_s}));
  EXPECT_EQ(read(u"out/deeper/a.gif"_s), QByteArray("new"));
}

TEST_F(ArchiveVerbs, UnpackNeedsAFolder) {
  const QString theme = theme2("");
  const QString file = write(u"file"_s, "");
  const std::string complaint = "thmtool unpack: The folder \"" + file.toStdString() +
                                "/below\" cannot be made; choose one where you may write.\n";
  EXPECT_EQ(runTool({u"unpack"_s, theme, file + u"/below"_s}), (ToolRun{NotDone, "", complaint}));
}

TEST_F(ArchiveVerbs, UnpackKeepsWhatCameBeforeTheDamage) {
  TarBuilder tar;
  tar.file("a.xml", "<x/>").header({.name = "b.gif", .badChecksum = true}).end();
  const QString theme = write(u"bad.thm"_s, tar.bytes());
  EXPECT_EQ(runTool({u"unpack"_s, theme, path(u"out"_s)}),
            (ToolRun{NotDone, "", "thmtool unpack: \"" + theme.toStdString() + "\": Bad CRC.\n"}));
  EXPECT_EQ(listOf(u"out"_s), QStringList{u"a.xml"_s});
}

TEST_F(ArchiveVerbs, XmlIsOneTagALineInItsOwnBytes) {
  const QString theme = theme2("<Theme_name Name=\"Caf\xE9\x81\"/><Title Color=\"0x1\"/>");
  EXPECT_EQ(runTool({u"xml"_s, theme}),
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
    const QString theme = write(QString::fromLatin1(row.name), row.bytes);
    const std::string complaint = "\"" + theme.toStdString() + "\": " + row.complaint + "\n";
    EXPECT_EQ(runTool({u"xml"_s, theme}), (ToolRun{NotDone, "", "thmtool xml: " + complaint}));
    EXPECT_EQ(runTool({u"info"_s, theme}), (ToolRun{NotDone, "", "thmtool info: " + complaint}));
    EXPECT_EQ(runTool({u"render"_s, theme, u"--out"_s, path(u"out"_s)}),
              (ToolRun{NotDone, "", "thmtool render: " + complaint}));
    EXPECT_FALSE(QFile::exists(path(u"out"_s)));
  }
}

TEST_F(ArchiveVerbs, MissingThemeIsToldInOneLine) {
  const std::string complaint = "thmtool xml: \"" + path(u"x.thm"_s).toStdString() +
                                "\": File \"x.thm\" not found or no read permission.\n";
  EXPECT_EQ(runTool({u"xml"_s, path(u"x.thm"_s)}), (ToolRun{NotDone, "", complaint}));
}

}  // namespace
}  // namespace quillane

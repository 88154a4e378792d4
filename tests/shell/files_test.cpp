// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/files.h"

#include "shell/ini.h"
#include "shell/instance.h"
#include "shell/listing.h"
#include "shell/places.h"
#include "shell/seed.h"
#include "support/tempfolder.h"

#include <QLockFile>

namespace quillane {

namespace {

class Files : public TempFolder {};

TEST_F(Files, FindsHiddenFilesAndPatternsButNoFolders) {
  write(".hidden", "x");
  makeFolder("folder");
  EXPECT_TRUE(FileExists(path(".hidden")));
  EXPECT_TRUE(FileExists(path("*dden")));
  EXPECT_FALSE(FileExists(path("*.gif")));
  EXPECT_FALSE(FileExists(path("folder")));
  EXPECT_TRUE(FolderExists(path("folder/")));
  EXPECT_FALSE(FolderExists(path(".hidden")));
  EXPECT_FALSE(FolderExists(QString()));
}

TEST_F(Files, DeletesEveryFileAndNoFolder) {
  write("work/a.gif", "x");
  write("work/noending", "x");
  write("work/.hidden", "x");
  write("work/:colon", "x");
  write("work/new/kept", "x");
  DeleteFiles(path("work/*.*"));
  EXPECT_EQ(listOf("work"), QStringList{"new"});
  EXPECT_EQ(read("work/new/kept"), "x");
}

TEST_F(Files, ShowsSizesWithAPoint) {
  EXPECT_EQ(sizeText(0), "0.0 KB (0 bytes)");
  EXPECT_EQ(sizeText(12595), "12.3 KB (12595 bytes)");
  EXPECT_EQ(FormatFileSize(write("a", QByteArray(1536, 'x'))), "1.5 KB (1536 bytes)");
  EXPECT_EQ(FormatFileSize(path("missing")), "");
}

TEST_F(Files, ListsByNameWhateverTheLetterCase) {
  for (const char* name : {"b.thm", "A.THM", "c.thm", ".hidden.thm", "d.zip", "thm"})
    write(name, "x");
  makeFolder("folder.thm");
  EXPECT_EQ(listFiles(path(), ".thm"), (QStringList{"A.THM", "b.thm", "c.thm"}));
  EXPECT_EQ(listFiles(path(), {}, HiddenFiles::List),
            (QStringList{".hidden.thm", "A.THM", "b.thm", "c.thm", "d.zip", "thm"}));
}

class Ini : public TempFolder {};

TEST_F(Ini, ReadsAsTheFileStands) {
  const std::tuple<const char*, QByteArray, QString> cases[] = {
      {"plain", "[Menu]\r\nTitles=A|B\r\n", "A|B"},
      {"blanks around", "[ Menu ]\n  Titles  =  A | B  \n", "A | B"},
      {"other letter case", "[MENU]\ntitles=A\n", "A"},
      {"quotes", "[Menu]\nTitles=\" A \"\n", "A "},
      {"a space that is no blank", "[Menu]\nTitles=A\xa0\n", QString("A") + QChar(0xA0)},
      {"an equals sign in the value", "[Menu]\nTitles=a=b\n", "a=b"},
      {"first of two keys", "[Menu]\nTitles=1\nTitles=2\n", "1"},
      {"key in another section", "[Other]\nTitles=1\n[Menu]\n", "standard"},
      {"commented out", "[Menu]\n;Titles=1\n", "standard"},
      {"empty value", "[Menu]\nTitles=\n", ""},
      {"no section", "Titles=1\n", "standard"},
      {"8-bit text", "[Menu]\nTitles=\xe9\x80\n", "é€"},
      {"too long", "[Menu]\nTitles=" + QByteArray(300, 'x'), QString(254, 'x')},
      {"not a text at all", QByteArray("\0\xff[\0=]", 6), "standard"}};
  for (const auto& [fault, text, value] : cases)
    EXPECT_EQ(ReadIni("Menu", "Titles", "standard", write("x.lng", text)), value) << fault;
  EXPECT_EQ(ReadIni("Menu", "Titles", "standard", path("missing.lng")), "standard");
}

TEST_F(Ini, WritesAValueAndKeepsTheRest) {
  const std::tuple<const char*, QByteArray, QByteArray> cases[] = {
      {"no text", "", "[B]\r\nKey One=7\r\n"},
      {"another section", "[A]\r\nKey One=1\r\n", "[A]\r\nKey One=1\r\n[B]\r\nKey One=7\r\n"},
      {"a value to replace", "; x\r\n[b ]\r\n key one = 1\r\nz=2\r\n",
       "; x\r\n[b ]\r\nKey One=7\r\nz=2\r\n"},
      {"the first of two", "[B]\nKey One=1\nKey One=2\n", "[B]\nKey One=7\r\nKey One=2\n"},
      {"a comment like it", "[B]\r\n;Key One=1\r\n", "[B]\r\n;Key One=1\r\nKey One=7\r\n"},
      {"a section before others", "[B]\r\na=1\r\n\r\n[C]\r\nKey One=2\r\n",
       "[B]\r\na=1\r\nKey One=7\r\n\r\n[C]\r\nKey One=2\r\n"},
      {"an empty section", "[B]\r\n[C]\r\n", "[B]\r\nKey One=7\r\n[C]\r\n"},
      {"no line end", "[B]\r\na=\xE4", "[B]\r\na=\xE4\r\nKey One=7\r\n"}};
  for (const auto& [name, before, after] : cases) {
    const QString file = write("x.ini", before);
    WriteIni("B", "Key One", "7", file);
    EXPECT_EQ(read("x.ini"), after) << name;
    EXPECT_EQ(ReadIni("B", "Key One", "", file), "7") << name;
  }
  WriteIni("B", "Key One", "7", path("new/folder/x.ini"));
  EXPECT_EQ(read("new/folder/x.ini"), "[B]\r\nKey One=7\r\n");
}

class Seed : public TempFolder {
 protected:
  void seed() { seedProgramFolder({path("home"), path("shipped"), {}, {}}, log.reporter()); }

  FaultLog log;
};

TEST_F(Seed, CopiesEachFileOnceAndNeverOverAnother) {
  write("shipped/My Themes/a.thm", "new");
  write("shipped/My Themes/b.thm", "new");
  write("shipped/help/index.html", "read where it is");
  write("home/My Themes/a.thm", "the user's own");
  seed();
  EXPECT_FALSE(QFile::exists(path("home/help")));
  EXPECT_EQ(read("home/My Themes/a.thm"), "the user's own");
  EXPECT_EQ(read("home/My Themes/b.thm"), "new");

  QFile::remove(path("home/My Themes/b.thm"));
  write("shipped/Vistrel Config/2/c.lng", "later");
  seed();
  EXPECT_EQ(listOf("home/My Themes"), QStringList{"a.thm"}) << "what was deleted stays deleted";
  EXPECT_EQ(read("home/Vistrel Config/2/c.lng"), "later");
  EXPECT_TRUE(log.texts().isEmpty());
}

TEST_F(Seed, ReportsOnceWhatCannotBeCopiedAndGoesOn) {
  write("shipped/My Themes/a.thm", "a");
  write("shipped/My Themes/b.thm", "b");
  write("shipped/c.txt", "c");
  write("home/My Themes", "a file in the way");
  seed();
  EXPECT_EQ(read("home/c.txt"), "c");
  ASSERT_EQ(log.texts().size(), 1);
  EXPECT_TRUE(log.texts().first().contains(path("home/My Themes")))
      << log.texts().first().toStdString();
  EXPECT_TRUE(log.texts().first().endsWith("(And 1 more.)"));
}

class Instance : public TempFolder {};

TEST_F(Instance, IsOneAtATime) {
  QLockFile first(path("lock"));
  QLockFile second(path("lock"));
  EXPECT_TRUE(takeInstanceLock(first));
  EXPECT_FALSE(takeInstanceLock(second));
  first.unlock();
  EXPECT_TRUE(takeInstanceLock(second));
}

TEST_F(Instance, DeadAndDamagedLocksDoNotCount) {
  for (const QByteArray& left :
       {QByteArray(), QByteArray("%"), QByteArray("999999999\nquillane\n")}) {
    QLockFile lock(write("lock", left));
    EXPECT_TRUE(takeInstanceLock(lock)) << left.toStdString();
  }
}

TEST_F(Instance, SaysWhereALockCannotBeMade) {
  QLockFile lock(path("missing/lock"));
  EXPECT_EQ(faultNumberOf([&] { takeInstanceLock(lock); }),
            static_cast<int>(FaultNumber::NoPermission));
}

}  // namespace

}  // namespace quillane

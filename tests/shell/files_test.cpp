// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/files.h"

#include "shell/listing.h"
#include "support/tempfolder.h"
#include "support/text.h"

#include <QFile>

namespace quillane {

namespace {

class Files : public TempFolder {};

TEST_F(Files, SplitsAtTheLastSeparator) {
  EXPECT_EQ(SplitPath("/a/b/c.thm", PathPart::Name), "c.thm");
  EXPECT_EQ(SplitPath("/a/b/c.thm", PathPart::Folder), "/a/b/");
  EXPECT_EQ(SplitPath("c.thm", PathPart::Name), "c.thm");
  EXPECT_EQ(SplitPath("c.thm", PathPart::Folder), "");
}

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
}

TEST_F(Files, SaysWhichFolderCannotBeListed) {
  EXPECT_EQ(faultNumberOf([&] { listFiles(path("missing"), ".thm"); }),
            static_cast<int>(FaultNumber::NoPermission));
}

}  // namespace

}  // namespace quillane

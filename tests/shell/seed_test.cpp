// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/seed.h"

#include "shell/places.h"
#include "support/tempfolder.h"
#include "support/text.h"

namespace quillane {

namespace {

class Seed : public TempFolder {
 protected:
  void seed() { seedProgramFolder({path("home"), path("shipped"), {}, {}}, log.reporter()); }

  FaultLog log;
};

TEST_F(Seed, CopiesEachFileOnceAndNeverOverAnother) {
  write("shipped/My Themes/a.thm", "new");
  write("shipped/My Themes/b.thm", "new");
  write("home/My Themes/a.thm", "the user's own");
  seed();
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

TEST_F(Seed, NothingShippedIsNoFault) {
  seed();
  EXPECT_TRUE(log.texts().isEmpty());
}

}  // namespace

}  // namespace quillane

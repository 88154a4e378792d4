// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/tempfolder.h"
#include "theme/archive.h"
#include "theme/values.h"

#include <QDateTime>
#include <QFileInfo>

#include <sys/stat.h>

namespace quillane {

namespace {

class Pack : public TempFolder {
 protected:
  QString makeFile(const QString& name, const QByteArray& bytes) {
    QString file = write(name, bytes);
    setTime(file, 1'100'000'000);
    return file;
  }
  static void setTime(const QString& path, qint64 seconds) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.setFileTime(QDateTime::fromSecsSinceEpoch(seconds),
                                 QFileDevice::FileModificationTime));
  }
  QStringList membersOf(const QString& theme) {
    QStringList names;
    for (const ArchiveMember& member : listArchive(path(theme)).members)
      names += member.name;
    return names;
  }
  int packNumber(const QStringList& files) {
    return faultNumberOf([&] { packArchive(path("t.thm"), files); });
  }
};

TEST_F(Pack, WritesPlainHeadersAndTwoEndBlocks) {
  packArchive(path("t.thm"), {makeFile("Sub/New Theme.XML", "<a/>")});
  const QByteArray tar = read("t.thm");
  ASSERT_EQ(tar.size(), 4 * 512);
  const std::tuple<const char*, int, QByteArray> rows[] = {
      {"name", 0, QByteArray("new theme.xml\0", 14)},
      {"mode", 100, "000644 "},
      {"owner", 108, "000000 "},
      {"group", 116, "000000 "},
      {"size", 124, "00000000004 "},
      {"time", 136, "10144125400 "},
      {"type", 156, "0"},
      {"magic", 257, QByteArray("ustar\00000", 8)},
      {"owner's name", 265, QByteArray(64, '\0')},
      {"bytes", 512, QByteArray("<a/>") + QByteArray(508 + 1024, '\0')}};
  for (const auto& [what, at, field] : rows)
    EXPECT_EQ(tar.mid(at, field.size()), field) << what;
}

TEST_F(Pack, KeepsOrderAndRepeatsAndTellsTheSameTwice) {
  const QString b = makeFile("B.gif", QByteArray(512, 'b'));
  const QString a = makeFile("\u00C4.gif", "");
  packArchive(path("1.thm"), {b, a, b});
  packArchive(path("2.thm"), {b, a, b});
  EXPECT_EQ(membersOf("1.thm"), QStringList({"b.gif", "\u00E4.gif", "b.gif"}));
  EXPECT_EQ(read("1.thm"), read("2.thm"));
  EXPECT_EQ(read("1.thm").mid(1024, 7), QByteArray("\xE4.gif\0\0", 7));
  packArchive(path("2.thm"), {});
  EXPECT_EQ(read("2.thm"), QByteArray(1024, '\0'));
}

TEST_F(Pack, GivesRecordsToTheMemberThatNeedsThemAlone) {
  const QString name100 = QString(96, u'x') + ".gif";
  const QString name101 = QString(97, u'y') + ".gif";
  const QString umlauts = QString(100, u'\u00E4') + ".gif";
  const QString old = makeFile("old.gif", "old");
  setTime(old, -1'000'000);
  packArchive(path("t.thm"), {makeFile(name100, "1"), makeFile(name101, "2"), old,
                              makeFile(umlauts, "3"), makeFile("last.gif", "4")});
  EXPECT_EQ(membersOf("t.thm"), QStringList({name100, name101, "old.gif", umlauts, "last.gif"}));
  EXPECT_EQ(read("t.thm").count("ustar"), 5 + 3);
  EXPECT_EQ(read("t.thm").count("hdrcharset=BINARY"), 1) << "of the name beyond ASCII";
  extractArchive(path("t.thm"), makeFolder("out"));
  EXPECT_EQ(QFileInfo(path("out/old.gif")).lastModified().toSecsSinceEpoch(), -1'000'000);
  EXPECT_EQ(read("out/" + umlauts), "3");
}

TEST_F(Pack, TakesAsMuchAsTheReader) {
  const auto sized = [this](const QString& name, qint64 size) {
    EXPECT_TRUE(QFile::resize(makeFile(name, ""), size));
    return path(name);
  };
  const QString small = makeFile("small.gif", "s");
  const QString large = sized("large.gif", 16 << 20);
  const QString first = makeFile("first.gif", "f");
  const std::tuple<const char*, QStringList, QString, QString> rows[] = {
      {"member", {large}, sized("larger.gif", (16 << 20) + 1), "may have 16777216."},
      {"XML", {sized("A.XML", 1 << 20)}, sized("b.Xml", (1 << 20) + 1), "may have 1048576."},
      {"all", {large, large, large, large}, small, "may have 67108864."},
      {"number", QStringList(1000, first), small, "may have 1000."}};
  for (const auto& [what, enough, more, limit] : rows) {
    EXPECT_EQ(packNumber(enough), 0) << what;
    const QByteArray before = read("t.thm");
    EXPECT_EQ(listArchive(path("t.thm")).code, 0) << what;
    try {
      packArchive(path("t.thm"), enough + QStringList{more});
      ADD_FAILURE() << what;
    } catch (const Fault& fault) {
      EXPECT_TRUE(fault.description().contains('"' + more + '"')) << fault.what();
      EXPECT_TRUE(fault.description().endsWith(limit)) << fault.what();
    }
    EXPECT_TRUE(read("t.thm") == before) << what;
  }
}

TEST_F(Pack, LeavesAPipeInItsPlace) {
  const QString pipe = path("pipe.thm");
  ASSERT_EQ(mkfifo(qPrintable(pipe), 0600), 0);
  EXPECT_NE(faultNumberOf([&] { packArchive(pipe, {write("a.xml", "x")}); }), 0);
  EXPECT_TRUE(QFileInfo::exists(pipe) && !QFileInfo(pipe).isFile());
}

TEST(ThemeImages, OfGeneration2LeaveOutSharedOnes) {
  ThemeValues two(Generation::Two);
  two.setImage(gen2::BackgroundImage, "/t/back.gif");
  two.setImage(gen2::DesktopBackgroundImage, "/T/Back.gif");
  two.setImage(gen2::TitleImageLarge, "/t/large.gif");
  two.setImage(gen2::TitleImageAsian, "/t/LARGE.gif");
  EXPECT_EQ(themeImages(two), (QStringList{"/t/back.gif", "/t/large.gif"}));
}

}  // namespace

}  // namespace quillane

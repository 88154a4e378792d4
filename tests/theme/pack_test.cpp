// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/hindrance.h"
#include "support/temp_folder.h"
#include "support/text.h"
#include "theme/archive.h"
#include "theme/values.h"

#include <QDateTime>

namespace quillane {
namespace {

using namespace Qt::StringLiterals;

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
    return faultNumberOf([&] { packArchive(path(u"t.thm"_s), files); });
  }
};

TEST_F(Pack, WritesPlainHeadersAndTwoEndBlocks) {
  packArchive(path(u"t.thm"_s), {makeFile(u"Sub/New Theme.XML"_s, "<a/>")});
  const QByteArray tar = read(u"t.thm"_s);
  ASSERT_EQ(tar.size(), 4 * 512);
  const struct {
    const char* what;
    int at;
    QByteArray field;
  } rows[] = {{"name", 0, QByteArray("new theme.xml\0", 14)},
              {"mode", 100, "000644 "},
              {"owner", 108, "000000 "},
              {"group", 116, "000000 "},
              {"size", 124, "00000000004 "},
              {"time", 136, "10144125400 "},
              {"type", 156, "0"},
              {"magic", 257,
               QByteArray("ustar\0"
                          "00",
                          8)},
              {"owner's name", 265, QByteArray(64, '\0')},
              {"bytes", 512, QByteArray("<a/>") + QByteArray(508 + 1024, '\0')}};
  for (const auto& row : rows)
    EXPECT_EQ(tar.mid(row.at, row.field.size()), row.field) << row.what;
}

TEST_F(Pack, KeepsOrderAndRepeatsAndTellsTheSameTwice) {
  const QString b = makeFile(u"B.gif"_s, QByteArray(512, 'b'));
  const QString a = makeFile(u"\u00C4.gif"_s, "");
  packArchive(path(u"1.thm"_s), {b, a, b});
  packArchive(path(u"2.thm"_s), {b, a, b});
  EXPECT_EQ(membersOf(u"1.thm"_s), QStringList({u"b.gif"_s, u"\u00E4.gif"_s, u"b.gif"_s}));
  EXPECT_EQ(read(u"1.thm"_s), read(u"2.thm"_s));
  EXPECT_EQ(read(u"1.thm"_s).mid(1024, 7), QByteArray("\xE4.gif\0\0", 7));
  packArchive(path(u"2.thm"_s), {});
  EXPECT_EQ(read(u"2.thm"_s), QByteArray(1024, '\0'));
}

TEST_F(Pack, GivesRecordsToTheMemberThatNeedsThemAlone) {
  const QString name100 = QString(96, u'x') + u".gif"_s;
  const QString name101 = QString(97, u'y') + u".gif"_s;
  const QString umlauts = QString(100, u'\u00E4') + u".gif"_s;
  const QString old = makeFile(u"old.gif"_s, "old");
  setTime(old, -1'000'000);
  packArchive(path(u"t.thm"_s), {makeFile(name100, "1"), makeFile(name101, "2"), old,
                                 makeFile(umlauts, "3"), makeFile(u"last.gif"_s, "4")});
  EXPECT_EQ(membersOf(u"t.thm"_s),
            QStringList({name100, name101, u"old.gif"_s, umlauts, u"last.gif"_s}));
  EXPECT_EQ(read(u"t.thm"_s).count("ustar"), 5 + 3);
  extractArchive(path(u"t.thm"_s), makeFolder(u"out"_s));
  EXPECT_EQ(QFileInfo(path(u"out/old.gif"_s)).lastModified().toSecsSinceEpoch(), -1'000'000);
  EXPECT_EQ(read(u"out/"_s + umlauts), "3");
}

TEST_F(Pack, WritesAQuestionMarkForASignOutsideTheCodePage) {
  packArchive(path(u"t.thm"_s), {makeFile(u"\u0416.gif"_s, "x")});
  EXPECT_EQ(membersOf(u"t.thm"_s), QStringList({u"?.gif"_s}));
}

TEST_F(Pack, LeavesTheOldArchiveWhereItFails) {
  const QString good = makeFile(u"good.gif"_s, QByteArray(4096, 'g'));
  const QString secret = makeFile(u"secret.gif"_s, "x");
  ASSERT_TRUE(QFile::setPermissions(secret, QFile::WriteOwner));
  write(u"t.thm"_s, "old");
  EXPECT_EQ(packNumber({good, path(u"missing.gif"_s)}), 53);
  EXPECT_EQ(packNumber({good, path()}), 53);
  {
    const WithoutPrivilege nobody;
    EXPECT_EQ(packNumber({secret}), 70);
  }
  {
    const FileSizeLimit limit(1024);
    EXPECT_EQ(packNumber({good}), 57);
  }
  EXPECT_EQ(read(u"t.thm"_s), "old");
  EXPECT_EQ(listOf(u""_s), QStringList({u"good.gif"_s, u"secret.gif"_s, u"t.thm"_s}));
  EXPECT_EQ(faultNumberOf([&] { packArchive(path(u"none/t.thm"_s), {good}); }), 53);
}

TEST_F(Pack, TellsWhenTheDiskIsFull) {
  const SmallDisk disk(makeFolder(u"small"_s));
  if (!disk.isMounted()) GTEST_SKIP() << "No right to mount a small file system.";
  const QString large = makeFile(u"large.gif"_s, QByteArray(1 << 20, 'l'));
  EXPECT_EQ(faultNumberOf([&] { packArchive(path(u"small/t.thm"_s), {large}); }), 61);
  EXPECT_EQ(listOf(u"small"_s), QStringList());
}

TEST_F(Pack, ListsNamesAndSizes) {
  const QStringList files{makeFile(u"New Theme.XML"_s, "12345"), makeFile(u"\u00DC.gif"_s, "")};
  const QByteArray index = "new theme.xml <5>\r\n\xFC.gif <0>";
  EXPECT_EQ(themeIndex(files, IndexEnd::Bare), index);
  EXPECT_EQ(themeIndex(files, IndexEnd::LineEnd), index + "\r\n");
  EXPECT_EQ(themeIndex({}, IndexEnd::LineEnd), "");
  EXPECT_EQ(faultNumberOf([&] { themeIndex({path(u"missing"_s)}, IndexEnd::Bare); }), 53);
}

TEST(ThemeImages, FollowTheTableAndLeaveOutSharedOnesOfGeneration2) {
  ThemeValues two(Generation::Two);
  two.setImage(gen2::BackgroundImage, u"/t/back.gif"_s);
  two.setImage(gen2::DesktopBackgroundImage, u"/T/Back.gif"_s);
  two.setImage(gen2::TitleImageLarge, u"/t/large.gif"_s);
  two.setImage(gen2::TitleImageAsian, u"/t/asian.gif"_s);
  EXPECT_EQ(themeImages(two),
            (QStringList{u"/t/back.gif"_s, u"/t/large.gif"_s, u"/t/asian.gif"_s}));
  two.setImage(gen2::TitleImageAsian, u"/t/LARGE.gif"_s);
  EXPECT_EQ(themeImages(two), (QStringList{u"/t/back.gif"_s, u"/t/large.gif"_s}));

  ThemeValues threeG(Generation::ThreeG);
  threeG.setImage(gen3g::DesktopBackgroundImage, u"/t/a.gif"_s);
  threeG.setImage(gen3g::WallpaperImage, u"/t/a.gif"_s);
  threeG.setImage(gen3g::StatusbarBackgroundImage, u"/t/s.gif"_s);
  EXPECT_EQ(themeImages(threeG), (QStringList{u"/t/s.gif"_s, u"/t/a.gif"_s, u"/t/a.gif"_s}));
}

}  // namespace
}  // namespace quillane

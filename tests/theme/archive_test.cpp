// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "theme/archive.h"

#include "support/hindrance.h"
#include "support/tar_builder.h"
#include "support/temp_folder.h"
#include "support/text.h"
#include "theme/archive_reader.h"

#include <QBuffer>
#include <QDateTime>

#include <clocale>

namespace quillane {
namespace {

using namespace Qt::StringLiterals;

constexpr qint64 kMiB = 1 << 20;

/// Keeps the members in memory.
class MemorySink final : public MemberSink {
 public:
  int begin(const ArchiveMember& member, qint64) override {
    name_ = member.name;
    files[name_] = QByteArray(member.size, '\0');
    return Success;
  }
  int write(qint64 offset, QByteArrayView bytes) override {
    files[name_].replace(offset, bytes.size(), bytes.toByteArray());
    return Success;
  }
  int end() override { return Success; }

  QMap<QString, QByteArray> files;

 private:
  QString name_;
};

struct Reading {
  int code;
  QStringList names;
  QMap<QString, QByteArray> files;
};

Reading readBytes(const QByteArray& bytes) {
  QBuffer device;
  device.setData(bytes);
  device.open(QIODevice::ReadOnly);
  MemorySink sink;
  const ArchiveResult result = readArchive(device, sink);
  Reading reading{result.code, {}, sink.files};
  for (const ArchiveMember& member : result.members)
    reading.names += member.name;
  return reading;
}

TarBuilder twoFiles() {
  return TarBuilder().file("a.xml", "<a/>").file("b.gif", QByteArray(600, 'b'));
}

TarBuilder manyHeaders(int count, char type) {
  TarBuilder tar;
  for (int at = 0; at < count; ++at)
    tar.header({.name = "n" + QByteArray::number(at), .type = type});
  return tar.end();
}

/// Three blocks hold "a.xml", the fourth is a header, the rest are the bytes of "b.gif".
constexpr qsizetype kSecondHeader = 1024;
constexpr qsizetype kSecondBytes = kSecondHeader + 512;

TEST(ReadArchive, TellsEachFaultByItsCode) {
  const struct {
    const char* what;
    TarBuilder tar;
    int code;
    qsizetype members;
  } rows[] = {
      {"whole", twoFiles().end(), Success, 2},
      {"no end blocks", twoFiles(), Success, 2},
      {"one end block", twoFiles().end(1), Success, 2},
      {"garbage behind the end", twoFiles().end().raw("garbage"), Success, 2},
      {"zero blocks alone", TarBuilder().end(), Success, 0},
      {"one zero block alone", TarBuilder().end(1), Success, 0},
      {"older header", TarBuilder().header({.name = "a.gif", .magic = {}}).end(), Success, 1},
      {"cut in a later header", twoFiles().cut(kSecondHeader + 100), UnexpectedEnd, 1},
      {"cut behind a header", twoFiles().cut(kSecondBytes), UnexpectedEnd, 2},
      {"cut in the bytes", twoFiles().cut(kSecondBytes + 100), UnexpectedEnd, 2},
      {"cut in the padding", twoFiles().cut(kSecondBytes + 700), UnexpectedEnd, 2},
      {"cut in a long name",
       twoFiles().pax(TarBuilder::paxRecord("path", QByteArray(700, 'x'))).cut(3 * 1024 + 100),
       UnexpectedEnd, 2},
      {"negative size", twoFiles().header({.name = "n", .rawSize = QByteArray(12, '\xFF')}),
       Damaged, 2},
      {"size of 8 GiB", twoFiles().header({.name = "n", .size = 077777777777}), Damaged, 2},
      {"size of 1 TiB",
       twoFiles().header({.name = "n", .rawSize = QByteArray("\x80\0\0\0\0\0\x01\0\0\0\0\0", 12)}),
       Damaged, 2},
      {"empty file", TarBuilder(), NoArchive, 0},
      {"text", TarBuilder().raw("Not an archive\n").padded("x"), NoArchive, 0},
      {"less than a header", twoFiles().cut(511), NoArchive, 0},
      {"first checksum wrong", TarBuilder().header({.name = "a", .badChecksum = true}).end(),
       NoArchive, 0},
      {"second checksum wrong", twoFiles().header({.name = "c", .badChecksum = true}).end(),
       BadChecksum, 2},
      {"garbage between members", twoFiles().padded("garbage").file("c", "c"), BadChecksum, 2},
      {"gzip", TarBuilder().raw("\x1F\x8B\x08").end(), WrongCompression, 0},
      {"bzip2", TarBuilder().raw("BZh91AY").end(), WrongCompression, 0},
      {"xz", TarBuilder().raw("\xFD\x37zXZ").end(), WrongCompression, 0},
      {"zstd", TarBuilder().raw("\x28\xB5\x2F\xFD").end(), WrongCompression, 0},
      {"zip", TarBuilder().raw("PK\x03\x04"), WrongCompression, 0},
      {"empty zip", TarBuilder().raw("PK\x05\x06").end(), WrongCompression, 0},
      {"begins like zip, but is a header", TarBuilder().file("PK\x03\x04", "a").end(), Success, 1},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    const Reading reading = readBytes(row.tar.bytes());
    EXPECT_EQ(reading.code, row.code);
    EXPECT_EQ(reading.names.size(), row.members);
  }
}

TEST(ReadArchive, RefusesWhatGoesBeyondALimit) {
  const QByteArray large(16 * kMiB, 'x');
  TarBuilder full;
  for (int at = 0; at < 4; ++at)
    full.file("m" + QByteArray::number(at), large);
  TarBuilder over = full;
  const struct {
    const char* what;
    TarBuilder tar;
    int code;
    qsizetype members;
  } rows[] = {
      {"1,000 headers", manyHeaders(1000, '0'), Success, 1000},
      {"1,001 headers", manyHeaders(1001, '0'), Damaged, 1000},
      {"1,001 links", manyHeaders(1001, '2'), Damaged, 0},
      {"XML of 1 MiB", TarBuilder().file("a.XML", QByteArray(kMiB, 'x')), Success, 1},
      {"XML over 1 MiB", TarBuilder().file("a.XML", QByteArray(kMiB + 1, 'x')), Damaged, 0},
      {"member over 16 MiB", TarBuilder().header({.name = "a", .size = 16 * kMiB + 1}), Damaged, 0},
      {"passed over, over 16 MiB", TarBuilder().header({.name = "..", .size = 16 * kMiB + 1}),
       Damaged, 0},
      {"64 MiB in all", full, Success, 4},
      {"over 64 MiB in all", over.file("z", "z"), Damaged, 4},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    const Reading reading = readBytes(row.tar.bytes());
    EXPECT_EQ(reading.code, row.code);
    EXPECT_EQ(reading.names.size(), row.members);
  }
}

TEST(ReadArchive, TakesRegularMembersOnly) {
  TarBuilder tar;
  tar.file("a", "a");
  for (const char type : {'1', '2', '3', '4', '5', '6'})
    tar.header({.name = QByteArray("special") + type, .type = type, .link = "a"});
  tar.header({.name = "folder/", .type = '0'});
  tar.header({.name = "contiguous", .size = 1, .type = '7'}).padded("c");
  tar.header({.name = "unknown", .size = 1, .type = 'Z'}).padded("z").end();
  const Reading reading = readBytes(tar.bytes());
  EXPECT_EQ(reading.code, Success);
  EXPECT_EQ(reading.names, QStringList({u"a"_s, u"contiguous"_s, u"unknown"_s}));
}

TEST(ReadArchive, ReadsNamesOfEveryForm) {
  const QByteArray longName = QByteArray(251, 'n') + ".gif";
  const struct {
    const char* what;
    QByteArray name;
    QString taken;
  } rows[] = {
      {"plain", "Back.GIF", u"Back.GIF"_s},
      {"absolute", "/etc/passwd", u"passwd"_s},
      {"above", "../../up.gif", u"up.gif"_s},
      {"drive", "C:\\x\\y.gif", u"y.gif"_s},
      {"both separators", "a\\b/c\\..\\d", u"d"_s},
      {"empty", "", u""_s},
      {"folder", "a/", u""_s},
      {"itself", "./.", u""_s},
      {"parent", "..\\..", u""_s},
      {"three points", "...", u"..."_s},
      {"NUL", QByteArray("a\0b", 3), u""_s},
      {"UTF-8", "\xC3\xA4.gif", u"\u00E4.gif"_s},
      {"Windows-1252", "\xE4\x80.gif", u"\u00E4\u20AC.gif"_s},
      {"UTF-8 cut at its end", "a\xC3", u"a\u00C3"_s},
      {"byte order mark", "\xEF\xBB\xBFz", u"\uFEFFz"_s},
      {"overlong UTF-8 separator",
       "a\xC0\xAF"
       "b",
       u"a\u00C0\u00AFb"_s},
      {"blanks and controls", " \t\n", u" \t\n"_s},
      {"255 bytes", longName, QString::fromLatin1(longName)},
      {"256 bytes", 'n' + longName, u""_s},
      {"256 bytes on disk only", QByteArray(128, '\xE4'), u""_s},
      {"long folder", QByteArray(300, 'f') + "/a", u"a"_s},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    EXPECT_EQ(memberName(row.name), row.taken);
    if (row.name.contains('\0') || row.name.isEmpty()) continue;
    const QByteArray tar =
        TarBuilder().pax(TarBuilder::paxRecord("path", row.name)).file("other", "x").end().bytes();
    for (const char* const locale : {"C", "C.UTF-8"}) {
      std::setlocale(LC_ALL, locale);
      EXPECT_EQ(readBytes(tar).names, row.taken.isEmpty() ? QStringList() : QStringList(row.taken));
    }
  }
  std::setlocale(LC_ALL, "C");
}

TEST(ReadArchive, SeesANameInRecordsUpToItsNul) {
  const QByteArray record = TarBuilder::paxRecord("path", QByteArray("a\0/../b", 7));
  const Reading reading = readBytes(TarBuilder().pax(record).file("other", "x").end().bytes());
  EXPECT_EQ(reading.code, Success);
  EXPECT_EQ(reading.names, QStringList(u"a"_s));
}

TEST(ReadArchive, GoesOnAfterAMalformedExtension) {
  const Reading reading =
      readBytes(TarBuilder().pax("no record at all").file("a", "a").file("b", "b").end().bytes());
  EXPECT_EQ(reading.code, Success);
  EXPECT_TRUE(reading.names.contains(u"b"_s));
}

TEST(ReadArchive, ExpandsSparseMembersWithinTheirSize) {
  const auto sparse = [](const QByteArray& realSize, const QByteArray& map) {
    const QByteArray records = TarBuilder::paxRecord("GNU.sparse.size", realSize) +
                               TarBuilder::paxRecord("GNU.sparse.numblocks", "1") +
                               TarBuilder::paxRecord("GNU.sparse.map", map);
    return TarBuilder().pax(records).file("s", "data").file("t", "t").end().bytes();
  };
  const Reading reading = readBytes(sparse("20", "10,4"));
  EXPECT_EQ(reading.code, Success);
  EXPECT_EQ(reading.files[u"s"_s], QByteArray(10, '\0') + "data" + QByteArray(6, '\0'));
  EXPECT_EQ(reading.files[u"t"_s], "t");
  EXPECT_EQ(readBytes(sparse("16777217", "10,4")).code, Damaged);
  EXPECT_EQ(readBytes(sparse("12", "10,4")).code, Damaged);
}

/// Gives what it has and then fails.
class FailingDevice final : public QIODevice {
 public:
  explicit FailingDevice(QByteArray bytes) : bytes_(std::move(bytes)) {
    open(ReadOnly | Unbuffered);
  }

 protected:
  qint64 readData(char* data, qint64 size) override {
    const qint64 count = std::min<qint64>(size, bytes_.size());
    std::copy_n(bytes_.begin(), count, data);
    bytes_.remove(0, count);
    return count == 0 ? -1 : count;
  }
  qint64 writeData(const char*, qint64) override { return -1; }

 private:
  QByteArray bytes_;
};

TEST(ReadArchive, TellsWhenTheDeviceFails) {
  for (const qsizetype size : {qsizetype{0}, kSecondHeader, kSecondBytes + 100}) {
    FailingDevice device(twoFiles().cut(size).bytes());
    MemorySink sink;
    EXPECT_EQ(readArchive(device, sink).code, ReadFailed) << size;
  }
}

class Archive : public TempFolder {
 protected:
  int extract(const TarBuilder& tar) {
    return extractArchive(write(u"theme.thm"_s, tar.bytes()), makeFolder(u"out"_s)).code;
  }
};

TEST_F(Archive, ExtractsFilesWithTheirTimeAndCommonRights) {
  EXPECT_EQ(extract(twoFiles().end()), Success);
  EXPECT_EQ(read(u"out/a.xml"_s), "<a/>");
  EXPECT_EQ(read(u"out/b.gif"_s), QByteArray(600, 'b'));
  const QFileInfo info(path(u"out/a.xml"_s));
  EXPECT_EQ(info.lastModified().toSecsSinceEpoch(), TarBuilder::kTime);
  EXPECT_EQ(info.permissions() & ~(QFile::ReadUser | QFile::WriteUser),
            QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
}

TEST_F(Archive, TakesTheLaterOfTwoMembers) {
  EXPECT_EQ(extract(TarBuilder().file("x/a", "longer").file("y\\a", "new").end()), Success);
  EXPECT_EQ(read(u"out/a"_s), "new");
  const ArchiveResult list = listArchive(path(u"theme.thm"_s));
  ASSERT_EQ(list.members.size(), 2);
  EXPECT_EQ(list.members[0].size, 6);
  EXPECT_EQ(list.members[1].name, u"a"_s);
}

TEST_F(Archive, NeverWritesThroughALink) {
  const QString outside = write(u"outside"_s, "kept");
  makeFolder(u"out"_s);
  makeFolder(u"elsewhere"_s);
  ASSERT_TRUE(QFile::link(outside, path(u"out/a.gif"_s)));
  ASSERT_TRUE(QFile::link(path(u"nowhere"_s), path(u"out/b.gif"_s)));
  ASSERT_TRUE(QFile::link(path(u"elsewhere"_s), path(u"out/dir"_s)));
  EXPECT_EQ(
      extract(TarBuilder()
                  .file("a.gif", "new a")
                  .file("b.gif", "new b")
                  .header({.name = "dir2", .type = '2', .link = path(u"elsewhere"_s).toUtf8()})
                  .file("dir/c.gif", "new c")
                  .file("dir2/d.gif", "new d")
                  .file("../escape.gif", "new e")
                  .end()),
      Success);
  EXPECT_EQ(read(u"outside"_s), "kept");
  EXPECT_EQ(listOf(u"elsewhere"_s), QStringList());
  EXPECT_FALSE(QFileInfo::exists(path(u"nowhere"_s)));
  EXPECT_FALSE(QFileInfo::exists(path(u"escape.gif"_s)));
  EXPECT_EQ(read(u"out/a.gif"_s), "new a");
  EXPECT_FALSE(QFileInfo(path(u"out/a.gif"_s)).isSymLink());
  EXPECT_EQ(listOf(u"out"_s), QStringList({u"a.gif"_s, u"b.gif"_s, u"c.gif"_s, u"d.gif"_s, u"dir"_s,
                                           u"escape.gif"_s}));
}

TEST_F(Archive, KeepsWhatCameBeforeAnError) {
  EXPECT_EQ(extract(twoFiles().cut(kSecondBytes + 100)), UnexpectedEnd);
  EXPECT_EQ(read(u"out/a.xml"_s), "<a/>");
  EXPECT_EQ(extract(TarBuilder().file("c", "c").header({.name = "d.xml", .size = 2 * kMiB})),
            Damaged);
  EXPECT_EQ(read(u"out/c"_s), "c");
  EXPECT_FALSE(QFileInfo::exists(path(u"out/d.xml"_s)));
}

TEST_F(Archive, TellsWhatCannotBeReadOrCreated) {
  const QString theme = write(u"theme.thm"_s, twoFiles().bytes());
  EXPECT_EQ(listArchive(path(u"missing.thm"_s)).code, NotReadable);
  EXPECT_EQ(listArchive(path()).code, NotReadable);
  EXPECT_EQ(extractArchive(theme, path(u"no folder"_s)).code, CreateFailed);
  makeFolder(u"out/b.gif"_s);
  EXPECT_EQ(extractArchive(theme, path(u"out"_s)).code, CreateFailed);
}

TEST_F(Archive, TellsWhatItMayNotRead) {
  const QString theme = write(u"theme.thm"_s, twoFiles().bytes());
  ASSERT_TRUE(QFile::setPermissions(theme, QFile::WriteOwner));
  const WithoutPrivilege nobody;
  EXPECT_EQ(listArchive(theme).code, NotReadable);
}

TEST_F(Archive, TellsWhatItCannotWrite) {
  const QByteArray tar = TarBuilder().file("a", QByteArray(8 * kMiB, 'a')).end().bytes();
  const QString theme = write(u"theme.thm"_s, tar);
  const FileSizeLimit limit(kMiB);
  EXPECT_EQ(extractArchive(theme, makeFolder(u"out"_s)).code, WriteFailed);
}

TEST_F(Archive, TellsWhenTheDiskIsFull) {
  const SmallDisk disk(makeFolder(u"out"_s));
  if (!disk.isMounted()) GTEST_SKIP() << "No right to mount a small file system.";
  EXPECT_EQ(extract(TarBuilder().file("a", QByteArray(kMiB, 'a')).end()), DiskFull);
}

TEST(ArchiveErrorText, NamesTheFileAndUnknownCodes) {
  EXPECT_EQ(archiveError(Success, u"a.thm"_s).text, u""_s);
  EXPECT_EQ(archiveError(Damaged, u"a%1.thm"_s).text,
            u"Some files in \"a%1.thm\" are corrupted."_s);
  EXPECT_EQ(
      archiveError(NotReadable, u"a.thm"_s).text,
      u"File \"a.thm\" not found or no read permission.\r\n\r\nPress F5 to refresh themes list."_s);
  EXPECT_EQ(archiveError(99, u"a.thm"_s).text, u"UnTAR operation error 99"_s);
}

}  // namespace
}  // namespace quillane

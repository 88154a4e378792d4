// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "theme/archive.h"

#include "support/hindrance.h"
#include "support/tarbuilder.h"
#include "support/tempfolder.h"
#include "theme/archive_reader.h"

#include <QBuffer>

#include <clocale>

namespace quillane {

namespace {

constexpr qint64 kMiB = 1 << 20;

/// Takes everything and keeps nothing.
class NullSink final : public MemberSink {
 public:
  int begin(const ArchiveMember&, qint64) override { return Success; }
  int write(qint64, QByteArrayView) override { return Success; }
  int end() override { return Success; }
};

struct Reading {
  int code;
  QStringList names;
};

Reading readBytes(const QByteArray& bytes) {
  QBuffer device;
  device.setData(bytes);
  device.open(QIODevice::ReadOnly);
  NullSink sink;
  const ArchiveResult result = readArchive(device, sink);
  Reading reading{result.code, {}};
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
  TarBuilder full;
  for (int at = 0; at < 4; ++at)
    full.file("m" + QByteArray::number(at), QByteArray(16 * kMiB, 'x'));
  TarBuilder over = full;
  const std::tuple<const char*, TarBuilder, int, qsizetype> rows[] = {
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
      {"size of 1 TiB",
       twoFiles().header({.name = "n", .rawSize = QByteArray("\x80\0\0\0\0\0\x01\0\0\0\0\0", 12)}),
       Damaged, 2},
      {"less than a header", twoFiles().cut(511), NoArchive, 0},
      {"first checksum wrong", TarBuilder().header({.name = "a", .badChecksum = true}).end(),
       NoArchive, 0},
      {"garbage between members", twoFiles().padded("garbage").file("c", "c"), BadChecksum, 2},
      {"bzip2", TarBuilder().raw("BZh91AY&SY").end(), WrongCompression, 0},
      {"xz", TarBuilder().raw("\xFD\x37zXZ").end(), WrongCompression, 0},
      {"zstd", TarBuilder().raw("\x28\xB5\x2F\xFD").end(), WrongCompression, 0},
      {"zip", TarBuilder().raw("PK\x03\x04"), WrongCompression, 0},
      {"begins like zip, but is a header", TarBuilder().file("PK\x03\x04", "a").end(), Success, 1},
      {"1,000 headers", manyHeaders(1000, '0'), Success, 1000},
      {"1,001 links", manyHeaders(1001, '2'), Damaged, 0},
      {"XML of 1 MiB", TarBuilder().file("a.XML", QByteArray(kMiB, 'x')), Success, 1},
      {"member over 16 MiB", TarBuilder().header({.name = "a", .size = 16 * kMiB + 1}), Damaged, 0},
      {"passed over, over 16 MiB", TarBuilder().header({.name = "..", .size = 16 * kMiB + 1}),
       Damaged, 0},
      {"64 MiB in all", full, Success, 4},
      {"over 64 MiB in all", over.file("z", "z"), Damaged, 4}};
  for (const auto& [what, tar, code, members] : rows) {
    const Reading reading = readBytes(tar.bytes());
    EXPECT_EQ(reading.code, code) << what;
    EXPECT_EQ(reading.names.size(), members) << what;
  }
}

TEST(ReadArchive, ReadsNamesOfEveryForm) {
  const QByteArray longName = QByteArray(251, 'n') + ".gif";
  const std::tuple<const char*, QByteArray, QString> rows[] = {
      {"plain", "Back.GIF", "Back.GIF"},
      {"absolute", "/etc/passwd", "passwd"},
      {"above", "../../up.gif", "up.gif"},
      {"drive", "C:\\x\\y.gif", "y.gif"},
      {"both separators", "a\\b/c\\..\\d", "d"},
      {"empty", "", ""},
      {"folder", "a/", ""},
      {"itself", "./.", ""},
      {"parent", "..\\..", ""},
      {"three points", "...", "..."},
      {"NUL", QByteArray("a\0b", 3), ""},
      {"UTF-8", "\xC3\xA4.gif", "\u00E4.gif"},
      {"Windows-1252", "\xE4\x80.gif", "\u00E4\u20AC.gif"},
      {"UTF-8 cut at its end", "a\xC3", "a\u00C3"},
      {"byte order mark", "\xEF\xBB\xBFz", QString(QChar(0xFEFF)) + 'z'},
      {"overlong UTF-8 separator", "a\xC0\xAFz", "a\u00C0\u00AFz"},
      {"blanks and controls", " \t\n", " \t\n"},
      {"255 bytes", longName, longName},
      {"256 bytes", 'n' + longName, ""},
      {"256 bytes on disk only", QByteArray(128, '\xE4'), ""},
      {"long folder", QByteArray(300, 'f') + "/a", "a"}};
  for (const auto& [what, name, taken] : rows) {
    SCOPED_TRACE(what);
    EXPECT_EQ(memberName(name), taken);
    if (name.contains('\0') || name.isEmpty()) continue;
    const QByteArray tar =
        TarBuilder().pax(TarBuilder::paxRecord("path", name)).file("other", "x").end().bytes();
    for (const char* const locale : {"C", "C.UTF-8"}) {
      std::setlocale(LC_ALL, locale);
      EXPECT_EQ(readBytes(tar).names, taken.isEmpty() ? QStringList() : QStringList(taken));
    }
  }
  std::setlocale(LC_ALL, "C");
}

TEST(ReadArchive, TakesWhatItCanOfOddHeaders) {
  const Reading types = readBytes(TarBuilder()
                                      .header({.name = "folder/", .type = '0'})
                                      .header({.name = "contiguous", .size = 1, .type = '7'})
                                      .padded("c")
                                      .header({.name = "unknown", .size = 1, .type = 'Z'})
                                      .padded("z")
                                      .end()
                                      .bytes());
  EXPECT_EQ(types.names, QStringList({"contiguous", "unknown"}));
  const QByteArray record = TarBuilder::paxRecord("path", QByteArray("a\0/../b", 7));
  const Reading nul = readBytes(TarBuilder().pax(record).file("other", "x").end().bytes());
  EXPECT_EQ(nul.names, QStringList("a"));
  const Reading malformed =
      readBytes(TarBuilder().pax("no record at all").file("a", "a").file("b", "b").end().bytes());
  EXPECT_TRUE(malformed.names.contains("b"));
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
    NullSink sink;
    EXPECT_EQ(readArchive(device, sink).code, ReadFailed) << size;
  }
}

class Archive : public TempFolder {
 protected:
  int extract(const TarBuilder& tar) {
    return extractArchive(write("theme.thm", tar.bytes()), makeFolder("out")).code;
  }
};

TEST_F(Archive, ExpandsSparseMembersWithinTheirSize) {
  const auto sparse = [](const QByteArray& realSize, const QByteArray& map) {
    const QByteArray records = TarBuilder::paxRecord("GNU.sparse.size", realSize) +
                               TarBuilder::paxRecord("GNU.sparse.numblocks", "1") +
                               TarBuilder::paxRecord("GNU.sparse.map", map);
    return TarBuilder().pax(records).file("s", "data").file("t", "t").end();
  };
  EXPECT_EQ(extract(sparse("20", "10,4")), Success);
  EXPECT_EQ(read("out/s"), QByteArray(10, '\0') + "data" + QByteArray(6, '\0'));
  EXPECT_EQ(read("out/t"), "t");
  EXPECT_EQ(extract(sparse("12", "10,4")), Damaged);
}

TEST_F(Archive, NeverWritesThroughALink) {
  const QString outside = write("outside", "kept");
  makeFolder("out");
  makeFolder("elsewhere");
  ASSERT_TRUE(QFile::link(outside, path("out/a.gif")));
  ASSERT_TRUE(QFile::link(path("nowhere"), path("out/b.gif")));
  ASSERT_TRUE(QFile::link(path("elsewhere"), path("out/dir")));
  EXPECT_EQ(extract(TarBuilder().file("a.gif", "a").file("b.gif", "b").file("dir/c.gif", "c")),
            Success);
  EXPECT_EQ(read("outside"), "kept");
  EXPECT_EQ(listOf("elsewhere"), QStringList());
  EXPECT_FALSE(QFileInfo::exists(path("nowhere")));
  EXPECT_EQ(read("out/a.gif") + read("out/b.gif") + read("out/c.gif"), "abc");
}

TEST_F(Archive, TellsWhatCannotBeReadOrCreated) {
  const QString theme = write("theme.thm", twoFiles().bytes());
  EXPECT_EQ(extractArchive(theme, path("no folder")).code, CreateFailed);
  makeFolder("out/b.gif");
  EXPECT_EQ(extractArchive(theme, path("out")).code, CreateFailed);
  ASSERT_TRUE(QFile::setPermissions(theme, QFile::WriteOwner));
  const WithoutPrivilege nobody;
  EXPECT_EQ(listArchive(theme).code, NotReadable);
}

TEST(ArchiveErrorText, NamesTheFileAndUnknownCodes) {
  EXPECT_EQ(archiveError(Damaged, "a%1.thm").text, "Some files in \"a%1.thm\" are corrupted.");
  EXPECT_EQ(archiveError(99, "a.thm").text, "UnTAR operation error 99");
}

}  // namespace

}  // namespace quillane

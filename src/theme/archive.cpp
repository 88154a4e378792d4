// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "theme/archive.h"

#include "theme/archive_platform.h"
#include "theme/archive_reader.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <iterator>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

struct CodeText {
  int code;
  QLatin1String text;
};

constexpr CodeText kCodeTexts[] = {
    {Success, ""_L1},
    {UnexpectedEnd, "Unexpected end of TAR file."_L1},
    {Damaged, "Some files in \"%1\" are corrupted."_L1},
    {NoArchive,
     "The file you attempted to open could not be read or does not contain valid TAR data."_L1},
    {NotReadable,
     "File \"%1\" not found or no read permission.\r\n\r\nPress F5 to refresh themes list."_L1},
    {CreateFailed, "Could not create extracted file."_L1},
    {ReadFailed, "Input file read failure."_L1},
    {WriteFailed, "Output file write failure, possible disk full."_L1},
    {BadChecksum, "Bad CRC."_L1},
    {WrongCompression, "Unknown compression method."_L1},
    {DiskFull, "Disk full."_L1},
};

/// Reads every byte and keeps none.
class NoSink final : public MemberSink {
 public:
  int begin(const ArchiveMember&, qint64) override { return Success; }
  int write(qint64, QByteArrayView) override { return Success; }
  int end() override { return Success; }
};

/// Keeps the bytes of all members.
class MemorySink final : public MemberSink {
 public:
  explicit MemorySink(QList<QByteArray>& bytes) : bytes_(bytes) {}

  int begin(const ArchiveMember& member, qint64) override {
    size_ = member.size;
    bytes_.emplaceBack();
    return Success;
  }
  // The size is the archive's word; only bytes that really come, or the member's end, cost memory.
  int write(qint64 offset, QByteArrayView bytes) override {
    if (bytes_.constLast().size() < offset) bytes_.last().resize(offset, '\0');
    bytes_.last().replace(offset, bytes.size(), bytes.toByteArray());
    return Success;
  }
  int end() override {
    bytes_.last().resize(size_, '\0');
    return Success;
  }

 private:
  QList<QByteArray>& bytes_;
  qint64 size_ = 0;
};

ArchiveResult readTheme(const QString& themePath, MemberSink& sink) {
  QFile theme(themePath);
  if (!QFileInfo(themePath).isFile() || !theme.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
    return {NotReadable, {}};
  return readArchive(theme, sink);
}

}  // namespace

bool isIndexName(const QString& name) {
  return name.compare(kIndexName, Qt::CaseInsensitive) == 0;
}

bool isXmlName(const QString& name) {
  return name.endsWith(".xml"_L1, Qt::CaseInsensitive);
}

ArchiveResult extractArchive(const QString& themePath, const QString& folder) {
  FolderSink sink(folder);
  return readTheme(themePath, sink);
}

ArchiveResult listArchive(const QString& themePath) {
  NoSink sink;
  return readTheme(themePath, sink);
}

ArchiveContents readContents(const QString& themePath) {
  ArchiveContents contents;
  MemorySink sink(contents.bytes);
  contents.result = readTheme(themePath, sink);
  contents.fileSize = QFileInfo(themePath).size();
  return contents;
}

ThemeError archiveError(int code, const QString& fileName) {
  const QString title = u"UnTAR operation error %1"_s.arg(code);
  const auto* const row = std::find_if(std::begin(kCodeTexts), std::end(kCodeTexts),
                                       [code](const CodeText& text) { return text.code == code; });
  const bool isKnown = row != std::end(kCodeTexts);
  return {code, title, isKnown ? QString(row->text).replace("%1"_L1, fileName) : title};
}

ThemeError missingXmlError(const QString& fileName) {
  return {0, u"Error in theme file \"%1\""_s.arg(fileName),
          u"This theme does not contain an XML file."_s};
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "theme/archive_reader.h"

#include "theme/codepage.h"

#include <QIODevice>
#include <QStringDecoder>
#include <archive.h>
#include <archive_entry.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <memory>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kLongestName = 255;

constexpr QByteArrayView kCompressedStarts[] = {
    "\x1F\x8B", "BZh", "\xFD\x37zXZ", "\x28\xB5\x2F\xFD", "PK\x03\x04", "PK\x05\x06", "PK\x07\x08"};

/// Feeds the library from a device and remembers how that went.
class Source {
 public:
  explicit Source(QIODevice& device) : device_(device) {}

  bool hasFailed() const { return failed_; }
  /// More was asked for than there is.
  bool isExhausted() const { return exhausted_; }
  bool beginsCompressed() const {
    return std::any_of(std::begin(kCompressedStarts), std::end(kCompressedStarts),
                       [this](QByteArrayView start) { return head_.startsWith(start); });
  }

  static la_ssize_t read(archive* reader, void* self, const void** bytes) {
    return static_cast<Source*>(self)->read(reader, bytes);
  }

 private:
  la_ssize_t read(archive* reader, const void** bytes) {
    const qint64 got = device_.read(buffer_.data(), static_cast<qint64>(buffer_.size()));
    if (got < 0) {
      failed_ = true;
      archive_set_error(reader, EIO, "The device cannot be read");
      return ARCHIVE_FATAL;
    }
    if (head_.isEmpty()) head_ = QByteArray(buffer_.data(), std::min<qsizetype>(got, 8));
    exhausted_ = got == 0;
    *bytes = buffer_.data();
    return static_cast<la_ssize_t>(got);
  }

  QIODevice& device_;
  std::array<char, 1 << 16> buffer_;
  QByteArray head_;
  bool failed_ = false;
  bool exhausted_ = false;
};

struct ReaderRelease {
  void operator()(archive* reader) const { archive_read_free(reader); }
};

bool isRegular(archive_entry* entry) {
  return archive_entry_hardlink(entry) == nullptr && archive_entry_filetype(entry) == AE_IFREG;
}

/// A member's path as the archive has it: UTF-8 where it is that, else the code page.
QString pathText(QByteArrayView path) {
  QStringDecoder utf8(QStringDecoder::Utf8,
                      QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
  const QString text = utf8(path);
  return utf8.hasError() ? fromCodePage(path) : text;
}

QByteArrayView pathOf(archive_entry* entry) {
  return {archive_entry_pathname(entry)};
}

ArchiveMember memberOf(archive_entry* entry) {
  const QByteArrayView path = pathOf(entry);
  return {isRegular(entry) ? memberName(path) : QString(), archive_entry_size(entry),
          pathText(path).left(kLongestName)};
}

PassedReason passedReason(archive_entry* entry) {
  if (archive_entry_hardlink(entry) != nullptr) return PassedReason::Link;
  switch (archive_entry_filetype(entry)) {
    case AE_IFREG:
      return PassedReason::Name;
    case AE_IFDIR:
      return PassedReason::Folder;
    case AE_IFLNK:
      return PassedReason::Link;
    default:
      return PassedReason::Device;
  }
}

class Walk {
 public:
  Walk(QIODevice& device, MemberSink& sink)
      : source_(device), sink_(sink), reader_(archive_read_new()) {}

  ArchiveResult run() {
    result_.code = open();
    if (result_.code == Success) result_.code = walkMembers();
    return std::move(result_);
  }

 private:
  int open() {
    archive_read_support_format_tar(reader_.get());
    if (archive_read_open(reader_.get(), &source_, nullptr, &Source::read, nullptr) == ARCHIVE_OK)
      return Success;
    if (source_.hasFailed()) return ReadFailed;
    return source_.beginsCompressed() ? WrongCompression : NoArchive;
  }

  int walkMembers() {
    for (;;) {
      archive_entry* entry = nullptr;
      const int outcome = archive_read_next_header(reader_.get(), &entry);
      if (outcome == ARCHIVE_EOF) return Success;
      if (outcome == ARCHIVE_RETRY) return BadChecksum;
      if (outcome < ARCHIVE_WARN) return fatalCode();
      // A chain of extension headers that the library gives up on comes as a warning without a
      // name.
      if (outcome == ARCHIVE_WARN && !archive_entry_pathname(entry)) return Damaged;
      if (const int code = walkMember(entry); code != Success) return code;
    }
  }

  int walkMember(archive_entry* entry) {
    const ArchiveMember member = memberOf(entry);
    if (!isWithinLimits(member)) return Damaged;
    if (member.name.isEmpty()) {
      result_.passed.append({member.path, passedReason(entry)});
      return Success;
    }
    result_.members.append(member);
    if (const int code = sink_.begin(member, archive_entry_mtime(entry)); code != Success)
      return code;
    if (const int code = walkBytes(member.size); code != Success) return code;
    return sink_.end();
  }

  int walkBytes(qint64 size) {
    for (;;) {
      const void* data = nullptr;
      std::size_t length = 0;
      la_int64_t offset = 0;
      const int outcome = archive_read_data_block(reader_.get(), &data, &length, &offset);
      if (outcome == ARCHIVE_EOF) return Success;
      if (outcome < ARCHIVE_WARN) return fatalCode();
      const auto count = static_cast<qint64>(length);
      if (offset < 0 || offset > size || count > size - offset) return Damaged;
      const QByteArrayView bytes(static_cast<const char*>(data), count);
      if (const int code = sink_.write(offset, bytes); code != Success) return code;
    }
  }

  bool isWithinLimits(const ArchiveMember& member) {
    if (++headers_ > ArchiveLimits::kHeaders || member.size < 0 ||
        member.size > ArchiveLimits::ofMember(member.name))
      return false;
    total_ += member.size;
    return total_ <= ArchiveLimits::kTotal;
  }

  int fatalCode() const {
    if (source_.hasFailed()) return ReadFailed;
    return source_.isExhausted() ? UnexpectedEnd : Damaged;
  }

  Source source_;
  MemberSink& sink_;
  std::unique_ptr<archive, ReaderRelease> reader_;
  ArchiveResult result_;
  int headers_ = 0;
  qint64 total_ = 0;
};

}  // namespace

qint64 ArchiveLimits::ofMember(const QString& name) {
  return isXmlName(name) ? kXmlMember : kMember;
}

ArchiveResult readArchive(QIODevice& device, MemberSink& sink) {
  return Walk(device, sink).run();
}

QString memberName(QByteArrayView path) {
  QString name = pathText(path);
  name.remove(0, std::max(name.lastIndexOf(u'/'), name.lastIndexOf(u'\\')) + 1);
  const bool passedOver = name == "."_L1 || name == ".."_L1 || name.contains(QChar()) ||
                          name.toUtf8().size() > kLongestName;
  return passedOver ? QString() : name;
}

}  // namespace quillane

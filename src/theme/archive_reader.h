// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "theme/archive.h"

#include <QByteArrayView>

class QIODevice;

namespace quillane {

/// The reader's codes and what causes them.
enum ReaderCode : int {
  Success = 0,
  UnexpectedEnd = 1,      ///< Ends inside a header or inside a member's bytes.
  Damaged = 3,            ///< Over a limit, or damaged in a way that has no code of its own.
  NoArchive = 4,          ///< No header at the start, or an empty file.
  NotReadable = 7,        ///< No such file, or no permission to read it.
  CreateFailed = 8,       ///< An extracted file cannot be created.
  ReadFailed = 9,         ///< Reading from the device fails.
  WriteFailed = 10,       ///< An extracted file cannot be written.
  BadChecksum = 13,       ///< The checksum of a header other than the first is wrong.
  WrongCompression = 16,  ///< Begins like a compressed file.
  DiskFull = 17,          ///< No room left for an extracted file.
};

/// What a single theme may hold; an archive that goes beyond is refused.
struct ArchiveLimits {
  static constexpr int kHeaders = 1000;
  static constexpr qint64 kMember = 16 << 20;
  static constexpr qint64 kXmlMember = 1 << 20;
  static constexpr qint64 kTotal = 64 << 20;

  /// The most bytes of a member of this name.
  static qint64 ofMember(const QString& name);
};

/// Takes the members of an archive one after another. Each call answers `Success` or the code with
/// which the reading ends.
class MemberSink {
 public:
  MemberSink() = default;
  MemberSink(const MemberSink&) = delete;
  MemberSink& operator=(const MemberSink&) = delete;
  virtual ~MemberSink() = default;

  /// A member begins; `modified` is its time in seconds since 1970.
  virtual int begin(const ArchiveMember& member, qint64 modified) = 0;
  /// Bytes of the member, within its size. What no call brings is zero.
  virtual int write(qint64 offset, QByteArrayView bytes) = 0;
  /// The member is complete.
  virtual int end() = 0;
};

/// Walks the members of an archive from an open device to its end or its first error.
ArchiveResult readArchive(QIODevice& device, MemberSink& sink);

/// The bare name of a member from the bytes of its path; empty for one that is passed over.
QString memberName(QByteArrayView path);

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "theme/archive_reader.h"

#include <QString>

namespace quillane {

/// Writes members as files of one folder. Each takes the place of the file or link that had its
/// name and is made new, so that nothing is ever written through a link.
class FolderSink final : public MemberSink {
 public:
  explicit FolderSink(const QString& folder);
  ~FolderSink() override;

  int begin(const ArchiveMember& member, qint64 modified) override;
  int write(qint64 offset, QByteArrayView bytes) override;
  int end() override;

 private:
  void closeFile();

  int folder_;
  int file_ = -1;
  qint64 size_ = 0;
  qint64 modified_ = 0;
};

}  // namespace quillane

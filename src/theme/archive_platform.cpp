// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "theme/archive_platform.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace quillane {

namespace {

constexpr mode_t kMode = 0644;

int codeOf(int error, int otherwise) {
  return error == ENOSPC || error == EDQUOT ? DiskFull : otherwise;
}

}  // namespace

FolderSink::FolderSink(const QString& folder)
    : folder_(::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {}

FolderSink::~FolderSink() {
  closeFile();
  if (folder_ >= 0) ::close(folder_);
}

int FolderSink::begin(const ArchiveMember& member, qint64 modified) {
  closeFile();
  size_ = member.size;
  modified_ = modified;
  const QByteArray name = QFile::encodeName(member.name);
  // Whether the place is free is told by the exclusive creation.
  ::unlinkat(folder_, name.constData(), 0);
  file_ = ::openat(folder_, name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC,
                   kMode);
  return file_ >= 0 && ::fchmod(file_, kMode) == 0 ? Success : codeOf(errno, CreateFailed);
}

int FolderSink::write(qint64 offset, QByteArrayView bytes) {
  while (!bytes.isEmpty()) {
    const ssize_t written =
        ::pwrite(file_, bytes.data(), static_cast<std::size_t>(bytes.size()), offset);
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return codeOf(errno, WriteFailed);
    offset += written;
    bytes = bytes.sliced(written);
  }
  return Success;
}

int FolderSink::end() {
  const timespec times[2] = {{0, UTIME_NOW}, {static_cast<time_t>(modified_), 0}};
  const bool complete = ::ftruncate(file_, size_) == 0 && ::futimens(file_, times) == 0;
  if (!complete) return codeOf(errno, WriteFailed);
  // Network disks may tell only now that they have no room.
  return ::close(std::exchange(file_, -1)) == 0 ? Success : codeOf(errno, WriteFailed);
}

void FolderSink::closeFile() {
  if (file_ >= 0) ::close(file_);
  file_ = -1;
}

}  // namespace quillane

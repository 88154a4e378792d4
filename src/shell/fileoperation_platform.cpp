// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/fileoperation_platform.h"

#include "shell/fileoperation.h"
#include "theme/fault.h"
#include "theme/files_platform.h"

#include <QFile>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <gio/gio.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

constexpr mode_t kPermissions = 0777;

/// The outcome of a system call that returns 0 on success.
std::errc outcome(int returned) {
  return returned == 0 ? std::errc{} : lastError();
}

struct Release {
  void operator()(GFile* file) const { g_object_unref(file); }
  void operator()(GError* error) const { g_error_free(error); }
};

}  // namespace

std::errc renameFresh(const QString& from, const QString& to) {
  const QByteArray source = QFile::encodeName(from);
  const QByteArray target = QFile::encodeName(to);
  const std::errc error = outcome(
      ::renameat2(AT_FDCWD, source.constData(), AT_FDCWD, target.constData(), RENAME_NOREPLACE));
  if (error != std::errc::invalid_argument && error != std::errc::function_not_supported)
    return error;
  // This file system only knows the rename that replaces.
  struct stat found;
  if (::lstat(target.constData(), &found) == 0) return std::errc::file_exists;
  return errno == ENOENT ? renameOver(from, to) : lastError();
}

std::errc renameOver(const QString& from, const QString& to) {
  return outcome(::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()));
}

std::errc removeFile(const QString& path) {
  return outcome(::unlink(QFile::encodeName(path).constData()));
}

std::errc appendBytes(int file, QByteArrayView bytes) {
  while (!bytes.isEmpty()) {
    const ssize_t written = ::write(file, bytes.data(), static_cast<std::size_t>(bytes.size()));
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return lastError();
    bytes = bytes.sliced(written);
  }
  return {};
}

std::errc flushFolder(const QString& folder) {
  const int file = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_CLOEXEC);
  // One may write into a folder without being allowed to list it.
  if (file < 0) return errno == EACCES ? std::errc{} : lastError();
  const std::errc error = flushFile(file);
  ::close(file);
  return error;
}

std::errc copyPermissionsAndTime(int from, int to) {
  struct stat facts;
  if (::fstat(from, &facts) != 0) return lastError();
  const std::errc error = unlessUnknownToDisk(outcome(::fchmod(to, facts.st_mode & kPermissions)));
  if (error != std::errc{}) return error;
  const timespec times[2] = {{0, UTIME_OMIT}, facts.st_mtim};
  return unlessUnknownToDisk(outcome(::futimens(to, times)));
}

QString glibVersion() {
  return u"%1.%2.%3"_s.arg(glib_major_version).arg(glib_minor_version).arg(glib_micro_version);
}

// The toolkit's own way to the trash never ends where it cannot note down a file's place.
QString refusalOfTrash(const QString& path) {
  const std::unique_ptr<GFile, Release> file(g_file_new_for_path(QFile::encodeName(path)));
  GError* refusal = nullptr;
  if (g_file_trash(file.get(), nullptr, &refusal)) return {};
  const std::unique_ptr<GError, Release> error(refusal);
  return QString::fromUtf8(error->message);
}

}  // namespace quillane

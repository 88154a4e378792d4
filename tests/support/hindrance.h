// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFile>
#include <QString>

#include <csignal>
#include <cstdlib>
#include <sys/mount.h>
#include <sys/resource.h>
#include <unistd.h>

namespace quillane {

/// While it lives, root's tests run as nobody, so that permissions count.
class WithoutPrivilege {
 public:
  WithoutPrivilege() : dropped_(::getuid() == 0 && ::setresuid(kNobody, kNobody, 0) == 0) {}
  ~WithoutPrivilege() {
    if (dropped_ && ::setresuid(0, 0, 0) != 0) std::abort();
  }
  Q_DISABLE_COPY(WithoutPrivilege)

 private:
  static constexpr uid_t kNobody = 65534;

  bool dropped_;
};

/// While it lives, no file grows beyond a size.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t size) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
    ::getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit{size, before_.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FileSizeLimit() {
    ::setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }
  Q_DISABLE_COPY(FileSizeLimit)

 private:
  rlimit before_{};
  void (*handler_)(int);
};

/// A tiny file system over a folder, where the machine lets us mount one.
class SmallDisk {
 public:
  explicit SmallDisk(const QString& folder)
      : folder_(QFile::encodeName(folder)),
        mounted_(::mount("tmpfs", folder_.constData(), "tmpfs", 0, "size=64k") == 0) {}
  ~SmallDisk() {
    if (mounted_) ::umount2(folder_.constData(), MNT_DETACH);
  }
  Q_DISABLE_COPY(SmallDisk)

  bool isMounted() const { return mounted_; }

 private:
  QByteArray folder_;
  bool mounted_;
};

}  // namespace quillane

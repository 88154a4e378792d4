// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "faults/interpose.h"

#include <array>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace quillane {

namespace {

DeedHook& hook() {
  static DeedHook now;
  return now;
}

Flushes flushes = Flushes::Pretended;
thread_local bool isInside = false;
std::array<bool, 1024> isUnsafe{};

/// Keeps what the hook itself does from being told.
class Inside {
 public:
  Inside() { isInside = true; }
  ~Inside() { isInside = false; }
};

bool isWatched() {
  return !isInside && hook();
}

bool isFile(int file, mode_t type = S_IFREG) {
  struct stat facts;
  return ::fstat(file, &facts) == 0 && (facts.st_mode & S_IFMT) == type;
}

bool isWritable(int file) {
  return isFile(file) && (::fcntl(file, F_GETFL) & O_ACCMODE) != O_RDONLY;
}

/// Whether the call may be made; else `errno` says why not.
bool admits(Deed deed, int file = -1) {
  if (!isWatched()) return true;
  const Inside inside;
  const bool unsafe = file >= 0 && isUnsafe.at(static_cast<std::size_t>(file));
  const int error = hook()(deed, unsafe);
  if (error != 0) errno = error;
  return error == 0;
}

template <typename Call>
Call* nextOf(Call*, const char* name) {
  return reinterpret_cast<Call*>(::dlsym(RTLD_NEXT, name));
}

template <typename Open, typename... Place>
int opens(Open* real, int flags, mode_t mode, Place... place) {
  const bool writes = (flags & O_ACCMODE) != O_RDONLY;
  if (writes && !admits(Deed::Open)) return -1;
  const int file = real(place..., flags, mode);
  if (file >= 0 && isWatched()) isUnsafe.at(static_cast<std::size_t>(file)) = false;
  return file;
}

/// Writes one half before the hook is asked and the other one after.
template <typename Write, typename... Offset>
ssize_t writes(Write* real, int file, const void* bytes, std::size_t size, Offset... offset) {
  if (!isWatched() || !isWritable(file)) return real(file, bytes, size, offset...);
  isUnsafe.at(static_cast<std::size_t>(file)) = true;
  const ssize_t half = size < 2 ? 0 : real(file, bytes, size / 2, offset...);
  if (half < 0 || !admits(Deed::Write, file)) return -1;
  const ssize_t rest = real(file, static_cast<const char*>(bytes) + half,
                            size - static_cast<std::size_t>(half), (offset + half)...);
  return rest < 0 ? rest : half + rest;
}

int flush(int (*real)(int), int file) {
  if (!isWatched()) return real(file);
  const bool folder = isFile(file, S_IFDIR);
  if (!folder && !isWritable(file)) return real(file);
  if (!admits(folder ? Deed::FlushFolder : Deed::Flush, file)) return -1;
  isUnsafe.at(static_cast<std::size_t>(file)) = false;
  return flushes == Flushes::Pretended ? 0 : real(file);
}

int closes(int (*real)(int), int file) {
  const bool may = !isWatched() || !isWritable(file) || admits(Deed::Close, file);
  // As the system does it: what fails is closed as well.
  const int error = std::exchange(errno, 0);
  const int outcome = real(file);
  if (!may) errno = error;
  return may ? outcome : -1;
}

}  // namespace

void interpose(DeedHook next, Flushes how) {
  hook() = std::move(next);
  flushes = how;
}

}  // namespace quillane

#define REAL(name)                                                                           \
  [] {                                                                                       \
    static const auto real = quillane::nextOf(static_cast<decltype(&name)>(nullptr), #name); \
    return real;                                                                             \
  }()

// The calls that only fail or are made: deed, name, parameters, arguments.
#define SIMPLE_CALLS(X)                                                                     \
  X(MakeFolder, mkdir, (const char* path, mode_t mode), (path, mode))                       \
  X(MakeFolder, mkdirat, (int folder, const char* path, mode_t mode), (folder, path, mode)) \
  X(Name, rename, (const char* from, const char* to), (from, to))                           \
  X(Name, renameat, (int at, const char* from, int in, const char* to), (at, from, in, to)) \
  X(Name, renameat2, (int at, const char* from, int in, const char* to, unsigned flags),    \
    (at, from, in, to, flags))                                                              \
  X(Name, link, (const char* from, const char* to), (from, to))                             \
  X(Name, linkat, (int at, const char* from, int in, const char* to, int flags),            \
    (at, from, in, to, flags))                                                              \
  X(Name, symlink, (const char* from, const char* to), (from, to))                          \
  X(Write, ftruncate, (int file, off_t size), (file, size))                                 \
  X(Write, ftruncate64, (int file, off64_t size), (file, size))                             \
  X(Facts, chmod, (const char* path, mode_t mode), (path, mode))                            \
  X(Facts, fchmod, (int file, mode_t mode), (file, mode))                                   \
  X(Facts, futimens, (int file, const timespec times[2]), (file, times))                    \
  X(Facts, utimensat, (int at, const char* path, const timespec times[2], int flags),       \
    (at, path, times, flags))                                                               \
  X(Remove, unlink, (const char* path), (path))                                             \
  X(Remove, unlinkat, (int folder, const char* path, int flags), (folder, path, flags))     \
  X(Remove, rmdir, (const char* path), (path))                                              \
  X(Remove, remove, (const char* path), (path))

#define DEFINE_SIMPLE(deed, name, parameters, arguments)                       \
  extern "C" int name parameters noexcept {                                    \
    return quillane::admits(quillane::Deed::deed) ? REAL(name) arguments : -1; \
  }
SIMPLE_CALLS(DEFINE_SIMPLE)

#define DEFINE_OPEN(name, parameters, ...)                        \
  extern "C" int name parameters {                                \
    va_list more;                                                 \
    va_start(more, flags);                                        \
    const mode_t mode = va_arg(more, mode_t);                     \
    va_end(more);                                                 \
    return quillane::opens(REAL(name), flags, mode, __VA_ARGS__); \
  }
DEFINE_OPEN(open, (const char* path, int flags, ...), path)
DEFINE_OPEN(open64, (const char* path, int flags, ...), path)
DEFINE_OPEN(openat, (int folder, const char* path, int flags, ...), folder, path)
DEFINE_OPEN(openat64, (int folder, const char* path, int flags, ...), folder, path)

extern "C" ssize_t write(int file, const void* bytes, std::size_t size) {
  return quillane::writes(REAL(write), file, bytes, size);
}
extern "C" ssize_t pwrite(int file, const void* bytes, std::size_t size, off_t offset) {
  return quillane::writes(REAL(pwrite), file, bytes, size, offset);
}
extern "C" ssize_t pwrite64(int file, const void* bytes, std::size_t size, off64_t offset) {
  return quillane::writes(REAL(pwrite64), file, bytes, size, offset);
}
extern "C" int fsync(int file) {
  return quillane::flush(REAL(fsync), file);
}
extern "C" int fdatasync(int file) {
  return quillane::flush(REAL(fdatasync), file);
}
extern "C" int close(int file) {
  return quillane::closes(REAL(close), file);
}

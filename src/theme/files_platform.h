// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <system_error>

namespace quillane {

/// What a failed system call left in `errno`; a quota that is used up is a full disk.
std::errc lastError();

/// The error, unless a disk rather than the file is why the call fails: FAT has no permissions,
/// some network disks cannot flush.
std::errc unlessUnknownToDisk(std::errc error);

/// Brings an open file's bytes to the disk. An empty `std::errc` is success.
std::errc flushFile(int file);

}  // namespace quillane

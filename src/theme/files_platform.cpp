// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "theme/files_platform.h"

#include <cerrno>
#include <unistd.h>

namespace quillane {

std::errc lastError() {
  return errno == EDQUOT ? std::errc::no_space_on_device : static_cast<std::errc>(errno);
}

std::errc unlessUnknownToDisk(std::errc error) {
  const bool isUnknown =
      error == std::errc::operation_not_permitted || error == std::errc::not_supported ||
      error == std::errc::function_not_supported || error == std::errc::invalid_argument;
  return isUnknown ? std::errc{} : error;
}

std::errc flushFile(int file) {
  return ::fsync(file) == 0 ? std::errc{} : unlessUnknownToDisk(lastError());
}

}  // namespace quillane

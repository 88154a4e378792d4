// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/targets.h"

#include <cstdint>

// An exception that leaves it ends the run as a find.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  quillane::QUILLANE_FUZZ_TARGET({data, static_cast<qsizetype>(size)});
  return 0;
}

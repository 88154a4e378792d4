// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/targets.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (!quillane::QUILLANE_FUZZ_TARGET({data, static_cast<qsizetype>(size)})) std::abort();
  return 0;
}

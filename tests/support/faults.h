// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "theme/fault.h"

#include <optional>

namespace quillane::test {

/// The number of the fault in which a step ends; nothing when it goes well.
template <typename Step>
std::optional<FaultNumber> faultOf(Step&& step) {
  try {
    step();
  } catch (const Fault& fault) {
    return fault.number();
  }
  return std::nullopt;
}

}  // namespace quillane::test

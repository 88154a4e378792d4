// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "faults/interpose.h"

#include <csignal>
#include <cstdlib>
#include <unistd.h>

namespace {

/// Loaded before a program, counts the calls with which it changes files while the file $KILL_WHILE
/// is there, and kills it at the one numbered $KILL_AT.
class Killer {
 public:
  Killer() {
    const char* const trigger = std::getenv("KILL_WHILE");
    const char* const at = std::getenv("KILL_AT");
    if (trigger == nullptr || at == nullptr) return;
    quillane::interpose(
        [trigger, left = std::atoi(at)](quillane::Deed, bool) mutable {
          return ::access(trigger, F_OK) == 0 && --left == 0 ? ::raise(SIGKILL) : 0;
        },
        quillane::Flushes::Real);
  }
};

const Killer kKiller;

}  // namespace

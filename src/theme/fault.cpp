// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "theme/fault.h"

#include <utility>

namespace quillane {

Fault::Fault(FaultNumber number, QString description, int line)
    : number_(number),
      description_(std::move(description)),
      what_(description_.toUtf8()),
      line_(line) {}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <Qt>

namespace quillane {

/// Shows a pointer of another shape, whatever the pointer is over, for as long as it lives.
class PointerOverride {
 public:
  explicit PointerOverride(Qt::CursorShape shape);
  ~PointerOverride();
  PointerOverride(const PointerOverride&) = delete;
  PointerOverride& operator=(const PointerOverride&) = delete;
};

/// Shows the wait pointer for as long as it lives.
class cHourglass : public PointerOverride {
 public:
  cHourglass() : PointerOverride(Qt::WaitCursor) {}
};

}  // namespace quillane

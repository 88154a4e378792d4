// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace quillane {

/// Shows the wait pointer for as long as it lives.
class cHourglass {
 public:
  cHourglass();
  ~cHourglass();
  cHourglass(const cHourglass&) = delete;
  cHourglass& operator=(const cHourglass&) = delete;
};

}  // namespace quillane

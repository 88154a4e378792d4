// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace quillane {

/// The version of the program, which the XML of a saved theme carries too.
inline constexpr int kVersionMajor = 3;
inline constexpr int kVersionMinor = 0;
inline constexpr int kVersionRevision = 187;

}  // namespace quillane

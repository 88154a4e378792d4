// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "theme/check.h"

namespace quillane {

/// All that a maker should know about a theme file before others get it, its pictures included. A
/// theme that cannot be read has that as its finding, and no schema.
CheckedTheme checkTheme(const QString& themePath);

/// Findings about the pictures alone of a theme that was read.
QList<Finding> checkPictures(const CheckedTheme& theme);

}  // namespace quillane

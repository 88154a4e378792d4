// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace quillane {

/// Sees to it that texts are UTF-8 also where the locale does not say so. To be called before the
/// application is made, which else does the same with a warning.
void chooseEncoding();

}  // namespace quillane

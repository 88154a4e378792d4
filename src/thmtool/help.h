// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace quillane {

struct Verb;

/// What "thmtool --help" prints.
QString helpOfTool();

/// What "--help" of a verb prints.
QString helpOf(const Verb& verb);

}  // namespace quillane

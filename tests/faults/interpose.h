// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

namespace quillane {

/// What a call of the C library does to files.
enum class Deed { Open, MakeFolder, Write, Flush, FlushFolder, Name, Facts, Close, Remove };

/// Is told of each such call before it is made, of a write when half of its bytes are written.
/// `unsafe`: the open file holds bytes that were not flushed. Answers the error with which the call
/// fails, 0 to let it be made.
using DeedHook = std::function<int(Deed deed, bool unsafe)>;

/// Whether what is flushed goes to the disk, or only counts as if it had.
enum class Flushes { Pretended, Real };

/// Puts a hook between this process and the calls of the C library that change files; an empty one
/// takes it away. What a hook does itself is not told, nor is what goes to pipes and terminals.
void interpose(DeedHook hook, Flushes flushes = Flushes::Pretended);

}  // namespace quillane

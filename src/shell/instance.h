// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QLockFile;

namespace quillane {

/// Takes the lock that keeps the work folder to one user; false when another instance runs. The
/// lock of a dead process and a damaged one do not count. Throws `Fault` when the lock cannot be
/// made.
bool takeInstanceLock(QLockFile& lock);

}  // namespace quillane

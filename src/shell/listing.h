// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace quillane {

/// What becomes of the files whose names begin with a point.
enum class HiddenFiles { LeaveOut, List };

/// Bare names of the files in a folder whose names end in `ending`, letter case aside, in name
/// order, letter case aside again; an empty ending takes all. Folders, and names that are not text
/// in the encoding of file names (Qt cannot open such files) are left out. Throws `Fault` when the
/// folder cannot be read.
QStringList listFiles(const QString& folder, const QString& ending,
                      HiddenFiles hidden = HiddenFiles::LeaveOut);

}  // namespace quillane

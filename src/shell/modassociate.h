// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace quillane {

/// Makes `program`, an absolute path, the one that the desktop opens this user's .thm files with.
/// Their type, the program's entry and the icons come from the folder share beside the program's
/// own. A file that lies in their place and did not come from here stays as it is. A second run
/// changes nothing. Throws `Fault`.
void CreateFileAssociation(const QString& program);

/// Takes away the files that `CreateFileAssociation` added, and the program from the defaults for
/// .thm files, so that an earlier default is in force again. Throws `Fault`.
void RemoveFileAssociation();

}  // namespace quillane

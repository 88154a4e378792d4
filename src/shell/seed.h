// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "theme/fault.h"

namespace quillane {

struct Places;

/// Makes the program's folder and copies into it what the installation brings: each file once, and
/// never over a file that is there. What has been copied is noted in "seeded.txt", so that a sample
/// theme which the user deleted stays deleted. What cannot be copied is left out and reported once.
void seedProgramFolder(const Places& places, const FaultReporter& report);

}  // namespace quillane

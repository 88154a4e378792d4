// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "theme/tags.h"
#include "theme/values.h"
#include "thmtool/editoptions.h"

#include <QString>

namespace quillane {

/// A theme under edit, without a window.
struct EditedTheme {
  ThemeValues values;
  ThemeTagTexts tags{};
};

/// Makes the changes. Throws `UsageError` for an element that the generation does not have, and
/// `Fault` for a picture that its slot refuses.
void applyEdits(EditedTheme& theme, const EditOptions& options);

/// Saves the theme; `shown` is how it was before the edit, null for a new one. What is odd about it
/// goes to the error stream, and what keeps it from being packed, too. Returns an `ExitStatus`;
/// throws `Fault`.
int saveEdited(const EditedTheme& theme, const ThemeValues* shown, const QString& themePath,
               const EditOptions& options, const Streams& streams);

}  // namespace quillane

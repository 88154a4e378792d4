// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "theme/tags.h"
#include "theme/values.h"

#include <QString>

namespace quillane {

/// The complete XML of a theme, one tag a line, without a line end behind the last. A tag whose
/// text is empty is left out; with the tags disabled all of them are. Nothing is escaped or
/// checked.
QString generateXml(const ThemeValues& values, const ThemeTagTexts& tags);

/// The same XML without the line ends between its tags, as it goes into an archive.
QString compressXml(QString xml);

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "theme/tags.h"
#include "theme/values.h"

#include <QString>
#include <QStringList>

namespace quillane {

/// What a theme that is going to be saved will not be as it was meant, a line each: images that
/// cannot be seen, and what will not be read from `xml` as it is in the values.
QStringList saveWarnings(const ThemeValues& values, const ThemeTagTexts& tags, const QString& xml);

}  // namespace quillane

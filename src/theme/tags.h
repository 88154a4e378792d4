// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "theme/fault.h"

#include <QLatin1String>
#include <QString>

#include <array>

namespace quillane {

/// One piece of authoring information: `<element attribute="text"/>` inside the theme's comment.
struct ThemeTag {
  QLatin1String element;
  QLatin1String attribute;
};

/// The Extended Theme Tags in the order in which they are written.
inline constexpr std::array<ThemeTag, 4> kThemeTags{{
    {QLatin1String("Theme_name"), QLatin1String("Name")},
    {QLatin1String("Theme_creator"), QLatin1String("Name")},
    {QLatin1String("Theme_modified_by"), QLatin1String("Name")},
    {QLatin1String("Theme_created"), QLatin1String("Time")},
}};

/// The texts of the tags, in the order of `kThemeTags`; empty for one that is not there.
using ThemeTagTexts = std::array<QString, kThemeTags.size()>;

/// The time of a file as the tags tell it: "9.9.2001 03:46".
QString tagTime(const QString& path);

/// Reads all tags from the text of a theme.
ThemeTagTexts readThemeTags(const QString& themeXml, const FaultReporter& report);

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "theme/fault.h"
#include "theme/values.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace quillane {

/// A theme read from the folder into which its archive was extracted.
struct LoadedTheme {
  QString xmlPath;  ///< The XML file taken.
  QString xml;      ///< Its text, one tag a line.
  ThemeValues values{Generation::Two};
  QStringList warnings;  ///< A line for each missing image, in load order.
};

/// What an image element says that has no image.
inline constexpr QLatin1String kNoImage{"xxx.gif"};

/// Whether a value can be no file's name: it holds a folder, a pattern character or a NUL.
bool namesNoFile(const QString& name);

/// The one of these names that is the theme's XML: the first "*.xml" in name order, letter case
/// aside. Empty when there is none.
QString themeXmlName(const QStringList& names);

/// The warning about a slot whose file is not in the theme.
QString missingImageText(const ImageElement& image, const QString& name);

/// Path of the theme's XML in `folder` by `themeXmlName`, empty when there is none.
QString findThemeXml(const QString& folder);

/// Breaks an unbroken text into one tag a line and repairs a badly converted one.
QString normaliseThemeXml(QString xml);

/// Path of `name` in `folder` when it is a regular file there, otherwise empty. A name with a
/// folder, a pattern character or a NUL names no file.
QString findThemeImage(const QString& folder, const QString& name);

/// Reads the values of every element in load order and resolves the images in `folder`; the slots
/// of the theme's generation get their state in `states`, the others stay.
/// Returns nothing when the folder holds no XML file. Throws `Fault` when it cannot be read.
std::optional<LoadedTheme> loadTheme(const QString& folder, ImageStates& states,
                                     const FaultReporter& report);

}  // namespace quillane

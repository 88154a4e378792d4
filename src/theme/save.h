// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "theme/fault.h"
#include "theme/values.h"

#include <QString>

namespace quillane {

/// The title of a theme file: its bare name up to the first point. Its XML is named after it.
QString themeTitle(const QString& themePath);

/// Where a theme is saved when a person chooses `path`: "title.thm" in the same folder, so that all
/// between the first point and the end of a name is lost.
QString themeSavePath(const QString& path);

/// What a save packs, and how.
struct ThemeSave {
  QString themePath;          ///< The archive to write, as it stands.
  const ThemeValues& edited;  ///< Its images are packed from where their paths point.
  /// The values of the theme that was shown when the edit began, of the same generation; null for
  /// none. In generation 2 they alone decide whether the small title image has a line in the index.
  const ThemeValues* shown = nullptr;
  QString xml;  ///< Of `generateXml`.
  bool includeIndex = true;
  bool compress = true;
  QString workFolder;  ///< The save makes its files in "new/" below and removes them.
};

/// Saves a theme as an archive of its XML, the index where wanted, and its images.
///
/// Throws `Fault` when the XML or the index cannot be made, as when an image to be listed is not
/// there, and for an image that is named like one of them ("*.xml", "index.txt"). A fault of the
/// packing itself goes to `report`, and the result is false. The archive that was there stays as it
/// was in both cases.
bool saveTheme(const ThemeSave& save, const FaultReporter& report);

}  // namespace quillane

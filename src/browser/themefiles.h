// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "theme/elements.h"
#include "theme/values.h"

#include <QString>

#include <optional>
#include <span>

namespace quillane {

struct PublicState;

/// Bare names of the files of a theme by what they serve as; empty for what the theme has not.
struct ThemeFileNames {
  QString XmlName;
  QString BackgroundName;
  QString DesktopName;
  QString TitleSmallName;
  QString TitleMediumName;
  QString TitleLargeName;
  QString TitleAsianName;
  QString StatusbarName;
  QString WallpaperName;
  QString SoftkeysName;
  QString TitleName;
  QString HighlightName;
  QString PopupTitleName;
  QString PopupHighlightName;
  QString indexName = QStringLiteral("index.txt");
};

/// One of the names.
using ThemeFileName = QString ThemeFileNames::*;

/// A row of the list that tells which images a theme has.
struct ImageRow {
  const char* label;
  int tabs;            ///< How many tab characters stand between the label and the status.
  int image;           ///< Index in the engine.
  ThemeFileName name;  ///< Takes the name of the image's file.
};

/// The rows of a generation, in their order.
std::span<const ImageRow> imageRows(Generation generation);

/// Whether the theme on show has the image of a row.
SlotState imageStateOf(const ImageRow& row, const PublicState& state);

/// The names of the files of the theme on show.
ThemeFileNames namesOf(const PublicState& state);

/// How the contents of a file are shown.
enum class FilePreview { Picture, Text };

/// What a file of a theme serves as.
struct FileRole {
  QString description;
  FilePreview preview;
};

/// The first role whose name is that of the file, letter case aside; nothing for a file that serves
/// as none.
std::optional<FileRole> roleOf(const QString& file, const ThemeFileNames& names);

}  // namespace quillane

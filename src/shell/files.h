// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace quillane {

/// True when something but a folder answers to the path, hidden files included. Wild cards in the
/// name part count as found if anything matches.
bool FileExists(const QString& path);

/// True when the path is a folder; it may end in a separator.
bool FolderExists(const QString& path);

/// Deletes all files that match a path whose name part is a pattern, as in "folder/*.*", where
/// "*.*" means every file. Folders stay, and a file that cannot be deleted stays without complaint.
void DeleteFiles(const QString& pattern);

/// Which half of a path `SplitPath` returns.
enum class PathPart { Name = 0, Folder = 1 };

/// The part of a path behind its last separator, or all up to and including it.
QString SplitPath(const QString& path, PathPart part);

/// "12.3 KB (12595 bytes)" for a size in bytes.
QString sizeText(qint64 bytes);

/// `sizeText` of a file's length; empty when it has none.
QString FormatFileSize(const QString& path);

/// The path with exactly one separator at its end.
QString withSeparator(const QString& folder);

}  // namespace quillane

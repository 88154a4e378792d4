// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>
#include <QString>

#include <system_error>

namespace quillane {

// Steps of file operations that the system's own calls do best. An empty `std::errc` is success.

/// Gives a file a name that is free; `std::errc::file_exists` when it is not. A link is renamed
/// itself.
std::errc renameFresh(const QString& from, const QString& to);

/// Gives a file a name and replaces the file or link that has it.
std::errc renameOver(const QString& from, const QString& to);

/// Removes a file or link for good.
std::errc removeFile(const QString& path);

/// Writes bytes at the end of an open file.
std::errc appendBytes(int file, QByteArrayView bytes);

/// Brings a folder's list of names to the disk, where it lets us.
std::errc flushFolder(const QString& folder);

/// Gives an open file the permissions and the time of another, where its disk keeps such.
std::errc copyPermissionsAndTime(int from, int to);

/// Moves a file to the desktop's trash. Empty on success, else why the file is still there. Throws
/// `Fault` when it went elsewhere for good.
QString refusalOfTrash(const QString& path);

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "theme/fault.h"

#include <QByteArray>
#include <QString>

namespace quillane {

/// Reads a whole regular file. Throws `Fault`.
QByteArray readFile(const QString& path);

/// Reads the first bytes of a regular file, `most` of them where it has more. Throws `Fault`.
QByteArray readFileStart(const QString& path, qint64 most);

/// Writes a file beside its place, flushes it and renames it over what was there.
/// Throws `Fault`; the old file is then untouched.
void saveFile(const QString& path, const QByteArray& bytes);

/// Size of a regular file in bytes. Throws `Fault` when there is none.
qint64 fileSize(const QString& path);

/// The fault of a file that is not there.
Fault notFound(const QString& path, int line = __builtin_LINE());

/// The fault of a folder that is not there.
Fault folderNotFound(const QString& folder, int line = __builtin_LINE());

/// The fault of a file that one may not read, write, or what else the verb says.
Fault noPermission(QLatin1String verb, const QString& path, int line = __builtin_LINE());

/// The fault of a disk that has no room for what the verb says.
Fault noRoom(QLatin1String verb, const QString& path, int line = __builtin_LINE());

/// The fault of a device or the like that lies where a file would go.
Fault irreplaceable(const QString& path, int line = __builtin_LINE());

/// The fault of a file that could not be opened or read, told by what the path leads to.
Fault unreadable(const QString& path, int line = __builtin_LINE());

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace quillane {

/// Path of an installed face by its file name; empty when there is none.
QString findFaceFile(const QString& fileName);

/// Path of the installed outline face that comes closest to a family; empty when there is none.
QString closestFaceFile(const QString& family, bool bold);

/// Version of the library that finds faces, as it is in memory: "2.14.1".
QString fontconfigVersion();

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "theme/fault.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

namespace quillane {

/// The path that a word of the command line means. The toolkit takes one with a colon in front for
/// something built into the program.
inline QString pathOf(const QString& word) {
  return word.startsWith(QLatin1Char(':')) ? QLatin1String("./") + word : word;
}

/// Makes a folder that is to be written to where it is missing. Throws `Fault`.
inline void makeOutputFolder(const QString& folder) {
  if (!folder.isEmpty() && QDir().mkpath(folder)) return;
  throw Fault(FaultNumber::NoPermission,
              QStringLiteral("The folder \"%1\" cannot be made; choose one where you may write.")
                  .arg(folder));
}

/// Makes a temporary folder that ends with the object. Throws `Fault`.
inline QTemporaryDir makeWorkFolder() {
  // Without a temporary folder the toolkit would make one in the root of the file system.
  const bool hasPlace = QFileInfo(QDir::tempPath()).isDir();
  QTemporaryDir folder(hasPlace ? QDir::tempPath() + QLatin1String("/thmtool-XXXXXX") : QString());
  if (hasPlace && folder.isValid()) return folder;
  throw Fault(FaultNumber::NoPermission,
              QStringLiteral("No temporary folder can be made in \"%1\": %2")
                  .arg(QDir::tempPath(), folder.errorString()));
}

}  // namespace quillane

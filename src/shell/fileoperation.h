// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "theme/fault.h"

#include <QString>
#include <QStringList>

namespace quillane {

/// What is done with files.
enum class FileVerb {
  Copy,
  Move,
  Trash,   ///< To the desktop's trash, from where they can be brought back.
  Delete,  ///< For good.
};

/// What becomes of a file whose name is taken in the target folder.
enum class Overwrite { Replace, Skip, Cancel };

/// Who is told how a file operation goes, and asked where it cannot decide.
class FileOperationWatcher {
 public:
  virtual ~FileOperationWatcher() = default;

  /// Another file lies where `source` would go. More files may be `left` after it.
  virtual Overwrite targetExists(const QString& source, const QString& target, bool left) = 0;
  /// A file failed and others are left. True to go on with them.
  virtual bool goOnAfter(const Fault& fault) = 0;
  /// The last file failed.
  virtual void report(const Fault& fault) = 0;
  /// The trash cannot take the file. True to delete it for good instead of keeping it.
  virtual bool deleteForGood(const QString& path, const QString& reason, bool left) = 0;
  /// The operation works on `path` and has done so much of its bytes; of its files, when it
  /// deletes. False to stop.
  virtual bool progress(const QString& path, qint64 done, qint64 all) = 0;
};

/// How an operation ended.
struct FileOperationResult {
  bool stopped = false;  ///< The watcher ended it before its end.
  bool failed = false;   ///< A file could not be worked on.
  bool allKept = false;  ///< The trash refused every file, and the watcher gave none up.
};

/// Works on files, one after the other; folders are faults. `targetFolder` counts for copies and
/// moves. A file is written beside its target and renamed when it is whole on the disk, keeping
/// time and permissions; a move across file systems removes the source only then. Moving a file
/// onto itself changes nothing. Throws `Fault` when there is no target folder.
FileOperationResult runFileOperation(FileVerb verb, const QStringList& sources,
                                     const QString& targetFolder, FileOperationWatcher& watcher);

/// Gives a file another name in its folder; its own one changes nothing. Throws `Fault` when the
/// source is gone, the name is taken or cannot be one.
void renameFile(const QString& source, const QString& target);

/// Version of the library that knows the trash, as it is in memory: "2.74.6".
QString glibVersion();

}  // namespace quillane

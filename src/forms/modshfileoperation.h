// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

class QWidget;

namespace quillane {

class Dialogs;

/// What deleting a file means.
enum class DeleteKind { ToTrash, ForGood };

// File operations as a person sees them: with a window of progress when they last, a question where
// a name is taken, one before anything is deleted, and a report of each file that fails. The wait
// pointer shows meanwhile, but not beside the window of progress. Without files nothing happens.

/// Copies files into the folder `target`.
void SHFileCopy(QWidget* owner, Dialogs& dialogs, const QStringList& sources,
                const QString& target);

/// Moves files into the folder `target`. True when there were any and none failed or was left.
bool SHFileMove(QWidget* owner, Dialogs& dialogs, const QStringList& sources,
                const QString& target);

/// Deletes files. False when the person stopped it or kept every file; files that failed do not
/// count.
bool SHFileDelete(QWidget* owner, Dialogs& dialogs, const QStringList& sources, DeleteKind kind);

/// Gives the file `source` the path `target` in the same folder. True when it has it.
bool SHFileRename(QWidget* owner, Dialogs& dialogs, const QString& source, const QString& target);

}  // namespace quillane

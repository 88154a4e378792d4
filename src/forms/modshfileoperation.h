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
// pointer shows meanwhile.

/// Copies files into the folder `target`.
void SHFileCopy(QWidget* owner, Dialogs& dialogs, const QStringList& sources,
                const QString& target);

/// Moves files into the folder `target`. True when it ran to its end without a failure.
bool SHFileMove(QWidget* owner, Dialogs& dialogs, const QStringList& sources,
                const QString& target);

/// Deletes files. True unless the person stopped it.
bool SHFileDelete(QWidget* owner, Dialogs& dialogs, const QStringList& sources, DeleteKind kind);

/// Gives the file `source` the path `target` in the same folder. True when it has it.
bool SHFileRename(QWidget* owner, Dialogs& dialogs, const QString& source, const QString& target);

}  // namespace quillane

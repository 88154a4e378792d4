// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/sourcedialog.h"

#include "forms/clsopensave.h"
#include "shell/files.h"
#include "shell/state.h"

namespace quillane {

using namespace Qt::StringLiterals;

QString askExportPath(QWidget* owner, Dialogs& dialogs, PublicState& state,
                      const QString& offered) {
  clsOpenSave dialog(dialogs);
  dialog.DialogTitle = u"Export the source XML code"_s;
  dialog.InitDir = state.ExportFolder;
  dialog.FileName = offered;
  dialog.DefaultExt = u".xml"_s;
  dialog.Filter = kSourceFilter;
  dialog.ShowSave(owner);
  state.ExportFolder = SplitPath(dialog.FileName, PathPart::Folder);
  return dialog.FileName;
}

}  // namespace quillane

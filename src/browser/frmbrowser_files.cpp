// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
// What is done with the theme files of the list.
#include "browser/frmbrowser.h"
#include "forms/dialogs.h"
#include "forms/filelistbox.h"
#include "forms/modshfileoperation.h"
#include "forms/renamebox.h"
#include "shell/state.h"
#include "ui_frmbrowser.h"

#include <QFileInfo>

#include <algorithm>

namespace quillane {

using namespace Qt::StringLiterals;

QStringList frmBrowser::selectedPaths() const {
  QStringList paths;
  for (const int index : ui_->filFiles->selectedItems())
    paths << state_.BrowseFolder + ui_->filFiles->item(index);
  return paths;
}

void frmBrowser::btnCopy_Click() {
  if (!askFolder(dialogs_, this, u"Copy file(s) to:"_s, state_.CopyMoveFolder)) return;
  SHFileCopy(this, dialogs_, selectedPaths(), state_.CopyMoveFolder);
}

void frmBrowser::btnMove_Click() {
  if (!askFolder(dialogs_, this, u"Move file(s) to:"_s, state_.CopyMoveFolder)) return;
  const QStringList paths = selectedPaths();
  if (SHFileMove(this, dialogs_, paths, state_.CopyMoveFolder)) refreshWithout(paths);
}

void frmBrowser::btnDelete_Click() {
  const DeleteKind kind = state_.ShiftDown ? DeleteKind::ForGood : DeleteKind::ToTrash;
  const QStringList paths = selectedPaths();
  const bool deleted = SHFileDelete(this, dialogs_, paths, kind);
  state_.ShiftDown = false;
  if (deleted) refreshWithout(paths);
}

void frmBrowser::refreshWithout(const QStringList& paths) {
  // A theme that was moved onto itself, skipped or could not be deleted stays selected.
  const auto isThere = [](const QString& path) { return QFileInfo::exists(path); };
  if (std::all_of(paths.begin(), paths.end(), isThere)) return;
  refreshList();
  AfterRemoval();
}

void frmBrowser::AfterRemoval() {
  if (ui_->filFiles->listCount() != 0 && SelectedCount == 1) {
    // Another program may have taken more files than this one.
    const int last = ui_->filFiles->listCount() - 1;
    ui_->filFiles->selectOnly(std::clamp(state_.SelectedIndex - 1, 0, last));
    return;
  }
  ClearPreview();
  btnRefresh_Click();
}

void frmBrowser::StartRename() {
  FileListBox& list = *ui_->filFiles;
  const QList<int> selected = list.selectedItems();
  // The count goes on from 0 after a theme without XML, and then differs.
  if (selected.size() != 1) return;
  // The keyboard may stand on another row than the selected one.
  list.setSelected(selected.constFirst(), true);
  list.scrollTo(list.currentIndex());
  const int row = list.listIndex() - list.topIndex();
  ui_->txtRename->setText(list.item(list.listIndex()));
  ui_->txtRename->move(ui_->txtRename->x(), list.y() + row * FileListBox::kRowHeight);
  ui_->txtRename->raise();
  ui_->txtRename->show();
  ui_->txtRename->setFocus();
}

void frmBrowser::txtRename_Enter() {
  const QString name = ui_->txtRename->text().section(u'.', 0, 0);
  // A file without a name before its ending would vanish from the list.
  if (!name.isEmpty()) renameTheme(name + ".thm"_L1);
  ui_->txtRename->hide();
  ui_->filFiles->setFocus();
}

void frmBrowser::renameTheme(const QString& name) {
  // Inverting selects a theme that it does not load; the one under the box is meant. After a rename
  // the path of the theme is stale until the next selection, and its file is reported as gone.
  const QString shown = state_.BrowseFolder + ui_->filFiles->item(ui_->filFiles->listIndex());
  const QString source = QFileInfo::exists(state_.ThemeFilePath) ? shown : state_.ThemeFilePath;
  if (!SHFileRename(this, dialogs_, source, state_.BrowseFolder + name)) return;
  refreshList();
  // The theme on show stays as it is.
  InListUpdate = true;
  for (int index = 0; index < ui_->filFiles->listCount(); ++index)
    if (ui_->filFiles->item(index) == name) ui_->filFiles->setSelected(index, true);
  InListUpdate = false;
  if (ui_->filFiles->listIndex() >= 0) return;
  ClearPreview();
  btnRefresh_Click();
}

}  // namespace quillane

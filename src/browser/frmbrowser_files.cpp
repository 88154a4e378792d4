// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
// What is done with the theme files of the list.
#include "browser/frmbrowser.h"
#include "forms/dialogs.h"
#include "forms/filelistbox.h"
#include "forms/modshfileoperation.h"
#include "forms/renamebox.h"
#include "shell/files.h"
#include "shell/state.h"
#include "ui_frmbrowser.h"

namespace quillane {

using namespace Qt::StringLiterals;

QStringList frmBrowser::selectedPaths() const {
  QStringList paths;
  for (const int index : ui_->filFiles->selectedItems())
    paths << state_.BrowseFolder + ui_->filFiles->item(index);
  return paths;
}

bool frmBrowser::askCopyMoveFolder(const QString& prompt) {
  const QString folder = dialogs_.BrowseForFolder(this, state_.CopyMoveFolder, prompt);
  if (folder.isEmpty()) return false;
  state_.CopyMoveFolder = folder;
  return true;
}

void frmBrowser::btnCopy_Click() {
  if (!askCopyMoveFolder(u"Copy file(s) to:"_s)) return;
  SHFileCopy(this, dialogs_, selectedPaths(), state_.CopyMoveFolder);
}

void frmBrowser::btnMove_Click() {
  if (!askCopyMoveFolder(u"Move file(s) to:"_s)) return;
  if (!SHFileMove(this, dialogs_, selectedPaths(), state_.CopyMoveFolder)) return;
  refreshList();
  AfterRemoval();
}

void frmBrowser::btnDelete_Click() {
  const DeleteKind kind = state_.ShiftDown ? DeleteKind::ForGood : DeleteKind::ToTrash;
  const bool deleted = SHFileDelete(this, dialogs_, selectedPaths(), kind);
  state_.ShiftDown = false;
  if (!deleted) return;
  refreshList();
  AfterRemoval();
}

void frmBrowser::AfterRemoval() {
  if (ui_->filFiles->listCount() != 0 && SelectedCount == 1) {
    ui_->filFiles->selectOnly(qMax(0, state_.SelectedIndex - 1));
    return;
  }
  ClearPreview();
  btnRefresh_Click();
}

void frmBrowser::StartRename() {
  FileListBox& list = *ui_->filFiles;
  // The keyboard may stand on another row than the selected one.
  list.setSelected(list.selectedItems().constFirst(), true);
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
  if (!SHFileRename(this, dialogs_, state_.ThemeFilePath, state_.BrowseFolder + name)) return;
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

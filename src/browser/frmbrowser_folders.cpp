// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
// Stepping through the list, and from folder to folder.
#include "browser/frmbrowser.h"
#include "forms/dialogs.h"
#include "forms/eventprocedure.h"
#include "forms/filelistbox.h"
#include "forms/renamebox.h"
#include "shell/files.h"
#include "shell/state.h"
#include "ui_frmbrowser.h"

#include <QAction>
#include <QMenu>

namespace quillane {

using namespace Qt::StringLiterals;

void frmBrowser::filFiles_PathChange() {
  state_.BrowseFolder = withSeparator(ui_->filFiles->path());
}

void frmBrowser::btnPrev_Click() {
  stepTo(state_.SelectedIndex - 1);
}

void frmBrowser::btnNext_Click() {
  stepTo(state_.SelectedIndex + 1);
}

void frmBrowser::stepTo(int index) {
  ui_->filFiles->setSelected(state_.SelectedIndex, false);
  ui_->filFiles->selectOnly(index);
}

void frmBrowser::btnBrowse_Click() {
  const QString folder =
      dialogs_.BrowseForFolder(this, state_.BrowseFolder, u"Select folder with themes:"_s);
  if (folder.isEmpty()) return;
  addToHistory(state_.BrowseFolder);
  showFolder(folder);
}

void frmBrowser::btnHome_Click() {
  addToHistory(state_.BrowseFolder);
  showFolder(state_.ThemesFolder);
}

void frmBrowser::btnDropDown_Click() {
  mnuPopup2_->popup(ui_->area->mapToGlobal(QPoint(37, 29)));
}

void frmBrowser::mnuPopup2Item_Click(QAction* item) {
  for (QAction* other : mnuPopup2_->actions())
    other->setChecked(other == item);
  showFolder(item->data().toString());
}

void frmBrowser::addToHistory(const QString& folder) {
  QString caption = folder;
  QAction* item = mnuPopup2_->addAction(caption.replace(u'&', "&&"_L1));
  item->setData(folder);
  item->setCheckable(true);
  ui_->btnDropDown->setEnabled(true);
}

void frmBrowser::showFolder(const QString& folder) {
  ui_->filFiles->setPath(folder);
  showCaption();
  btnRefresh_Click();
}

void frmBrowser::btnRefresh_Click() {
  ClearPreview();
  refreshList();
  SelectedCount = 0;
  state_.SelectedIndex = -1;
  ThemeFailed = false;
  enableCopying(false);
  enableNavigation(false, false);
  ui_->btnIRSend->setEnabled(false);
  showThemeCount();
  ui_->lblSize->clear();
  clearTip();
  ui_->picPreview_0->hide();
  ui_->picPreview_1->hide();
  updateMenus();
}

void frmBrowser::refreshList() {
  ui_->txtRename->hide();
  eventProcedure(dialogs_, this, u"in Quillane.frmBrowser.btnRefresh_Click "_s,
                 [this] { ui_->filFiles->refresh(); });
}

void frmBrowser::showCaption() {
  setWindowTitle(titleText(u"Quillane - Theme Browser -  [%1]"_s.arg(state_.BrowseFolder)));
}

void frmBrowser::showThemeCount() {
  ui_->lblNoThemes->setText(u"Number of themes: %1"_s.arg(ui_->filFiles->listCount()));
}

}  // namespace quillane

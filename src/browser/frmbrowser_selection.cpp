// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
// What a change of selection sets off.
#include "browser/commands.h"
#include "browser/frmbrowser.h"
#include "forms/dialogs.h"
#include "forms/filelistbox.h"
#include "forms/picturebox.h"
#include "forms/renamebox.h"
#include "preview/screens.h"
#include "shell/files.h"
#include "shell/state.h"
#include "theme/archive.h"
#include "ui_frmbrowser.h"

#include <QFileInfo>

namespace quillane {

using namespace Qt::StringLiterals;

void frmBrowser::filFiles_Click() {
  ui_->txtRename->hide();
  if (InListUpdate) return;
  TipText.clear();
  TipTitle.clear();
  ThemeFailed = false;
  countSelected();
  if (SelectedCount == 1) {
    showThemeCount();
    state_.ThemeFilePath = state_.BrowseFolder + ui_->filFiles->item(state_.SelectedIndex);
    enableForOneTheme();
    extractTheme();
    showThemeResult();
  } else if (SelectedCount > 1) {
    showSeveralSelected();
  }
  updateMenus();
}

void frmBrowser::countSelected() {
  const QList<int> selected = ui_->filFiles->selectedItems();
  SelectedCount = static_cast<int>(selected.size());
  if (!selected.isEmpty()) state_.SelectedIndex = selected.last();
}

void frmBrowser::enableForOneTheme() {
  for (QWidget* button : std::initializer_list<QWidget*>{
           ui_->btnEdit, ui_->btnExport, ui_->btnCopy, ui_->btnMove, ui_->btnDelete,
           ui_->btnProperties, ui_->btnIRSend, ui_->btnClipboardCopy})
    button->setEnabled(true);
  enableNavigation(state_.SelectedIndex >= 1,
                   state_.SelectedIndex != ui_->filFiles->listCount() - 1);
}

void frmBrowser::extractTheme() {
  DeleteFiles(state_.AppTempFolder + "*.*"_L1);
  const ArchiveResult result = extractArchive(state_.ThemeFilePath, state_.AppTempFolder);
  if (result.code != 0) {
    setFailure(archiveError(result.code, SplitPath(state_.ThemeFilePath, PathPart::Name)));
    return;
  }
  LoadTheme();
  if (SelectedCount != 0) ui_->lblSize->setText(FormatFileSize(state_.ThemeFilePath));
}

void frmBrowser::setFailure(const ThemeError& error) {
  TipTitle = error.title;
  TipText = error.text;
  TipSeverity = TipIcon::Error;
}

void frmBrowser::showThemeResult() {
  if (TipText.isEmpty()) {
    clearTip();
    return;
  }
  Tips->setTitle(TipSeverity, TipTitle);
  Tips->setText(TipText);
  if (TipSeverity == TipIcon::Error) showFailure();
  ui_->picToolTip->setPixmap(tipPicture(TipSeverity));
}

void frmBrowser::showFailure() {
  ClearPreview();
  ui_->btnIRSend->setEnabled(false);
  dialogs_.beep();
  ThemeFailed = true;
}

void frmBrowser::clearTip() {
  ui_->picToolTip->setPixmap({});
  Tips->setText({});
}

void frmBrowser::showSeveralSelected() {
  ClearPreview();
  ui_->picPreview_0->hide();
  ui_->picPreview_1->hide();
  showSelectedCounts();
  clearTip();
}

void frmBrowser::showSelectedCounts() {
  showThemeCount();
  ui_->lblNoThemes->setText(ui_->lblNoThemes->text() +
                            u" (Number of selected themes: %1)"_s.arg(SelectedCount));
  ui_->lblSize->setText(sizeText(selectedBytes()));
}

qint64 frmBrowser::selectedBytes() const {
  qint64 bytes = 0;
  for (const int index : ui_->filFiles->selectedItems())
    bytes += QFileInfo(state_.BrowseFolder + ui_->filFiles->item(index)).size();
  return bytes;
}

void frmBrowser::mnuEditItem_SelectAll() {
  InListUpdate = true;
  ClearPreview();
  ui_->filFiles->selectEvery();
  InListUpdate = false;
  SelectedCount = ui_->filFiles->listCount();
  ThemeFailed = false;
  showSelectedCounts();
  clearTip();
  enableCopying(true);
  updateMenus();
}

void frmBrowser::mnuEditItem_Invert() {
  InListUpdate = true;
  ClearPreview();
  const auto before = ui_->filFiles->selectedItems().size();
  ui_->filFiles->invertSelection();
  InListUpdate = false;
  // Counted on from a count that a theme without XML has left at 0.
  SelectedCount += static_cast<int>(ui_->filFiles->selectedItems().size() - before);
  if (SelectedCount < 1) {
    ui_->lblSize->clear();
    showThemeCount();
  } else {
    showSelectedCounts();
  }
  enableCopying(SelectedCount >= 1);
  updateMenus();
}

void frmBrowser::ClearPreview() {
  // The panes of 3G keep their drawing.
  for (const Screen<clsVistrel>& screen : screensOfGeneration2())
    findChild<PictureBox*>(screen.pane)->Cls();
  showXml({});
  enableNavigation(false, false);
  for (QWidget* button : std::initializer_list<QWidget*>{ui_->btnEdit, ui_->btnExport,
                                                         ui_->btnClipboardCopy, ui_->btnProperties})
    button->setEnabled(false);
  ui_->lblSize->clear();
}

void frmBrowser::enableNavigation(bool previous, bool next) {
  ui_->btnPrev->setEnabled(previous);
  ui_->mnuNaviItem_1->setEnabled(previous);
  ui_->btnNext->setEnabled(next);
  ui_->mnuNaviItem_2->setEnabled(next);
}

void frmBrowser::enableCopying(bool on) {
  for (QWidget* button : {ui_->btnMove, ui_->btnCopy, ui_->btnDelete})
    button->setEnabled(on);
}

void frmBrowser::updateMenus() {
  // A failed theme leaves the 3G panes and their button in view.
  ui_->btnPreviewAll->setEnabled(!ThemeFailed);
  enableMenuItems(*this, SelectedCount, ThemeFailed);
}

}  // namespace quillane

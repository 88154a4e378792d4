// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
// Which event runs which procedure.
#include "browser/commands.h"
#include "browser/frmbrowser.h"
#include "browser/panemenus.h"
#include "forms/eventprocedure.h"
#include "forms/filelistbox.h"
#include "forms/formarea.h"
#include "forms/picturebox.h"
#include "ui_frmbrowser.h"

#include <QMenu>

namespace quillane {

using namespace Qt::StringLiterals;

void frmBrowser::run(const QString& event, void (frmBrowser::*procedure)()) {
  eventProcedure(dialogs_, this, u"in Quillane.frmBrowser.%1 "_s.arg(event),
                 [this, procedure] { (this->*procedure)(); });
}

void frmBrowser::connectSignals() {
  connect(ui_->area, &FormArea::Paint, this, &frmBrowser::Form_Paint);
  connect(ui_->filFiles, &FileListBox::Click, this,
          [this] { run(u"filFiles_Click"_s, &frmBrowser::filFiles_Click); });
  connect(ui_->filFiles, &FileListBox::DblClick, ui_->btnEdit, &QAbstractButton::click);
  connect(ui_->filFiles, &FileListBox::PathChange, this, &frmBrowser::filFiles_PathChange);
  connectButtons();
  connectMenus();
  connectPanes();
  disableAwaited(*this);
}

void frmBrowser::connectButtons() {
  using Procedure = void (frmBrowser::*)();
  const std::pair<QAbstractButton*, Procedure> rows[] = {
      {ui_->btnBrowse, &frmBrowser::btnBrowse_Click},
      {ui_->btnDropDown, &frmBrowser::btnDropDown_Click},
      {ui_->btnHome, &frmBrowser::btnHome_Click},
      {ui_->btnPrev, &frmBrowser::btnPrev_Click},
      {ui_->btnNext, &frmBrowser::btnNext_Click},
      {ui_->btnRefresh, &frmBrowser::btnRefresh_Click},
      {ui_->btnNew, &frmBrowser::btnNew_Click},
      {ui_->btnEdit, &frmBrowser::btnEdit_Click},
      {ui_->btnClipboardCopy, &frmBrowser::btnClipboardCopy_Click},
      {ui_->btnViewXML, &frmBrowser::btnViewXML_Click},
      {ui_->btnPreviewAll, &frmBrowser::btnPreviewAll_Click},
  };
  for (const auto& [button, procedure] : rows)
    connect(button, &QAbstractButton::clicked, this,
            [this, event = button->objectName() + "_Click"_L1, procedure = procedure] {
              run(event, procedure);
            });
}

void frmBrowser::connectMenus() {
  using Procedure = void (frmBrowser::*)();
  const std::pair<QAction*, Procedure> rows[] = {
      {ui_->mnuFileItem_1, &frmBrowser::btnNew_Click},
      {ui_->mnuFileItem_2, &frmBrowser::btnEdit_Click},
      {ui_->mnuEditItem_1, &frmBrowser::btnClipboardCopy_Click},
      {ui_->mnuEditItem_6, &frmBrowser::mnuEditItem_SelectAll},
      {ui_->mnuEditItem_7, &frmBrowser::mnuEditItem_Invert},
      {ui_->mnuViewItem_1, &frmBrowser::mnuViewItem_SourceXml},
      {ui_->mnuViewItem_3, &frmBrowser::btnRefresh_Click},
      {ui_->mnuNaviItem_1, &frmBrowser::btnPrev_Click},
      {ui_->mnuNaviItem_2, &frmBrowser::btnNext_Click},
      {ui_->mnuNaviItem_4, &frmBrowser::btnHome_Click},
      {ui_->mnuNaviItem_5, &frmBrowser::btnBrowse_Click},
  };
  for (const auto& [item, procedure] : rows)
    connect(item, &QAction::triggered, this,
            [this, event = item->objectName() + "_Click"_L1, procedure = procedure] {
              run(event, procedure);
            });
  connect(ui_->mnuFileItem_10, &QAction::triggered, this, &QWidget::close);
  connect(mnuPopup2_, &QMenu::triggered, this, &frmBrowser::mnuPopup2Item_Click);
}

void frmBrowser::connectPanes() {
  for (std::size_t pane = 0; pane < paneMenus2().size(); ++pane)
    connect(findChild<PictureBox*>(QLatin1String(paneMenus2()[pane].pane)),
            &PictureBox::rightClicked, this, [this, pane](QPoint at) { showPaneMenu2(pane, at); });
  for (std::size_t pane = 0; pane < paneMenus3G().size(); ++pane)
    connect(findChild<PictureBox*>(QLatin1String(paneMenus3G()[pane].pane)),
            &PictureBox::rightClicked, this, [this, pane](QPoint at) { showPaneMenu3G(pane, at); });
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
// Which event runs which procedure.
#include "browser/frmbrowser.h"
#include "browser/panemenus.h"
#include "forms/eventprocedure.h"
#include "forms/filelistbox.h"
#include "forms/formarea.h"
#include "forms/keypreview.h"
#include "forms/picturebox.h"
#include "ui_frmbrowser.h"

#include <QMenu>
#include <QScrollBar>

#include <algorithm>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

// These two call their form by a shorter name.
constexpr QLatin1String kShortTagged[] = {"btnMove_Click"_L1, "txtRename_KeyPress"_L1};

QString tagOf(QLatin1String event) {
  const bool isShort =
      std::find(std::begin(kShortTagged), std::end(kShortTagged), event) != std::end(kShortTagged);
  return u"in Quillane.%1.%2 "_s.arg(isShort ? "frmBrowse"_L1 : "frmBrowser"_L1, event);
}

}  // namespace

void frmBrowser::run(QLatin1String event, const std::function<void()>& procedure) {
  eventProcedure(dialogs_, this, tagOf(event), procedure);
}

void frmBrowser::connectSignals() {
  new KeyPreview(*this, state_, [this](const QKeyEvent& key) { return Form_KeyDown(key); });
  connect(ui_->area, &FormArea::Paint, this, &frmBrowser::Form_Paint);
  connect(ui_->filFiles, &FileListBox::Click, this,
          [this] { run("filFiles_Click"_L1, [this] { filFiles_Click(); }); });
  connect(ui_->filFiles, &FileListBox::DblClick, ui_->btnEdit, &QAbstractButton::click);
  connect(ui_->filFiles, &FileListBox::PathChange, this, &frmBrowser::filFiles_PathChange);
  connect(ui_->txtRename, &QLineEdit::returnPressed, this,
          [this] { run("txtRename_KeyPress"_L1, [this] { txtRename_Enter(); }); });
  connect(ui_->filFiles->verticalScrollBar(), &QScrollBar::valueChanged, ui_->txtRename,
          &QWidget::hide);
  connect(mnuPopup2_, &QMenu::triggered, this, &frmBrowser::mnuPopup2Item_Click);
  // Hiding the box gives the focus to what comes next.
  setTabOrder(ui_->txtRename, ui_->filFiles);
  connectCommands();
  connectPanes();
  connectMenus();
}

void frmBrowser::connectCommands() {
  struct Command {
    QLatin1String event;
    void (frmBrowser::*procedure)();
    QAbstractButton* button;
    QAction* item;
  };
  const Command commands[] = {
      {"btnBrowse_Click"_L1, &frmBrowser::btnBrowse_Click, ui_->btnBrowse, ui_->mnuNaviItem_5},
      {"btnDropDown_Click"_L1, &frmBrowser::btnDropDown_Click, ui_->btnDropDown, nullptr},
      {"btnHome_Click"_L1, &frmBrowser::btnHome_Click, ui_->btnHome, ui_->mnuNaviItem_4},
      {"btnPrev_Click"_L1, &frmBrowser::btnPrev_Click, ui_->btnPrev, ui_->mnuNaviItem_1},
      {"btnNext_Click"_L1, &frmBrowser::btnNext_Click, ui_->btnNext, ui_->mnuNaviItem_2},
      {"btnRefresh_Click"_L1, &frmBrowser::btnRefresh_Click, ui_->btnRefresh, ui_->mnuViewItem_3},
      {"btnNew_Click"_L1, &frmBrowser::btnNew_Click, ui_->btnNew, ui_->mnuFileItem_1},
      {"btnEdit_Click"_L1, &frmBrowser::btnEdit_Click, ui_->btnEdit, ui_->mnuFileItem_2},
      {"btnProperties_Click"_L1, &frmBrowser::btnProperties_Click, ui_->btnProperties,
       ui_->mnuFileItem_8},
      {"btnExport_Click"_L1, &frmBrowser::btnExport_Click, ui_->btnExport, ui_->mnuFileItem_3},
      {"btnClipboardCopy_Click"_L1, &frmBrowser::btnClipboardCopy_Click, ui_->btnClipboardCopy,
       ui_->mnuEditItem_1},
      {"btnCopy_Click"_L1, &frmBrowser::btnCopy_Click, ui_->btnCopy, ui_->mnuEditItem_3},
      {"btnMove_Click"_L1, &frmBrowser::btnMove_Click, ui_->btnMove, ui_->mnuEditItem_4},
      {"btnDelete_Click"_L1, &frmBrowser::btnDelete_Click, ui_->btnDelete, ui_->mnuFileItem_6},
      {"StartRename"_L1, &frmBrowser::StartRename, nullptr, ui_->mnuFileItem_5},
      {"mnuEditItem_Click"_L1, &frmBrowser::mnuEditItem_SelectAll, nullptr, ui_->mnuEditItem_6},
      {"mnuEditItem_Click"_L1, &frmBrowser::mnuEditItem_Invert, nullptr, ui_->mnuEditItem_7},
      {"mnuEditItem_Click"_L1, &frmBrowser::mnuEditItem_Preferences, nullptr, ui_->mnuEditItem_9},
      {"btnViewXML_Click"_L1, &frmBrowser::btnViewXML_Click, ui_->btnViewXML, nullptr},
      {"mnuViewItem_Click"_L1, &frmBrowser::mnuViewItem_SourceXml, nullptr, ui_->mnuViewItem_1},
      {"btnIRSend_Click"_L1, &frmBrowser::btnIRSend_Click, ui_->btnIRSend, ui_->mnuToolsItem_1},
      {"mnuToolsItem_Click"_L1, &frmBrowser::mnuToolsItem_Capture, nullptr, ui_->mnuToolsItem_2},
      {"mnuToolsItem_Click"_L1, &frmBrowser::mnuToolsItem_ImageWizard, nullptr,
       ui_->mnuToolsItem_4},
      {"mnuToolsItem_Click"_L1, &frmBrowser::mnuToolsItem_TarWizard, nullptr, ui_->mnuToolsItem_5},
      {"btnPreviewAll_Click"_L1, &frmBrowser::btnPreviewAll_Click, ui_->btnPreviewAll, nullptr},
      {"mnuHelpItem_Click"_L1, &frmBrowser::mnuHelpItem_Contents, nullptr, ui_->mnuHelpItem_1},
      {"mnuHelpItemInternet_Click"_L1, &frmBrowser::mnuHelpItemInternet_HomePage, nullptr,
       ui_->mnuHelpItemInternet_1},
      {"mnuHelpItemInternet_Click"_L1, &frmBrowser::mnuHelpItemInternet_Forums, nullptr,
       ui_->mnuHelpItemInternet_2},
      {"mnuHelpItem_Click"_L1, &frmBrowser::mnuHelpItem_About, nullptr, ui_->mnuHelpItem_5},
  };
  for (const Command& command : commands) {
    const auto runCommand = [this, command] {
      run(command.event, [&] { (this->*command.procedure)(); });
    };
    if (command.button) connect(command.button, &QAbstractButton::clicked, this, runCommand);
    if (command.item) connect(command.item, &QAction::triggered, this, runCommand);
  }
  connect(ui_->mnuFileItem_10, &QAction::triggered, this, &QWidget::close);
}

// The box would stand over a list that a menu's command changes.
void frmBrowser::connectMenus() {
  for (QMenu* menu : findChildren<QMenu*>())
    connect(menu, &QMenu::aboutToShow, ui_->txtRename, &QWidget::hide);
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

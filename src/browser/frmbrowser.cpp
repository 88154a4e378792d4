// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/frmbrowser.h"

#include "browser/commands.h"
#include "browser/frmproperties.h"
#include "forms/bevel.h"
#include "forms/dialogs.h"
#include "forms/eventprocedure.h"
#include "forms/formfonts.h"
#include "shell/files.h"
#include "shell/settings.h"
#include "shell/state.h"
#include "tools/frmcapturewiz.h"
#include "ui_frmbrowser.h"

#include <QCloseEvent>
#include <QFileInfo>
#include <QLabel>
#include <QMenu>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

/// A folder variable that the end of the program writes to the settings.
struct KeptFolder {
  const Setting& setting;
  QString PublicState::*variable;
};

constexpr KeptFolder kKeptFolders[] = {
    {setting::BrowseFolder, &PublicState::BrowseFolder},
    {setting::CaptureFolder, &PublicState::CaptureFolder},
    {setting::ExtractFolder, &PublicState::ExtractFolder},
    {setting::ExportFolder, &PublicState::ExportFolder},
    {setting::ImageFolder, &PublicState::ImageFolder},
    {setting::TARWizFilesFolder, &PublicState::TARWizFilesFolder},
    {setting::ImageWizOpenFolder, &PublicState::ImageWizOpenFolder},
    {setting::ImageWizSaveFolder, &PublicState::ImageWizSaveFolder},
};

/// Where the separators of the tool row stand, as shadow lines with a light line behind.
constexpr int kToolSeparators[] = {75, 160, 245, 304, 389};

bool isQuoted(const QString& commandLine) {
  return commandLine.contains(u'"');
}

/// The path that a command line names, absolute.
QString themePath(const QString& commandLine) {
  if (commandLine.isEmpty()) return {};
  const QString path =
      isQuoted(commandLine) ? commandLine.mid(1, commandLine.size() - 2) : commandLine;
  return QFileInfo(path).absoluteFilePath();
}

}  // namespace

frmBrowser::frmBrowser(PublicState& state, SettingsStore& settings, Dialogs& dialogs,
                       PreviewWorld& world, const QString& commandLine)
    : ui_(std::make_unique<Ui::frmBrowser>()),
      state_(state),
      settings_(settings),
      dialogs_(dialogs),
      world_(world),
      mnuPopup_(new QMenu(this)),
      mnuPopup3_(new QMenu(this)),
      mnuPopup2_(new QMenu(this)) {
  ui_->setupUi(this);
  mnuPopup_->setObjectName(u"mnuPopup"_s);
  mnuPopup2_->setObjectName(u"mnuPopup2"_s);
  mnuPopup3_->setObjectName(u"mnuPopup3"_s);
  connectSignals();
  Form_Load(commandLine);
}

frmBrowser::~frmBrowser() = default;

void frmBrowser::Form_Load(const QString& commandLine) {
  const QString path = themePath(commandLine);
  const bool isFolder = FolderExists(path);
  const QString folder = isFolder ? path : SplitPath(path, PathPart::Folder);
  if (!path.isEmpty() && FolderExists(folder)) state_.BrowseFolder = withSeparator(folder);

  dressButtons(*this);
  ui_->mnuToolsItem_4->setEnabled(state_.IViewPresent);
  makePaneMenus();
  Tips = std::make_unique<cTooltips>(ui_->picToolTip);
  ui_->filFiles->setEnding(u".thm"_s);
  ui_->filFiles->setPath(state_.BrowseFolder);
  eventProcedure(dialogs_, this, u"in Quillane.frmBrowser.Form_Load "_s,
                 [this] { ui_->filFiles->refresh(); });
  showCaption();
  showThemeCount();
  ui_->lblSize->clear();
  for (QLabel* label : {ui_->lblNoThemes, ui_->lblSize})
    label->setFont(fontOfHeight(label->font(), label->height()));
  ui_->txtXML->viewport()->setBackgroundRole(QPalette::Button);
  updateMenus();
  ui_->filFiles->setFocus();
  if (!path.isEmpty() && !isFolder) selectFromCommandLine(commandLine, path);
  setFixedSize(sizeHint());
  show();
}

// A quoted path keeps its letter case while the names of the list are lowered, so one with capitals
// opens its folder and selects nothing.
void frmBrowser::selectFromCommandLine(const QString& commandLine, const QString& path) {
  if (!FileExists(path)) {
    dialogs_.message(nullptr, MessageIcon::Warning, QString(),
                     u"Theme %1 could not been found."_s.arg(commandLine));
    return;
  }
  const QString name = SplitPath(path, PathPart::Name);
  const QString wanted = isQuoted(commandLine) ? name : name.toLower();
  for (int index = 0; index < ui_->filFiles->listCount(); ++index) {
    if (ui_->filFiles->item(index).toLower() != wanted) continue;
    ui_->filFiles->selectOnly(index);
    return;
  }
}

void frmBrowser::Form_Paint(Bevel& bevel) {
  const int width = ui_->area->width();
  DrawEtchedLine(bevel, width, 0);
  // Grip of the tool row.
  bevel.light(3, 6, 3, 26);
  bevel.shadow(5, 6, 5, 26);
  bevel.light(3, 6, 5, 6);
  bevel.shadow(3, 25, 5, 25);
  DrawEtchedLine(bevel, width, 30);
  for (const int x : kToolSeparators) {
    bevel.shadow(x, 6, x, 26);
    bevel.light(x + 1, 6, x + 1, 26);
  }
  // Status panel of the counts.
  bevel.shadow(1, 461, width - 26, 461);
  bevel.shadow(1, 461, 1, 480);
  bevel.light(1, 480, width - 25, 480);
  bevel.light(654, 461, 654, 480);
  // Status panel of the failure icon.
  bevel.shadow(657, 461, width - 2, 461);
  bevel.shadow(657, 461, 657, 480);
  bevel.light(657, 480, width - 2, 480);
  bevel.light(width - 2, 461, width - 2, 481);
}

void frmBrowser::closeEvent(QCloseEvent* event) {
  if (!unloaded_) Form_Unload();
  unloaded_ = true;
  event->accept();
}

void frmBrowser::Form_Unload() {
  Tips.reset();
  if (captureWizard_) captureWizard_->close();
  state_.PreviewEngine2.reset();
  state_.EditorEngine2.reset();
  DeleteFiles(state_.AppTempFolder + "*.*"_L1);
  for (const KeptFolder& kept : kKeptFolders)
    settings_.write(kept.setting, state_.*kept.variable);
  eventProcedure(dialogs_, this, u"in Quillane.frmBrowser.Form_Unload "_s,
                 [this] { settings_.flush(); });
}

// Keys that are let go over another window are never seen here.
void frmBrowser::changeEvent(QEvent* event) {
  if (event->type() == QEvent::ActivationChange && !isActiveWindow())
    state_.ShiftDown = state_.CtrlDown = false;
  QMainWindow::changeEvent(event);
}

bool frmBrowser::Form_KeyDown(const QKeyEvent& key) {
  if (key.type() != QEvent::KeyPress) return false;
  if (key.key() == Qt::Key_F2 && SelectedCount == 1)
    ui_->mnuFileItem_5->trigger();
  else if (key.key() == Qt::Key_Delete && ui_->btnDelete->isEnabled() &&
           !ui_->txtRename->isVisible())
    ui_->btnDelete->click();
  else
    return false;
  return true;
}

}  // namespace quillane

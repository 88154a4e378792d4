// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
// From the extracted theme to the screens, and the menus of the panes.
#include "browser/frmbrowser.h"
#include "browser/panemenus.h"
#include "editor/editor.h"
#include "forms/chourglass.h"
#include "forms/dialogs.h"
#include "forms/heldfaults.h"
#include "forms/paintscreen.h"
#include "shell/dynamics.h"
#include "shell/files.h"
#include "shell/modassociate.h"
#include "shell/state.h"
#include "theme/archive.h"
#include "theme/load.h"
#include "tools/frmcapturewiz.h"
#include "tools/frmimagewiz.h"
#include "tools/frmpreferences.h"
#include "tools/frmpreviewall.h"
#include "tools/frmtarwizard.h"
#include "ui_frmbrowser.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QMenu>

#include <optional>
#include <span>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

const QString kParseTag = u"in Quillane.modMain.ParseXML "_s;
const QString kDrawTag = u"in Quillane.frmBrowser.LoadTheme "_s;

/// The browser never selects one of the last three cells of the 3G board.
constexpr int kHighestDesktopIcon = 9;

}  // namespace

void frmBrowser::LoadTheme() {
  const cHourglass wait;
  // Shown when the theme is, not over the one before.
  HeldFaults faults;
  const std::optional<LoadedTheme> theme =
      loadTheme(state_.AppTempFolder, state_.ImageState, faults.reporter());
  if (!theme) {
    setFailure(missingXmlError(SplitPath(state_.ThemeFilePath, PathPart::Name)));
    SelectedCount = 0;
    return;
  }
  state_.ThemeXmlPath = theme->xmlPath;
  state_.ThemeXml = theme->xml;
  showXml(theme->xml);
  state_.ThemeGeneration = theme->values.schema().generation;
  const bool is3G = state_.ThemeGeneration == Generation::ThreeG;
  ui_->picPreview_0->setVisible(!is3G);
  ui_->picPreview_1->setVisible(is3G);
  faults.show(dialogs_, this, kParseTag);
  if (is3G) {
    state_.PreviewEngine3G->takeTheme(theme->values);
    drawScreens(*state_.PreviewEngine3G, *state_.EditorEngine3G, screensOf3G(), faults.reporter());
  } else {
    state_.PreviewEngine2->takeTheme(theme->values);
    drawScreens(*state_.PreviewEngine2, *state_.EditorEngine2, screensOfGeneration2(),
                faults.reporter());
  }
  faults.show(dialogs_, this, kDrawTag);
  if (theme->warnings.isEmpty()) return;
  TipTitle = u"Errors in theme \"%1\""_s.arg(ui_->filFiles->item(state_.SelectedIndex));
  TipText = theme->warnings.join("\r\n"_L1);
  TipSeverity = TipIcon::Warning;
}

template <class Engine>
void frmBrowser::drawScreens(Engine& preview, Engine& editor,
                             std::span<const Screen<Engine>> screens, const FaultReporter& report) {
  for (const Screen<Engine>& screen : screens) {
    auto* pane = findChild<PictureBox*>(screen.pane);
    if (!pane) continue;
    stepPhone(screen.id, preview, kHighestDesktopIcon, state_, world_);
    if (screen.id == "standby"_L1) stepBattery(preview, editor, state_);
    paintScreen(screen, preview, *pane, report);
  }
}

// Laying out a long text takes longer than all the rest of a load, so a closed view goes without.
void frmBrowser::showXml(const QString& xml) {
  xml_ = xml;
  if (ui_->btnViewXML->isChecked()) ui_->txtXML->setPlainText(xml_);
}

void frmBrowser::btnViewXML_Click() {
  const bool on = ui_->btnViewXML->isChecked();
  if (!on && ui_->txtXML->hasFocus()) ui_->filFiles->setFocus();
  showXml(xml_);
  ui_->txtXML->setVisible(on);
  if (on) ui_->txtXML->raise();
  ui_->mnuViewItem_1->setChecked(on);
}

void frmBrowser::mnuViewItem_SourceXml() {
  ui_->btnViewXML->setChecked(ui_->mnuViewItem_1->isChecked());
  btnViewXML_Click();
}

void frmBrowser::btnClipboardCopy_Click() {
  QGuiApplication::clipboard()->setText(state_.ThemeXml);
}

void frmBrowser::btnPreviewAll_Click() {
  showPreviewAll(this, state_, dialogs_, world_);
}

void frmBrowser::btnNew_Click() {
  makeTheme(this, {state_, settings_, dialogs_, world_});
}

void frmBrowser::btnEdit_Click() {
  editTheme(this, {state_, settings_, dialogs_, world_});
}

void frmBrowser::mnuEditItem_Preferences() {
  const FileAssociation association{
      [] { CreateFileAssociation(QCoreApplication::applicationFilePath()); },
      RemoveFileAssociation};
  showPreferences(this, state_, settings_, dialogs_, world_, association);
  if (isThemeOnShow()) LoadTheme();
}

void frmBrowser::mnuToolsItem_Capture() {
  state_.CapturePane = 1;
  showCaptureWizard();
}

void frmBrowser::mnuToolsItem_ImageWizard() {
  showImageWizard(this, state_, dialogs_);
}

void frmBrowser::mnuToolsItem_TarWizard() {
  showTarWizard(this, state_, dialogs_);
}

void frmBrowser::showCaptureWizard() {
  if (!captureWizard_)
    captureWizard_ = std::make_unique<frmCaptureWiz>(
        this, state_, dialogs_, [this](int pane) { return panePicture(pane); });
  captureWizard_->capture();
}

QImage frmBrowser::panePicture(int pane) {
  const auto row = static_cast<std::size_t>(pane - 1);
  const char* name = state_.ThemeGeneration == Generation::ThreeG ? paneMenus3G()[row].pane
                                                                  : paneMenus2()[row].pane;
  return findChild<PictureBox*>(QLatin1String(name))->surface().image();
}

void frmBrowser::makePaneMenus() {
  for (QMenu* menu : {mnuPopup_, mnuPopup3_})
    connect(menu->addAction(u"Vistrel &Capture..."_s), &QAction::triggered, this,
            [this] { run("mnuPopupItem_Click"_L1, [this] { showCaptureWizard(); }); });
  connect(mnuPopup_->addAction(u"E&xtract Image..."_s), &QAction::triggered, this,
          [this] { run("mnuPopupItem_Click"_L1, [this] { mnuPopupItem_Extract(); }); });
  for (const ExtractItem3G& item : extractItems3G())
    connect(mnuPopup3_->addAction(QLatin1String(item.caption)), &QAction::triggered, this,
            [this, &item] { run("mnuPopup3Item_Click"_L1, [&] { mnuPopup3Item_Extract(item); }); });
}

bool frmBrowser::isThemeOnShow() const {
  return SelectedCount == 1 && !ThemeFailed;
}

void frmBrowser::showPaneMenu2(std::size_t pane, QPoint place) {
  if (!isThemeOnShow()) return;
  const PaneMenu2& menu = paneMenus2()[pane];
  state_.CapturePane = static_cast<std::uint8_t>(pane + 1);
  QAction* extract = mnuPopup_->actions().at(1);
  extract->setVisible(menu.image && !state_.PreviewEngine2->image(*menu.image).isEmpty());
  extract->setText(QLatin1String(menu.caption));
  mnuPopup_->popup(place);
}

void frmBrowser::showPaneMenu3G(std::size_t pane, QPoint place) {
  if (!isThemeOnShow()) return;
  state_.CapturePane = static_cast<std::uint8_t>(pane + 1);
  for (std::size_t row = 0; row < extractItems3G().size(); ++row) {
    const gen3g::Image image = extractItems3G()[row].image;
    const bool isSet = !state_.PreviewEngine3G->image(image).isEmpty();
    mnuPopup3_->actions()
        .at(static_cast<qsizetype>(row) + 1)
        ->setVisible(offersImage(paneMenus3G()[pane], image, isSet));
  }
  mnuPopup3_->popup(place);
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/editorform.h"

#include "editor/imagebutton.h"
#include "forms/colorfield.h"
#include "forms/dialogs.h"
#include "forms/formicons.h"
#include "forms/keypreview.h"
#include "forms/picturebox.h"
#include "preview/previewengine.h"
#include "shell/settings.h"
#include "shell/state.h"
#include "theme/contrast.h"
#include "theme/tags.h"
#include "ui_editorform.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

constexpr int kWarningPicture = 109;
constexpr int kCoverLine = 3;

const QString kNewTheme = u"New Theme"_s;

}  // namespace

EditorForm::EditorForm(QWidget* owner, const EditorDesk& desk, const EditorKind& kind,
                       PreviewEngine& engine, const PreviewEngine& shown)
    : QDialog(owner),
      desk_(desk),
      ui_(std::make_unique<Ui::EditorForm>()),
      kind_(kind),
      engine_(engine),
      shown_(shown),
      tabs_(editorTabs(kind.generation)) {
  ui_->setupUi(this);
  buildTabs();
  buildPanes();
  buildImageSlots();
  connectSignals();
  new KeyPreview(*this, desk_.state);
  qApp->installEventFilter(this);
}

// The focus leaves an image button that is destroyed, when this form is none any more.
EditorForm::~EditorForm() {
  for (ImageButton* button : btnImage_)
    button->disconnect(this);
}

void EditorForm::Form_Load(bool openExisting) {
  for (int tab = 0; tab < tabs_.size(); ++tab)
    if (tabs_[tab].kind == TabKind::Information && desk_.state.DisableETT) btnTabs_[tab]->hide();
  btnTabs_Click(0);
  // A key that was held when the editor was asked for may be released before it listens.
  desk_.state.CtrlDown = desk_.state.ShiftDown = false;
  run(u"Form_Load"_s, [this, openExisting] {
    if (openExisting)
      loadExisting();
    else
      loadNew();
  });
  showCaption();
  clearImageInformation();
  ui_->btnImageWizard->setEnabled(desk_.state.IViewPresent);
  btnTabs_[0]->setFocus();
}

void EditorForm::loadExisting() {
  EditorThemeFile = desk_.state.ThemeFilePath;
  ui_->txtXML->setPlainText(desk_.state.ThemeXml);
  lock(*ui_->txtThemeName, true);
  lock(*ui_->txtThemeAuthor, true);
  for (QWidget* button : {ui_->btnImport, ui_->btnReset, ui_->btnPaste})
    button->setEnabled(false);
  CopyPreviewToEditor();
  ColorsToControls();
  ImagesToControls();
  DrawPreviews();
  CheckColorContrast();
  readTags();
}

void EditorForm::loadNew() {
  EditorThemeFile = kNewTheme;
  lock(*ui_->txtThemeModifiedBy, true);
  ui_->btnRevert->setEnabled(false);
  engine_.DefaultColors();
  ColorsToControls();
  DrawPreviews();
  ui_->txtXML->setPlainText(GenerateXml());
  ui_->txtThemeAuthor->setText(desk_.settings.read(setting::ETTCreator));
}

void EditorForm::readTags() {
  const PublicState& state = desk_.state;
  const auto [name, creator, modifiedBy, created] =
      readThemeTags(state.ThemeXml, parseFaults_.reporter());
  ui_->txtThemeName->setText(name);
  ui_->txtThemeAuthor->setText(creator);
  ui_->txtThemeModifiedBy->setText(
      modifiedBy.isEmpty() ? desk_.settings.read(setting::ETTModifiedBy) : modifiedBy);
  const QString stamp = tagTime(state.ThemeXmlPath);
  ui_->lblThemeCreated->setText(created.isEmpty() ? stamp : created);
  ui_->lblThemeModified->setText(created.isEmpty() ? QString() : stamp);
}

void EditorForm::showCaption() {
  setWindowTitle(titleText(u"Theme Editor [%1]"_s.arg(EditorThemeFile)));
}

void EditorForm::btnTabs_Click(int tab) {
  CurrentTab = tab;
  btnTabs_[tab]->setChecked(true);
  // The Tab key goes from the tab on show straight to what is on it.
  for (QAbstractButton* button : btnTabs_)
    button->setFocusPolicy(button == btnTabs_[tab] ? Qt::StrongFocus : Qt::ClickFocus);
  ui_->picTabs->setCurrentWidget(pages_[tab]);
  QGridLayout* layout = ui_->panes;
  for (PictureBox* pane : panes_) {
    layout->removeWidget(pane);
    pane->hide();
  }
  int place = 0;
  for (const QString& name : tabs_[tab].panes) {
    layout->addWidget(panes_[name], place / 2, place % 2, Qt::AlignTop | Qt::AlignLeft);
    panes_[name]->show();
    ++place;
  }
  for (const auto& [button, name] : switches_)
    button->setVisible(name.isEmpty() ? !tabs_[tab].panes.isEmpty()
                                      : tabs_[tab].panes.contains(name));
  placeCoverLine();
}

void EditorForm::stepTab(int by) {
  const int count = static_cast<int>(tabs_.size());
  int tab = CurrentTab;
  do
    tab = (tab + by + count) % count;
  while (btnTabs_[tab]->isHidden());
  btnTabs_Click(tab);
  btnTabs_[tab]->setFocus();
}

void EditorForm::placeCoverLine() {
  const QRect button = btnTabs_[CurrentTab]->geometry();
  const QPoint corner = ui_->tabBar->mapTo(this, button.bottomLeft());
  ui_->picCoverLine->setGeometry(corner.x(), corner.y() + 1, button.width(), kCoverLine);
}

void EditorForm::resizeEvent(QResizeEvent* event) {
  QDialog::resizeEvent(event);
  layout()->activate();
  ui_->tabButtons->activate();
  placeCoverLine();
}

void EditorForm::CopyPreviewToEditor() {
  engine_.takeTheme(shown_.values());
}

void EditorForm::ColorsToControls() {
  for (const SlotControls& controls : slots_)
    showColor(controls);
}

void EditorForm::DrawPreviews(const QStringList& only) {
  paintPanes(only, faults_.reporter());
}

void EditorForm::CheckColorContrast() {
  clearWarnings();
  const QList<int> close = closeColors(engine_.values());
  for (const int color : close) {
    const SlotControls& controls = controlsOf(color);
    controls.warning->setPixmap(formPixmap(kWarningPicture));
    controls.text->setAccessibleDescription(controls.warning->toolTip());
    btnTabs_[controls.tab]->setIcon(formIcon(kWarningPicture));
    btnTabs_[controls.tab]->setToolTip(controls.warning->toolTip());
  }
  for (const auto& [button, tip] :
       {std::pair{ui_->btnSave_0, u"Save the theme"_s},
        std::pair{ui_->btnSave_1, u"Save the theme under another name"_s}}) {
    button->setEnabled(close.isEmpty());
    button->setToolTip(close.isEmpty() ? tip
                                       : u"Colors too close to be read must be changed first"_s);
  }
}

void EditorForm::clearWarnings() {
  for (const SlotControls& controls : slots_) {
    controls.warning->setPixmap({});
    controls.text->setAccessibleDescription({});
  }
  for (QAbstractButton* button : btnTabs_) {
    button->setIcon(noIcon());
    button->setToolTip({});
  }
}

void EditorForm::btnRevert_Click() {
  CopyPreviewToEditor();
  ColorsToControls();
  ui_->txtXML->setPlainText(desk_.state.ThemeXml);
  ImagesToControls();
  DrawPreviews();
  CheckColorContrast();
}

void EditorForm::btnReset_Click() {
  engine_.DefaultColors();
  ColorsToControls();
  DrawPreviews();
  ui_->txtXML->setPlainText(GenerateXml());
  CheckColorContrast();
  for (ImageButton* button : btnImage_)
    button->setPath({});
}

void EditorForm::lock(QLineEdit& field, bool locked) {
  field.setReadOnly(locked);
  QPalette colors = field.palette();
  colors.setColor(QPalette::Base, palette().color(locked ? QPalette::Button : QPalette::Base));
  field.setPalette(colors);
}

bool EditorForm::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonRelease) {
    const auto* label = qobject_cast<QLabel*>(watched);
    auto* field =
        label && label->window() == this ? qobject_cast<QLineEdit*>(label->buddy()) : nullptr;
    if (field && desk_.state.CtrlDown) lock(*field, false);
  }
  return QDialog::eventFilter(watched, event);
}

// Escape must not throw away what was not saved.
void EditorForm::keyPressEvent(QKeyEvent* event) {
  auto* field = qobject_cast<QLineEdit*>(focusWidget());
  if (event->key() == Qt::Key_F2 && field && ui_->pageInformation->isAncestorOf(field))
    lock(*field, false);
  else if (event->key() != Qt::Key_Escape)
    QDialog::keyPressEvent(event);
}

}  // namespace quillane

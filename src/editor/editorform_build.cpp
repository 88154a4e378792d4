// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
// The controls that the tables ask for, and which event runs which procedure.
#include "editor/editorform.h"
#include "editor/imagebutton.h"
#include "forms/colorfield.h"
#include "forms/eventprocedure.h"
#include "forms/formicons.h"
#include "forms/picturebox.h"
#include "preview/previewengine.h"
#include "shell/state.h"
#include "tools/frmimagewiz.h"
#include "ui_editorform.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QShortcut>

#include <algorithm>
#include <array>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

constexpr int kPaneColumns = 2;
constexpr int kBorder = 2;

constexpr ButtonPicture kButtonPictures[] = {
    {"btnSave_0", 128},     {"btnSave_1", 119},     {"btnRevert", 138},    {"btnReset", 139},
    {"btnRefresh", 111},    {"btnCopy", 112},       {"btnPaste", 137},     {"btnExport", 121},
    {"btnImport", 136},     {"btnAutoSelect", 141}, {"btnRemoveAll", 140}, {"btnImageWizard", 214},
    {"btnDrawImages", 142}, {"btnMore", 143},       {"btnView", 103},      {"btnClose", 102},
};

/// The caption of an image slot: the word of its messages with a capital.
QString slotCaption(const ImageElement& slot) {
  const QString word = slot.word;
  return word.left(1).toUpper() + word.mid(1);
}

}  // namespace

QIcon noIcon() {
  QPixmap clear(16, 16);
  clear.fill(Qt::transparent);
  return clear;
}

void EditorForm::run(const QString& event, const std::function<void()>& procedure) {
  const QString tag = u"in Quillane.%1.%2 "_s.arg(QLatin1String(kind_.name), event);
  eventProcedure(desk_.dialogs, this, tag, procedure);
  parseFaults_.show(desk_.dialogs, this, u"in Quillane.modMain.ParseXML "_s);
  faults_.show(desk_.dialogs, this, tag);
}

void EditorForm::runCommand(const QString& event, const std::function<void()>& procedure) {
  run(event, procedure);
  desk_.state.CtrlDown = false;
}

void EditorForm::buildTabs() {
  for (int index = 0; index < tabs_.size(); ++index) {
    auto* button = new QToolButton(ui_->tabBar);
    button->setObjectName(u"btnTabs_%1"_s.arg(index));
    button->setText(tabs_[index].caption);
    button->setIcon(noIcon());
    button->setCheckable(true);
    button->setAutoExclusive(true);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setCursor(Qt::PointingHandCursor);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    ui_->tabButtons->addWidget(button);
    btnTabs_ << button;
    pages_ << buildPage(index);
    connect(button, &QToolButton::clicked, this, [this, index] { btnTabs_Click(index); });
  }
  ui_->tabButtons->addStretch();
  ui_->picCoverLine->raise();
  ui_->picCoverLine->setAutoFillBackground(true);
  ui_->picCoverLine->setBackgroundRole(QPalette::Highlight);
}

QWidget* EditorForm::buildPage(int tab) {
  switch (tabs_[tab].kind) {
    case TabKind::Images:
      return ui_->pageImages;
    case TabKind::Information:
      return ui_->pageInformation;
    case TabKind::Source:
      return ui_->pageSource;
    case TabKind::Colors:
      break;
  }
  QWidget* page = buildColorPage(tab);
  page->setObjectName(u"picTabs_%1"_s.arg(tab));
  ui_->picTabs->addWidget(page);
  return page;
}

QWidget* EditorForm::buildColorPage(int tab) {
  auto* page = new QWidget;
  auto* columns = new QHBoxLayout(page);
  std::array<QVBoxLayout*, 2> column{new QVBoxLayout, new QVBoxLayout};
  for (QVBoxLayout* layout : column)
    columns->addLayout(layout, 1);

  // A group goes where there is more room.
  std::array<int, 2> height{};
  QGridLayout* grid = nullptr;
  QString group;
  std::size_t side = 0;
  for (const ColorSlot& slot : tabs_[tab].colorSlots) {
    if (slot.group != group) {
      group = slot.group;
      side = height[1] < height[0] ? 1 : 0;
      height[side] += 2;
      auto* box = new QGroupBox(group);
      grid = new QGridLayout(box);
      column[side]->addWidget(box);
    }
    addSlot(*grid, tab, slot);
    ++height[side];
  }
  for (QVBoxLayout* layout : column)
    layout->addStretch();
  return page;
}

int EditorForm::captionWidth() const {
  int widest = 0;
  for (const EditorTab& tab : tabs_)
    for (const ColorSlot& slot : tab.colorSlots)
      widest = std::max(widest, fontMetrics().horizontalAdvance(slot.caption));
  return widest;
}

void EditorForm::addSlot(QGridLayout& grid, int tab, const ColorSlot& slot) {
  auto* caption = new QLabel(slot.caption);
  auto* swatch = new ColorField;
  swatch->setCursor(Qt::PointingHandCursor);
  swatch->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  auto* text = new QLineEdit;
  auto* warning = new QLabel;
  swatch->setObjectName(u"lbl%1Clr"_s.arg(slot.stem));
  text->setObjectName(u"txt%1Clr"_s.arg(slot.stem));
  warning->setObjectName(u"picWarning%1"_s.arg(slot.stem));
  caption->setMinimumWidth(captionWidth());
  const QString name = slot.group + u": "_s + slot.caption.chopped(1);
  swatch->setAccessibleName(name);
  swatch->setToolTip(
      slot.followers.isEmpty()
          ? u"Choose the color"_s
          : u"Choose the color; the colors that go with it follow unless Ctrl is held"_s);
  text->setAccessibleName(name);
  text->setReadOnly(true);
  text->setFocusPolicy(Qt::ClickFocus);
  text->setFixedWidth(text->fontMetrics().horizontalAdvance(u"DDDDDD"_s) + 18);
  warning->setFixedSize(16, 16);
  warning->setToolTip(u"Text and background are too close to be read"_s);
  const int row = grid.rowCount();
  grid.addWidget(caption, row, 0);
  grid.addWidget(swatch, row, 1);
  grid.addWidget(text, row, 2);
  grid.addWidget(warning, row, 3);
  grid.setColumnStretch(0, 1);
  slots_.append({slot, tab, swatch, text, warning});
  connect(swatch, &ColorField::clicked, this, [this, index = slots_.size() - 1] {
    const SlotControls& controls = slots_[index];
    run(controls.swatch->objectName() + "_Click"_L1, [&] { lblClr_Click(controls); });
  });
}

void EditorForm::buildPanes() {
  const QSize client = kind_.generation == Generation::Two ? Surface::kSize2 : Surface::kSize3G;
  for (const EditorTab& tab : tabs_)
    for (const QString& name : tab.panes) {
      if (panes_.contains(name)) continue;
      auto* pane = new PictureBox(ui_->picPreviews);
      pane->setObjectName(name);
      pane->setFixedSize(client + QSize(2 * kBorder, 2 * kBorder));
      panes_.insert(name, pane);
    }
  ui_->panes->setColumnStretch(kPaneColumns, 1);
  // The slots do not move from tab to tab.
  ui_->picPreviews->setFixedWidth(kPaneColumns * (client.width() + 2 * kBorder) + 8);
}

void EditorForm::buildImageSlots() {
  const auto images = engine_.values().schema().images;
  const int rows = (static_cast<int>(images.size()) + 1) / 2;
  for (int slot = 0; slot < static_cast<int>(images.size()); ++slot) {
    auto* button = new ImageButton;
    button->setObjectName(u"btnImage_%1"_s.arg(slot));
    const QString caption = slotCaption(images[static_cast<std::size_t>(slot)]);
    button->setAccessibleName(caption);
    button->setToolTip(u"Right-click: remove the image"_s);
    auto* label = new QLabel(caption);
    const int column = 3 * (slot / rows);
    ui_->imageGrid->addWidget(button, slot % rows, column);
    ui_->imageGrid->addWidget(label, slot % rows, column + 1);
    ui_->imageGrid->setColumnStretch(column + 1, 1);
    btnImage_ << button;
    connect(button, &ImageButton::clicked, this, [this, slot] {
      runCommand(u"btnImage_Click"_s, [this, slot] { btnImage_Click(slot); });
    });
    connect(button, &ImageButton::removed, this, [this, slot] {
      run(u"btnImage_MouseUp"_s, [this, slot] { btnImage_RightClick(slot); });
    });
    connect(button, &ImageButton::entered, this, [this, slot] { showImage(slot); });
    connect(button, &ImageButton::left, this, &EditorForm::clearImageInformation);
  }
}

void EditorForm::useSwitch(QToolButton& button, const QString& pane,
                           const std::function<void()>& procedure) {
  switches_.append({&button, pane});
  QSizePolicy policy = button.sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  button.setSizePolicy(policy);
  connect(&button, &QToolButton::clicked, this,
          [this, &button, procedure] { run(button.objectName() + "_Click"_L1, procedure); });
}

void EditorForm::connectSignals() {
  const std::pair<QAbstractButton*, std::function<void()>> rows[] = {
      {ui_->btnSave_0, [this] { btnSave_Click(0); }},
      {ui_->btnSave_1, [this] { btnSave_Click(1); }},
      {ui_->btnRevert, [this] { btnRevert_Click(); }},
      {ui_->btnReset, [this] { btnReset_Click(); }},
      {ui_->btnRefresh, [this] { btnRefresh_Click(); }},
      {ui_->btnCopy, [this] { btnCopy_Click(); }},
      {ui_->btnPaste, [this] { btnPaste_Click(); }},
      {ui_->btnExport, [this] { btnExport_Click(); }},
      {ui_->btnImport, [this] { btnImport_Click(); }},
      {ui_->btnRemoveAll, [this] { btnRemoveAll_Click(); }},
      {ui_->btnAutoSelect, [this] { btnAutoSelect_Click(); }},
      {ui_->btnImageWizard, [this] { showImageWizard(this, desk_.state, desk_.dialogs); }},
      {ui_->btnClose, [this] { close(); }},
  };
  for (const auto& [button, procedure] : rows) {
    const QString event = button->objectName().section(u'_', 0, 0) + "_Click"_L1;
    connect(button, &QAbstractButton::clicked, this,
            [this, event, procedure = procedure] { runCommand(event, procedure); });
  }
  dressButtons(*this, kButtonPictures);
  for (QToolButton* button : {ui_->btnView, ui_->btnMore, ui_->btnDrawImages})
    button->hide();
  for (const auto& [keys, by] : {std::pair{Qt::Key_PageDown, 1}, {Qt::Key_PageUp, -1}})
    connect(new QShortcut(QKeySequence(Qt::CTRL | keys), this), &QShortcut::activated, this,
            [this, by = by] { stepTab(by); });
  connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_W), this), &QShortcut::activated, this,
          &QWidget::close);
  connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_S), this), &QShortcut::activated,
          ui_->btnSave_0, &QAbstractButton::click);
}

}  // namespace quillane

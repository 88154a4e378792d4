// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/frmcapturewiz.h"

#include "forms/bevel.h"
#include "forms/chourglass.h"
#include "forms/clsopensave.h"
#include "forms/dialogs.h"
#include "forms/eventprocedure.h"
#include "forms/formicons.h"
#include "forms/picturefilters.h"
#include "shell/converter.h"
#include "shell/files.h"
#include "shell/state.h"
#include "ui_frmcapturewiz.h"

#include <QActionGroup>
#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>

#include <span>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

/// The screens to pick, in the order of `CapturePane`.
constexpr const char* kScreens2[] = {
    "Standby",      "Desktop",      "Manu Small",   "Menu Medium",  "Menu Large",
    "Input Window", "Popup Menu 1", "Popup Menu 2", "Popup Window", "Popup Input Window",
    "Notes",        "Calendar",     "WAP Browser"};
constexpr const char* kScreens3G[] = {"Standby",      "Desktop",  "Menu",
                                      "Popup Window", "Calendar", "Notes"};

std::span<const char* const> screensOf(Generation generation) {
  if (generation == Generation::ThreeG) return kScreens3G;
  return kScreens2;
}

constexpr ButtonPicture kPictures[] = {{"btnCapture", 117},
                                       {"btnClipboardCopy", 112},
                                       {"btnBorder_0", 151},
                                       {"btnBorder_1", 152},
                                       {"btnBorder_2", 153}};
constexpr int kDropDownPicture = 131;
/// How far the result stands below the middle, for the toolbar above.
constexpr int kBelowMiddle = 10;

constexpr PictureKind kKinds[] = {PictureKind::Gif, PictureKind::Jpeg, PictureKind::Png,
                                  PictureKind::Bmp};

/// The kinds that a capture can be saved as: all, or the last alone.
std::span<const PictureKind> kindsFor(bool canConvert) {
  const std::span<const PictureKind> all(kKinds);
  return canConvert ? all : all.last(1);
}

}  // namespace

frmCaptureWiz::frmCaptureWiz(QWidget* owner, PublicState& state, Dialogs& dialogs,
                             PanePicture panePicture)
    : QDialog(owner),
      ui_(std::make_unique<Ui::frmCaptureWiz>()),
      state_(state),
      dialogs_(dialogs),
      panePicture_(std::move(panePicture)),
      mnuPopup_(makeMenu(u"mnuPopup"_s, Generation::Two)),
      mnuPopup2_(makeMenu(u"mnuPopup2"_s, Generation::ThreeG)) {
  ui_->setupUi(this);
  connectSignals();
  Form_Load();
}

frmCaptureWiz::~frmCaptureWiz() = default;

void frmCaptureWiz::connectSignals() {
  connect(ui_->area, &FormArea::Paint, this, &frmCaptureWiz::Form_Paint);
  connect(ui_->btnVistrel, &QAbstractButton::clicked, this, &frmCaptureWiz::btnVistrel_Click);
  connect(ui_->btnClipboardCopy, &QAbstractButton::clicked, this,
          &frmCaptureWiz::btnClipboardCopy_Click);
  connect(ui_->btnCapture, &QAbstractButton::clicked, this, [this] {
    eventProcedure(dialogs_, this, u"in Quillane.frmCaptureWiz.btnCapture_Click "_s,
                   [this] { btnCapture_Click(); });
  });
  const std::pair<QAbstractButton*, Border> borders[] = {{ui_->btnBorder_0, Border::None},
                                                         {ui_->btnBorder_1, Border::Single},
                                                         {ui_->btnBorder_2, Border::Default}};
  for (const auto& [button, border] : borders)
    connect(button, &QAbstractButton::clicked, this,
            [this, border = border] { btnBorder_Click(border); });
}

void frmCaptureWiz::Form_Paint(Bevel& bevel) {
  DrawEtchedLine(bevel, width(), 23);
  for (const int x : {66, 132}) {
    bevel.shadow(x, 0, x, 22);
    bevel.light(x + 1, 0, x + 1, 22);
  }
  // The border of a screen has the colour of the form; without a line nobody sees where it ends.
  const QRect edge = ui_->picCapture->geometry().adjusted(-1, -1, 1, 1);
  bevel.shadow(edge.left(), edge.top(), edge.right(), edge.top());
  bevel.shadow(edge.left(), edge.top(), edge.left(), edge.bottom());
  bevel.light(edge.left(), edge.bottom(), edge.right(), edge.bottom());
  bevel.light(edge.right(), edge.top(), edge.right(), edge.bottom() + 1);
}

void frmCaptureWiz::Form_Load() {
  dressButtons(*this, kPictures);
  ui_->btnVistrel->setIcon(tightFormIcon(kDropDownPicture));
  setFixedSize(size());
}

QMenu* frmCaptureWiz::makeMenu(const QString& name, Generation generation) {
  auto* made = new QMenu(this);
  made->setObjectName(name);
  auto* group = new QActionGroup(made);
  int item = 0;
  for (const char* caption : screensOf(generation)) {
    QAction* action = made->addAction(QLatin1String(caption));
    action->setCheckable(true);
    group->addAction(action);
    connect(action, &QAction::triggered, this, [this, generation, item = ++item] {
      if (generation == state_.ThemeGeneration) mnuPopupItem_Click(item);
    });
  }
  return made;
}

QMenu& frmCaptureWiz::menu() const {
  return state_.ThemeGeneration == Generation::ThreeG ? *mnuPopup2_ : *mnuPopup_;
}

void frmCaptureWiz::capture() {
  show();
  raise();
  activateWindow();
  Form_Activate();
}

void frmCaptureWiz::changeEvent(QEvent* event) {
  if (event->type() == QEvent::ActivationChange && isActiveWindow()) Form_Activate();
  QDialog::changeEvent(event);
}

void frmCaptureWiz::Form_Activate() {
  // The generation on show may have fewer screens than the one that was captured last.
  const bool exists = state_.CapturePane >= 1 && state_.CapturePane <= menu().actions().size();
  mnuPopupItem_Click(exists ? state_.CapturePane : 1);
}

void frmCaptureWiz::mnuPopupItem_Click(int item) {
  picTempPic = panePicture_(item);
  generation_ = state_.ThemeGeneration;
  menu().actions().at(item - 1)->setChecked(true);
  state_.CapturePane = static_cast<std::uint8_t>(item);
  showResult();
}

void frmCaptureWiz::btnVistrel_Click() {
  menu().popup(ui_->area->mapToGlobal(QPoint(0, ui_->btnVistrel->height())));
}

void frmCaptureWiz::btnBorder_Click(Border border) {
  border_ = border;
  showResult();
}

void frmCaptureWiz::showResult() {
  const QImage result = framedScreen(picTempPic, generation_, border_);
  ui_->picCapture->setPicture(result);
  ui_->picCapture->setGeometry(width() / 2 - result.width() / 2,
                               height() / 2 - result.height() / 2 + kBelowMiddle, result.width(),
                               result.height());
  ui_->area->update();
}

void frmCaptureWiz::btnClipboardCopy_Click() {
  QGuiApplication::clipboard()->setImage(ui_->picCapture->picture());
}

void frmCaptureWiz::btnCapture_Click() {
  const std::span<const PictureKind> kinds = kindsFor(state_.IViewPresent);
  clsOpenSave dialog(dialogs_);
  dialog.DialogTitle = u"Save image"_s;
  dialog.InitDir = state_.CaptureFolder;
  dialog.DefaultExt = pictureEnding(kinds.front());
  dialog.Filter = pictureFilter(kinds);
  dialog.ShowSave(this);
  state_.CaptureFolder = SplitPath(dialog.FileName, PathPart::Folder);
  const cHourglass wait;
  const PictureKind offered = kinds[static_cast<std::size_t>(dialog.FilterIndex - 1)];
  savePicture(ui_->picCapture->picture(), dialog.FileName, convertedKind(offered, dialog.FileName),
              state_.QualitiesFile);
}

}  // namespace quillane

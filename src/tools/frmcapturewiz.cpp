// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/frmcapturewiz.h"

#include "forms/bevel.h"
#include "forms/chourglass.h"
#include "forms/clsopensave.h"
#include "forms/dialogs.h"
#include "forms/eventprocedure.h"
#include "forms/formicons.h"
#include "shell/converter.h"
#include "shell/files.h"
#include "shell/state.h"
#include "ui_frmcapturewiz.h"

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
constexpr int kDefaultBorder = 2;

/// What the choices of a border leave of a whole screen.
struct Cut {
  QRect two;
  QRect threeG;
};
constexpr Cut kCuts[] = {
    {{5, 5, 101, 80}, {5, 5, 128, 160}},
    {{4, 4, 103, 82}, {4, 4, 130, 162}},
    {{0, 0, 111, 91}, {0, 0, 138, 171}},
};

/// How far the result stands below the middle, for the toolbar above.
constexpr int kBelowMiddle = 10;

struct Kind {
  const char* filter;
  const char* ending;
  PictureKind kind;
};
constexpr Kind kKinds[] = {
    {"CompuServe Graphics Interchange (*.gif)|*.gif", ".gif", PictureKind::Gif},
    {"JPEG Files (*.jpg)|*.jpg", ".jpg", PictureKind::Jpeg},
    {"Portable Network Graphics (*.png)|*.png", ".png", PictureKind::Png},
    {"Windows Bitmap (*.bmp)|*.bmp", ".bmp", PictureKind::Bmp},
};

/// The kinds that a capture can be saved as: all, or the last alone.
std::span<const Kind> kindsFor(bool canConvert) {
  const std::span<const Kind> all(kKinds);
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
      mnuPopup2_(makeMenu(u"mnuPopup2"_s, Generation::ThreeG)),
      border_(kDefaultBorder) {
  ui_->setupUi(this);
  connectSignals();
  Form_Load();
}

frmCaptureWiz::~frmCaptureWiz() = default;

void frmCaptureWiz::connectSignals() {
  connect(ui_->area, &FormArea::Paint, this, [this](Bevel& bevel) {
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
  });
  connect(ui_->btnVistrel, &QAbstractButton::clicked, this, &frmCaptureWiz::btnVistrel_Click);
  connect(ui_->btnClipboardCopy, &QAbstractButton::clicked, this,
          &frmCaptureWiz::btnClipboardCopy_Click);
  connect(ui_->btnCapture, &QAbstractButton::clicked, this, [this] {
    eventProcedure(dialogs_, this, u"in Quillane.frmCaptureWiz.btnCapture_Click "_s,
                   [this] { btnCapture_Click(); });
  });
  QAbstractButton* const borders[] = {ui_->btnBorder_0, ui_->btnBorder_1, ui_->btnBorder_2};
  for (int index = 0; index < static_cast<int>(std::size(borders)); ++index)
    connect(borders[index], &QAbstractButton::clicked, this,
            [this, index] { btnBorder_Click(index); });
}

void frmCaptureWiz::Form_Load() {
  dressButtons(*this, kPictures);
  ui_->btnVistrel->setIcon(tightFormIcon(kDropDownPicture));
  setFixedSize(size());
}

QMenu* frmCaptureWiz::makeMenu(const QString& name, Generation generation) {
  auto* made = new QMenu(this);
  made->setObjectName(name);
  int item = 0;
  for (const char* caption : screensOf(generation)) {
    QAction* action = made->addAction(QLatin1String(caption));
    action->setCheckable(true);
    connect(action, &QAction::triggered, this, [this, item = ++item] { mnuPopupItem_Click(item); });
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
  for (QAction* action : menu().actions())
    action->setChecked(action == menu().actions().at(item - 1));
  state_.CapturePane = static_cast<std::uint8_t>(item);
  showResult();
}

void frmCaptureWiz::btnVistrel_Click() {
  menu().popup(ui_->area->mapToGlobal(QPoint(0, ui_->btnVistrel->height())));
}

void frmCaptureWiz::btnBorder_Click(int index) {
  border_ = index;
  showResult();
}

void frmCaptureWiz::showResult() {
  const Cut& cut = kCuts[border_];
  const QRect& kept = generation_ == Generation::ThreeG ? cut.threeG : cut.two;
  ui_->picCapture->setPicture(picTempPic.copy(kept));
  ui_->picCapture->setGeometry(width() / 2 - kept.width() / 2,
                               height() / 2 - kept.height() / 2 + kBelowMiddle, kept.width(),
                               kept.height());
  ui_->area->update();
}

void frmCaptureWiz::btnClipboardCopy_Click() {
  QGuiApplication::clipboard()->setImage(ui_->picCapture->picture());
}

void frmCaptureWiz::btnCapture_Click() {
  const std::span<const Kind> kinds = kindsFor(state_.IViewPresent);
  QStringList filters;
  for (const Kind& kind : kinds)
    filters << QLatin1String(kind.filter);
  clsOpenSave dialog(dialogs_);
  dialog.DialogTitle = u"Save image"_s;
  dialog.InitDir = state_.CaptureFolder;
  dialog.DefaultExt = QLatin1String(kinds.front().ending);
  dialog.Filter = filters.join(u'|');
  dialog.ShowSave(this);
  state_.CaptureFolder = SplitPath(dialog.FileName, PathPart::Folder);
  const cHourglass wait;
  const PictureKind offered = kinds[static_cast<std::size_t>(dialog.FilterIndex - 1)].kind;
  savePicture(ui_->picCapture->picture(), dialog.FileName, convertedKind(offered, dialog.FileName),
              state_.QualitiesFile);
}

}  // namespace quillane

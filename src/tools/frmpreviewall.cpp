// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/frmpreviewall.h"

#include "forms/chourglass.h"
#include "forms/dialogs.h"
#include "forms/formcolors.h"
#include "forms/heldfaults.h"
#include "forms/paintscreen.h"
#include "preview/modapigraphics.h"
#include "shell/dynamics.h"
#include "shell/state.h"
#include "ui_frmpreviewall.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QKeyEvent>
#include <QShowEvent>
#include <QTimer>
#include <QWindow>

#include <utility>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

/// From the left edge of one screen to that of the next.
constexpr int kStep = 152;
constexpr int kGap = 10;
/// What a painted screen adds to the progress bar; the last one fills what is left.
constexpr int kProgressStep = 36;
constexpr int kFullProgress = 500;

constexpr int kHighestDesktopIcon = 12;

const QString kDrawing = u"Drawing..."_s;

// With the keyboard's focus, a level scroll bar would go left for the right arrow key.
constexpr std::pair<Qt::Key, QAbstractSlider::SliderAction> kScrollKeys[] = {
    {Qt::Key_Left, QAbstractSlider::SliderSingleStepSub},
    {Qt::Key_Up, QAbstractSlider::SliderSingleStepSub},
    {Qt::Key_Right, QAbstractSlider::SliderSingleStepAdd},
    {Qt::Key_Down, QAbstractSlider::SliderSingleStepAdd},
    {Qt::Key_PageUp, QAbstractSlider::SliderPageStepSub},
    {Qt::Key_PageDown, QAbstractSlider::SliderPageStepAdd},
    {Qt::Key_Home, QAbstractSlider::SliderToMinimum},
    {Qt::Key_End, QAbstractSlider::SliderToMaximum},
};

QString caption(const QString& what) {
  return titleText("Theme preview - "_L1 + what);
}

}  // namespace

frmPreviewAll::frmPreviewAll(QWidget* owner, PublicState& state, Dialogs& dialogs,
                             PreviewWorld& world)
    : QDialog(owner),
      ui_(std::make_unique<Ui::frmPreviewAll>()),
      state_(state),
      dialogs_(dialogs),
      world_(world),
      engine_(*state.PreviewEngine3G) {
  ui_->setupUi(this);
  connectSignals();
  Form_Load();
}

frmPreviewAll::~frmPreviewAll() = default;

void frmPreviewAll::connectSignals() {
  connect(ui_->hsbScroll, &QScrollBar::valueChanged, this, &frmPreviewAll::hsbScroll_Change);
}

void frmPreviewAll::Form_Load() {
  loadPanes();
  const int width = static_cast<int>(picPreview_.size()) * kStep - kGap;
  ui_->picBackground->resize(width, ui_->picBackground->height());
  ui_->hsbScroll->setMaximum(width - ui_->Picture1->width());
  setWindowTitle(caption(kDrawing));
}

void frmPreviewAll::loadPanes() {
  for (const Screen<clsVistrel3G>& screen : screensOf3G()) {
    const int index = static_cast<int>(picPreview_.size());
    PictureBox* pane = index == 0 ? ui_->picPreview_0 : new PictureBox(ui_->picBackground);
    pane->setObjectName(u"picPreview_%1"_s.arg(index));
    pane->setGeometry(ui_->picPreview_0->geometry().translated(kStep * index, 0));
    pane->setToolTip(screen.caption);
    pane->setAccessibleName(screen.caption);
    picPreview_.append(pane);
  }
}

void frmPreviewAll::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  // One of the desktop's own only brings the window back, for instance from an icon.
  if (event->spontaneous()) return;
  hideStrip();
  QTimer::singleShot(0, this, &frmPreviewAll::Form_Activate);
}

void frmPreviewAll::Form_Activate() {
  HeldFaults faults;
  {
    const cHourglass wait;
    waitUntilShown();
    if (!isVisible()) return;
    paintScreens(faults.reporter());
    showStrip();
  }
  faults.show(dialogs_, this, u"in Quillane.frmPreviewAll.Form_Activate "_s);
}

// A desktop's window manager takes its time, and what is painted before that is lost.
void frmPreviewAll::waitUntilShown() {
  constexpr int kLongestWait = 1000;
  const QDeadlineTimer deadline(kLongestWait);
  do {
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  } while (isVisible() && !windowHandle()->isExposed() && !deadline.hasExpired());
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void frmPreviewAll::paintScreens(const FaultReporter& report) {
  for (int painted = 0; const Screen<clsVistrel3G>& screen : screensOf3G()) {
    stepPhone(screen.id, engine_, kHighestDesktopIcon, state_, world_);
    paintScreen(screen, engine_, *picPreview_[painted], report);
    ++painted;
    showProgress(painted == picPreview_.size() ? kFullProgress : kProgressStep * painted);
  }
}

void frmPreviewAll::showProgress(int column) {
  DrawFilledBox(ui_->picProgress->surface(), colorValueOf(palette().color(QPalette::Highlight)), 0,
                0, column, 21);
  ui_->picProgress->repaint();
}

void frmPreviewAll::hideStrip() {
  setWindowTitle(caption(kDrawing));
  ui_->picBackground->hide();
  ui_->hsbScroll->hide();
  ui_->picProgress->Cls();
}

void frmPreviewAll::showStrip() {
  ui_->picBackground->show();
  ui_->hsbScroll->show();
  setWindowTitle(caption(u'[' + state_.ThemeFilePath + u']'));
}

void frmPreviewAll::hsbScroll_Change() {
  ui_->picBackground->move(-ui_->hsbScroll->value(), 0);
}

void frmPreviewAll::keyPressEvent(QKeyEvent* event) {
  for (const auto& [key, action] : kScrollKeys)
    if (event->key() == key) ui_->hsbScroll->triggerAction(action);
  QDialog::keyPressEvent(event);
}

void frmPreviewAll::wheelEvent(QWheelEvent* event) {
  ui_->hsbScroll->event(event);
}

void showPreviewAll(QWidget* owner, PublicState& state, Dialogs& dialogs, PreviewWorld& world) {
  frmPreviewAll(owner, state, dialogs, world).exec();
}

}  // namespace quillane

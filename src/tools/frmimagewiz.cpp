// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/frmimagewiz.h"

#include "forms/bevel.h"
#include "forms/chourglass.h"
#include "forms/clsopensave.h"
#include "forms/dialogs.h"
#include "forms/eventprocedure.h"
#include "forms/formicons.h"
#include "forms/picturefilters.h"
#include "preview/picture.h"
#include "shell/files.h"
#include "shell/state.h"
#include "tools/cropcanvas.h"
#include "tools/placebox.h"
#include "ui_frmimagewiz.h"

#include <QActionGroup>
#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>
#include <QMimeData>
#include <QPainter>

#include <algorithm>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

struct CropSize {
  const char* caption;  ///< Null for a separator.
  QSize size{};
};

/// The sizes menu: first the slots of generation 2, then those of 3G.
constexpr CropSize kSizes[] = {
    {"General/Desktop Image (101x80)", {101, 80}},
    {"Title Small Image (101x20)", {101, 20}},
    {"Title Medium Image (101x27)", {101, 27}},
    {"Title Large/Asian Image (101x16)", {101, 16}},
    {nullptr},
    {"Statusbar Image (128x14)", {128, 14}},
    {"Wallpaper/Desktop Image (128x127)", {128, 127}},
    {"Menu Image (128x104)", {128, 104}},
    {"Title Image (128x23)", {128, 23}},
    {"Highlight Image (123x16)", {123, 16}},
    {"Popup Title Image (118x23)", {118, 23}},
    {"Popup Highlight Image (113x16)", {113, 16}},
    {"Softkeys Image (128x19)", {128, 19}},
};

constexpr ButtonPicture kPictures[] = {
    {"btnToolbar_0", 104}, {"btnToolbar_1", 128}, {"btnToolbar_2", 119},  {"btnToolbar_3", 139},
    {"btnToolbar_4", 112}, {"btnToolbar_5", 137}, {"btnToolbar_6", 148},  {"btnToolbar_7", 149},
    {"btnToolbar_8", 146}, {"btnToolbar_9", 150}, {"btnToolbar_10", 147},
};

constexpr PictureKind kSaved[] = {PictureKind::Gif, PictureKind::Jpeg};
constexpr PictureKind kOpened[] = {PictureKind::Gif, PictureKind::Jpeg, PictureKind::Bmp};

/// Where the result stands.
constexpr QPoint kCropPlace(420, 52);
/// What the edge of the frame around the picture takes of a scroll bar's length, and what the edge
/// and the other bar take.
constexpr int kEdges = 2;
constexpr int kEdgesAndBar = 18;
/// The frame jumps to the end of the picture when it is so near.
constexpr int kSnap = 2;

/// The picture in the clipboard; a null one when there is none. Throws `Fault` for one too large.
QImage clipboardPicture() {
  const QMimeData* clip = QGuiApplication::clipboard()->mimeData();
  if (!clip || !clip->hasImage()) return {};
  auto picture = qvariant_cast<QImage>(clip->imageData());
  if (isTooLarge(picture.size()))
    throw Fault(FaultNumber::BadPicture,
                u"The image in the Clipboard has %1 x %2 pixels, which are too many a side."_s
                    .arg(picture.width())
                    .arg(picture.height()));
  picture.setDevicePixelRatio(1);
  return picture;
}

}  // namespace

frmImageWiz::frmImageWiz(QWidget* owner, PublicState& state, Dialogs& dialogs)
    : QDialog(owner),
      ui_(std::make_unique<Ui::frmImageWiz>()),
      state_(state),
      dialogs_(dialogs),
      mnuPopup_(new QMenu(this)) {
  ui_->setupUi(this);
  connectSignals();
  Form_Load();
}

frmImageWiz::~frmImageWiz() = default;

void frmImageWiz::connectSignals() {
  using Procedure = void (frmImageWiz::*)();
  const std::pair<QAbstractButton*, Procedure> buttons[] = {
      {ui_->btnToolbar_0, &frmImageWiz::btnToolbar_Open},
      {ui_->btnToolbar_1, &frmImageWiz::btnToolbar_Save},
      {ui_->btnToolbar_2, &frmImageWiz::btnToolbar_SaveAs},
      {ui_->btnToolbar_3, &frmImageWiz::btnToolbar_Reload},
      {ui_->btnToolbar_4, &frmImageWiz::btnToolbar_Copy},
      {ui_->btnToolbar_5, &frmImageWiz::btnToolbar_Paste},
      {ui_->btnToolbar_6, &frmImageWiz::btnToolbar_Resize},
      {ui_->btnToolbar_7, &frmImageWiz::btnToolbar_Resize},
      {ui_->btnToolbar_8, &frmImageWiz::btnToolbar_Flip},
      {ui_->btnToolbar_9, &frmImageWiz::btnToolbar_Mirror},
      {ui_->btnToolbar_10, &frmImageWiz::btnToolbar_Sizes},
  };
  for (const auto& [button, procedure] : buttons)
    connect(button, &QAbstractButton::clicked, this, [this, procedure = procedure] {
      eventProcedure(dialogs_, this, u"in Quillane.frmImageWiz.btnToolbar_Click "_s,
                     [&] { (this->*procedure)(); });
    });
  connect(ui_->area, &FormArea::Paint, this,
          [this](Bevel& bevel) { DrawEtchedLine(bevel, width(), 26); });
  connect(ui_->picImage, &CropCanvas::MouseMove, this, &frmImageWiz::picImage_MouseMove);
  connect(ui_->picImage, &CropCanvas::Nudge, this, &frmImageWiz::nudgeFrame);
  connect(ui_->txtX, &QLineEdit::returnPressed, this,
          [this] { txtXY_Enter(*ui_->txtX, ImageW - ui_->picImage->frame().width()); });
  connect(ui_->txtY, &QLineEdit::returnPressed, this,
          [this] { txtXY_Enter(*ui_->txtY, ImageH - ui_->picImage->frame().height()); });
  for (QScrollBar* bar : {ui_->hsbWidth, ui_->vsbHeight})
    connect(bar, &QScrollBar::valueChanged, this, &frmImageWiz::scroll);
}

void frmImageWiz::Form_Load() {
  dressButtons(*this, kPictures);
  makeSizesMenu();
  setFixedSize(size());
}

void frmImageWiz::makeSizesMenu() {
  mnuPopup_->setObjectName(u"mnuPopup"_s);
  auto* group = new QActionGroup(mnuPopup_);
  for (int row = 0; row < static_cast<int>(std::size(kSizes)); ++row) {
    if (!kSizes[row].caption) {
      mnuPopup_->addSeparator();
      continue;
    }
    QAction* item = mnuPopup_->addAction(QLatin1String(kSizes[row].caption));
    item->setObjectName(u"mnuPopupItem_%1"_s.arg(row + 1));
    item->setCheckable(true);
    group->addAction(item);
    connect(item, &QAction::triggered, this, [this, row] { mnuPopupItem_Click(row + 1); });
  }
}

void frmImageWiz::mnuPopupItem_Click(int item) {
  const QSize size = kSizes[item - 1].size;
  scrollHome();
  ui_->picImage->setFrame(QRect(QPoint(0, 0), size));
  ui_->lblSizeHint->hide();
  ui_->lblResult->show();
  ui_->picCropPicture->setGeometry(QRect(kCropPlace, size));
  ui_->lblImgSize->move(kCropPlace.x(), kCropPlace.y() + size.height() + 10);
  ui_->lblImgSize->setText(u"%1x%2"_s.arg(size.width()).arg(size.height()));
  ui_->lblImgSize->show();
  for (QWidget* box : {ui_->txtX, ui_->txtY})
    box->setEnabled(true);
  for (QWidget* button :
       std::initializer_list<QWidget*>{ui_->btnToolbar_1, ui_->btnToolbar_2, ui_->btnToolbar_4,
                                       ui_->btnToolbar_6, ui_->btnToolbar_7})
    button->setEnabled(true);
  CropX = CropY = 0;
  moveFrame({0, 0});
}

void frmImageWiz::btnToolbar_Open() {
  clsOpenSave dialog(dialogs_);
  dialog.DialogTitle = u"Open image"_s;
  dialog.InitDir = state_.ImageWizOpenFolder;
  dialog.DefaultExt = pictureEnding(kOpened[0]);
  dialog.Filter = pictureFilter(kOpened);
  dialog.ShowOpen(this);
  state_.ImageWizOpenFolder = SplitPath(dialog.FileName, PathPart::Folder);
  const cHourglass wait;
  LoadImage(dialog.FileName);
  OpenFileName = dialog.FileName;
}

void frmImageWiz::btnToolbar_Save() {
  if (SaveFileName.isEmpty())
    saveCropAs(u"Save image"_s, u"New Image.gif"_s);
  else
    saveCrop(SaveFileName, saveKind_);
}

void frmImageWiz::btnToolbar_SaveAs() {
  saveCropAs(u"Save image as"_s, SplitPath(SaveFileName, PathPart::Name));
}

void frmImageWiz::saveCropAs(const QString& title, const QString& offered) {
  clsOpenSave dialog(dialogs_);
  dialog.DialogTitle = title;
  dialog.InitDir = state_.ImageWizSaveFolder;
  dialog.FileName = state_.ImageWizSaveFolder + offered;
  dialog.DefaultExt = pictureEnding(kSaved[0]);
  dialog.Filter = pictureFilter(kSaved);
  dialog.ShowSave(this);
  state_.ImageWizSaveFolder = SplitPath(dialog.FileName, PathPart::Folder);
  const PictureKind kind = convertedKind(kSaved[dialog.FilterIndex - 1], dialog.FileName);
  saveCrop(dialog.FileName, kind);
  SaveFileName = dialog.FileName;
  saveKind_ = kind;
}

void frmImageWiz::saveCrop(const QString& path, PictureKind kind) {
  const cHourglass wait;
  RefreshCrop();
  savePicture(ui_->picCropPicture->picture(), path, kind, state_.QualitiesFile);
}

void frmImageWiz::btnToolbar_Reload() {
  LoadImage(OpenFileName);
}

void frmImageWiz::btnToolbar_Copy() {
  RefreshCrop();
  QGuiApplication::clipboard()->setImage(ui_->picCropPicture->picture());
}

void frmImageWiz::btnToolbar_Paste() {
  const cHourglass wait;
  LoadImage({});
}

void frmImageWiz::btnToolbar_Resize() {
  const QSize size = ui_->picImage->frame().size();
  ImageW = size.width();
  ImageH = size.height();
  ui_->vsbHeight->hide();
  ui_->hsbWidth->hide();
  ui_->picCover->hide();
  scrollHome();
  showPicture(SourcePicture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
  moveFrame({0, 0});
}

void frmImageWiz::btnToolbar_Flip() {
  showPicture(SourcePicture.mirrored(false, true));
  RefreshCrop();
}

void frmImageWiz::btnToolbar_Mirror() {
  showPicture(SourcePicture.mirrored(true, false));
  RefreshCrop();
}

void frmImageWiz::btnToolbar_Sizes() {
  mnuPopup_->popup(ui_->area->mapToGlobal(QPoint(ui_->btnToolbar_10->x(), 22)));
}

void frmImageWiz::LoadImage(const QString& fileName) {
  const Picture picture = fileName.isEmpty() ? Picture(clipboardPicture()) : LoadPicture(fileName);
  if (picture.isNull()) {
    dialogs_.message(this, MessageIcon::Warning, QString(), u"No image in Clipboard."_s);
    return;
  }
  ImageW = picture.width();
  ImageH = picture.height();
  layScrollBars();
  showPicture(picture.image());
  showLoaded(fileName);
  // The frame stays where it was; what it shows of the new picture is what would be saved.
  RefreshCrop();
}

void frmImageWiz::showLoaded(const QString& fileName) {
  const QString size = u"(%1 x %2)"_s.arg(ImageW).arg(ImageH);
  setWindowTitle(titleText(fileName.isEmpty() ? u"Image Wizard - "_s + size
                                              : u"Image Wizard - [%1] - %2"_s.arg(fileName, size)));
  ui_->btnToolbar_3->setEnabled(!fileName.isEmpty());
  for (QWidget* button : {ui_->btnToolbar_8, ui_->btnToolbar_9, ui_->btnToolbar_10})
    button->setEnabled(true);
  ui_->lblXY->show();
  ui_->lblHint->hide();
  ui_->lblSizeHint->setVisible(!ui_->picImage->hasFrame());
}

void frmImageWiz::showPicture(const QImage& picture) {
  SourcePicture = picture;
  ui_->picImage->setPicture(picture, {ImageW, ImageH});
  ui_->picImage->show();
}

void frmImageWiz::layScrollBars() {
  const QSize frame = ui_->picFrame->size();
  const bool wide = ImageW > frame.width();
  const bool tall = ImageH > frame.height();
  scrollHome();
  // Bars of a larger picture before stay as they are.
  if (!wide && !tall) return;
  const bool both = wide && tall;
  const int taken = both ? kEdgesAndBar : kEdges;
  const int hidden = both ? kEdgesAndBar : 0;
  ui_->hsbWidth->setVisible(wide);
  ui_->vsbHeight->setVisible(tall);
  ui_->picCover->setVisible(both);
  ui_->hsbWidth->resize(frame.width() - taken, ui_->hsbWidth->height());
  ui_->vsbHeight->resize(ui_->vsbHeight->width(), frame.height() - taken);
  ui_->hsbWidth->setMaximum(qMax(0, ImageW - frame.width() + hidden));
  ui_->vsbHeight->setMaximum(qMax(0, ImageH - frame.height() + hidden));
}

void frmImageWiz::scrollHome() {
  ui_->hsbWidth->setValue(0);
  ui_->vsbHeight->setValue(0);
}

void frmImageWiz::RefreshCrop() {
  if (!ui_->picImage->hasFrame()) return;
  QImage crop(ui_->picImage->frame().size(), QImage::Format_ARGB32);
  crop.fill(Qt::transparent);
  QPainter(&crop).drawImage(-ui_->txtX->place(), -ui_->txtY->place(), SourcePicture);
  ui_->picCropPicture->setPicture(crop);
}

void frmImageWiz::picImage_MouseMove(bool held, QPoint pixel) {
  CropX = pixel.x();
  CropY = pixel.y();
  ui_->lblXY->setText(u"X: %1, Y: %2"_s.arg(CropX).arg(CropY));
  if (!held || !ui_->picImage->hasFrame()) return;
  const QSize frame = ui_->picImage->frame().size();
  CropX = qMax(0, CropX);
  CropY = qMax(0, CropY);
  if (frame.width() + CropX + kSnap > ImageW) CropX = ImageW - frame.width();
  if (frame.height() + CropY + kSnap > ImageH) CropY = ImageH - frame.height();
  moveFrame({CropX, CropY});
}

void frmImageWiz::moveFrame(QPoint place) {
  ui_->picImage->setFrame(QRect(place, ui_->picImage->frame().size()));
  ui_->txtX->setPlace(place.x());
  ui_->txtY->setPlace(place.y());
  RefreshCrop();
}

void frmImageWiz::nudgeFrame(QPoint pixels) {
  const QRect frame = ui_->picImage->frame();
  if (frame.isNull()) return;
  const QPoint room(qMax(0, ImageW - frame.width()), qMax(0, ImageH - frame.height()));
  const QPoint place = frame.topLeft() + pixels;
  moveFrame({std::clamp(place.x(), 0, room.x()), std::clamp(place.y(), 0, room.y())});
}

void frmImageWiz::txtXY_Enter(PlaceBox& box, int room) {
  if (room < box.place()) box.setPlace(room);
  moveFrame({ui_->txtX->place(), ui_->txtY->place()});
}

void frmImageWiz::scroll() {
  ui_->picImage->move(-ui_->hsbWidth->value(), -ui_->vsbHeight->value());
}

void showImageWizard(QWidget* owner, PublicState& state, Dialogs& dialogs) {
  frmImageWiz(owner, state, dialogs).exec();
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
// Image slots.
#include "editor/editorform.h"
#include "editor/imagebutton.h"
#include "forms/clsopensave.h"
#include "forms/dialogs.h"
#include "forms/picturefilters.h"
#include "preview/picture.h"
#include "preview/previewengine.h"
#include "shell/files.h"
#include "shell/imagerules.h"
#include "shell/listing.h"
#include "shell/state.h"
#include "ui_editorform.h"

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

constexpr PictureKind kKinds[] = {PictureKind::Gif, PictureKind::Jpeg};
constexpr int kGifFilterIndex = 1;
constexpr int kJpegFilterIndex = 2;

}  // namespace

const ImageElement& EditorForm::slotElement(int slot) const {
  return engine_.values().schema().images[static_cast<std::size_t>(slot)];
}

const QString& EditorForm::slotPath(int slot) const {
  return btnImage_[slot]->path();
}

void EditorForm::setSlotPath(int slot, const QString& path) {
  engine_.setImage(slot, path);
  btnImage_[slot]->setPath(path);
}

void EditorForm::ImagesToControls() {
  for (int slot = 0; slot < slotCount(); ++slot) {
    const auto state = static_cast<std::size_t>(slotElement(slot).state);
    const bool found = desk_.state.ImageState.at(state) == SlotState::Found;
    btnImage_[slot]->setPath(found ? engine_.image(slot) : QString());
  }
}

clsOpenSave EditorForm::imageDialog(const ImageElement& element) const {
  clsOpenSave dialog(desk_.dialogs);
  dialog.DialogTitle = imageDialogTitle(element);
  dialog.InitDir = desk_.state.ImageFolder;
  dialog.FileName = u"*.gif"_s;
  dialog.Filter =
      pictureFilter(std::span(kKinds).first(engine_.values().schema().takesJpeg ? 2 : 1));
  return dialog;
}

bool EditorForm::askForImage(clsOpenSave& dialog, const ImageElement& element) {
  dialog.ShowOpen(this);
  desk_.state.ImageFolder = SplitPath(dialog.FileName, PathPart::Folder);
  measure(dialog.FileName, dialog.FilterIndex);
  if (takesSize(element, measured())) return true;
  desk_.dialogs.message(this, MessageIcon::Warning, kImageDimensionsTitle,
                        imageDimensionsText(element, dialog.FileName, measured()));
  return false;
}

void EditorForm::btnImage_Click(int slot) {
  const ImageElement& element = slotElement(slot);
  clsOpenSave dialog = imageDialog(element);
  if (!slotPath(slot).isEmpty()) {
    dialog.InitDir = SplitPath(slotPath(slot), PathPart::Folder);
    dialog.FileName = SplitPath(slotPath(slot), PathPart::Name);
    if (dialog.FileName.endsWith(".jpg"_L1, Qt::CaseInsensitive))
      dialog.FilterIndex = kJpegFilterIndex;
  }
  if (!askForImage(dialog, element)) return;
  fillSlot(slot, dialog.FileName, false);
  showImage(slot);
  DrawPreviews();
}

// A file that is no GIF leaves the size of the one before.
void EditorForm::measure(const QString& path, int filterIndex) {
  QSize size = measured();
  if (filterIndex == kJpegFilterIndex)
    size = LoadPicture(path).image().size();
  else
    size = IsGifFile(path).value_or(size);
  desk_.state.ImageSizeW = size.width();
  desk_.state.ImageSizeH = size.height();
}

QSize EditorForm::measured() const {
  return {desk_.state.ImageSizeW, desk_.state.ImageSizeH};
}

void EditorForm::fillSlot(int slot, const QString& path, bool autoSelected) {
  setSlotPath(slot, path);
  imageFilled(slot, autoSelected);
}

void EditorForm::imageFilled(int, bool) {}

void EditorForm::btnImage_RightClick(int slot) {
  setSlotPath(slot, {});
  showImage(slot);
  DrawPreviews();
}

void EditorForm::btnRemoveAll_Click() {
  for (int slot = 0; slot < slotCount(); ++slot)
    setSlotPath(slot, {});
  DrawPreviews();
}

void EditorForm::showImage(int slot) {
  clearImageInformation();
  const QSize size = slotElement(slot).size;
  ui_->lblReqDim->setText(u"%1x%2 pixels"_s.arg(size.width()).arg(size.height()));
  const QString& path = slotPath(slot);
  if (path.isEmpty()) return;
  const QString name = SplitPath(path, PathPart::Name);
  ui_->lblFileName->setText(u"File name: "_s + name);
  ui_->lblFileName->setToolTip(tipText(name));
  ui_->lblFileSize->setText(u"File size: "_s + FormatFileSize(path));
  skipOnFault([&] { ui_->imgPreview->setPixmap(QPixmap::fromImage(LoadPicture(path).image())); });
}

void EditorForm::clearImageInformation() {
  ui_->lblReqDim->clear();
  ui_->lblFileName->setText(u"File name: "_s);
  ui_->lblFileSize->setText(u"File size: "_s);
  ui_->imgPreview->clear();
}

void EditorForm::btnAutoSelect_Click() {
  const ImageElement& element = slotElement(kind_.autoSlot);
  clsOpenSave dialog = imageDialog(element);
  if (askForImage(dialog, element)) {
    fillSlot(kind_.autoSlot, dialog.FileName, true);
    matchImages(dialog.FileName, kind_.autoSlot);
  }
  DrawPreviews();
}

void EditorForm::matchImages(const QString& chosen, int firstSlot) {
  const QString folder = desk_.state.ImageFolder;
  const QStringList files = listFiles(folder, u".gif"_s).mid(0, slotCount());
  for (const QString& file : files) {
    if (folder + file == chosen) continue;
    measure(folder + file, kGifFilterIndex);
    for (int slot = 0; slot < slotCount(); ++slot)
      // Each file fills the first slot of exactly its size.
      if (slot != firstSlot && slotElement(slot).size == measured()) {
        fillSlot(slot, folder + file, true);
        break;
      }
  }
}

}  // namespace quillane

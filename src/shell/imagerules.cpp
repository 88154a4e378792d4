// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/imagerules.h"

#include "preview/picture.h"
#include "shell/files.h"
#include "theme/fault.h"
#include "theme/files.h"

#include <QFile>
#include <QFileInfo>

namespace quillane {

using namespace Qt::StringLiterals;

QString pixelsText(QSize size) {
  return u"%1x%2"_s.arg(size.width()).arg(size.height());
}

std::optional<QSize> IsGifFile(const QString& path) {
  QFile file(path);
  if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) return std::nullopt;
  return gifScreen(file.read(10));
}

QSize themePictureSize(const ThemeSchema& schema, const QString& path) {
  const QByteArray bytes = readFile(path);
  if (!takesForm(schema, pictureForm(bytes)))
    throw Fault(FaultNumber::BadPicture, wrongFormText(schema, path));
  // A GIF without a screen shows its frame, however large that is.
  const QSize screen = gifScreen(bytes).value_or(QSize());
  return screen.isEmpty() ? LoadPicture(path).image().size() : screen;
}

bool takesForm(const ThemeSchema& schema, PictureForm form) {
  return form == PictureForm::Gif || (form == PictureForm::Jpeg && schema.takesJpeg);
}

QString wrongFormText(const ThemeSchema& schema, const QString& file) {
  const QString kinds = schema.takesJpeg ? u"neither a GIF nor a JPEG file"_s : u"no GIF file"_s;
  return u"\"%1\" is %2."_s.arg(file, kinds);
}

bool takesSize(const ImageElement& slot, QSize size) {
  return slot.rule == SizeRule::Exact
             ? size == slot.size
             : size.width() <= slot.size.width() && size.height() <= slot.size.height();
}

QString imageDialogTitle(const ImageElement& slot) {
  return u"Select %1 image"_s.arg(slot.word);
}

QString imageDimensionsText(const ImageElement& slot, const QString& path, QSize size) {
  return u"The dimensions for %1 image must be %2 pixels.\r\n\r\n"
         "Selected image: \"%3\"\r\n"
         "Dimensions: %4 pixels"_s.arg(slot.word, pixelsText(slot.size),
                                       SplitPath(path, PathPart::Name), pixelsText(size));
}

}  // namespace quillane

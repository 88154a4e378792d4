// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/targets.h"
#include "preview/picture.h"
#include "shell/converter.h"
#include "shell/imagerules.h"
#include "shell/picturefacts.h"
#include "theme/fault.h"

#include <algorithm>
#include <optional>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

/// What a step that reads a picture gives, or nothing for one that cannot be shown.
template <typename Step>
auto orNothing(Step&& step) -> std::optional<decltype(step())> {
  try {
    return step();
  } catch (const Fault& fault) {
    expect(fault.number() == FaultNumber::BadPicture, "a fault of a picture's own");
    return std::nullopt;
  }
}

void expectMasked(const Picture& picture) {
  const QImage& image = picture.image();
  expect(!image.isNull() && !isTooLarge(image.size()), "sides of 1 to 4096 pixels");
  expect(image.format() == QImage::Format_ARGB32, "32 bits a pixel");
  for (int y = 0; y < image.height(); ++y) {
    const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
    expect(std::all_of(line, line + image.width(),
                       [](QRgb pixel) { return qAlpha(pixel) == 0 || qAlpha(pixel) == 255; }),
           "a pixel is there or not");
  }
}

bool areSame(QRgb left, QRgb right) {
  return left == right || (qAlpha(left) == 0 && qAlpha(right) == 0);
}

bool areSame(const QImage& left, const QImage& right) {
  if (left.size() != right.size()) return false;
  for (int y = 0; y < left.height(); ++y)
    for (int x = 0; x < left.width(); ++x)
      if (!areSame(left.pixel(x, y), right.pixel(x, y))) return false;
  return true;
}

/// A GIF keeps every pixel of a picture that cannot have more colours than it has.
void expectSavable(const QImage& image, const QString& path) {
  constexpr int kSide = 16;
  const QImage corner = image.copy(0, 0, qMin(image.width(), kSide), qMin(image.height(), kSide));
  savePicture(corner, path, PictureKind::Gif, {});
  expect(areSame(LoadPicture(path).image(), corner), "a picture saved as GIF is read as it was");
}

}  // namespace

void pictureTarget(QByteArrayView bytes) {
  static const Scratch scratch;
  const QString path = scratch.write(u"picture"_s, bytes);
  const std::optional<Picture> picture = orNothing([&] { return LoadPicture(path); });
  if (picture) {
    expectMasked(*picture);
    expectSavable(picture->image(), scratch.path(u"saved"_s));
  }

  const PictureFacts facts = pictureFacts(bytes.toByteArray());
  if (facts.form == PictureForm::Jpeg && facts.isBaseline && !facts.isDamaged)
    expect(picture && picture->image().size() == facts.size,
           "a JPEG that is not damaged can be shown, as large as it is told to be");

  const std::optional<QSize> screen = IsGifFile(path);
  for (const Generation generation : {Generation::Two, Generation::ThreeG}) {
    const std::optional<QSize> size =
        orNothing([&] { return themePictureSize(schemaOf(generation), path); });
    if (screen && !screen->isEmpty()) expect(size == screen, "a GIF is as large as its screen");
    if (picture && size)
      expect(picture->image().size() == *size, "a picture is as large as it is measured");
  }
}

}  // namespace quillane

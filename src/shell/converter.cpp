// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/converter.h"

#include "shell/gifwriter.h"
#include "shell/ini.h"
#include "shell/quantize.h"
#include "theme/fault.h"
#include "theme/files.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageWriter>
#include <QPainter>

#include <algorithm>
#include <functional>
#include <utility>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

constexpr std::pair<QLatin1String, PictureKind> kEndings[] = {
    {"gif"_L1, PictureKind::Gif}, {"jpg"_L1, PictureKind::Jpeg}, {"jpeg"_L1, PictureKind::Jpeg},
    {"png"_L1, PictureKind::Png}, {"bmp"_L1, PictureKind::Bmp},
};

/// A number of the INI file between two bounds; what is no number or lies outside gives the
/// standard.
int qualityOf(const QString& section, const QString& key, int standard, int least, int most,
              const QString& file) {
  bool isNumber = false;
  const int value = ReadIni(section, key, QString::number(standard), file).toInt(&isNumber);
  return isNumber && value >= least && value <= most ? value : standard;
}

QImage onWhite(const QImage& picture) {
  QImage opaque(picture.size(), QImage::Format_RGB32);
  opaque.fill(Qt::white);
  QPainter(&opaque).drawImage(opaque.rect(), picture);
  return opaque;
}

using Settle = std::function<void(QImageWriter& writer)>;

QByteArray written(const QImage& picture, const QByteArray& format, const Settle& settle) {
  QBuffer bytes;
  bytes.open(QIODevice::WriteOnly);
  QImageWriter writer(&bytes, format);
  settle(writer);
  if (!writer.write(picture))
    throw Fault(FaultNumber::BadPicture, u"The picture could not be written as %1: %2."_s.arg(
                                             QString::fromLatin1(format), writer.errorString()));
  return bytes.data();
}

/// The quality of which the toolkit makes a compression level: 0 to 9 over the qualities 100 to 9.
int pngQuality(int level) {
  return 100 - (level * 91 + 8) / 9;
}

QByteArray bytesOf(const QImage& picture, PictureKind kind, const QString& qualities) {
  switch (kind) {
    case PictureKind::Jpeg:
      return written(onWhite(picture), "jpeg", [&](QImageWriter& writer) {
        writer.setQuality(qualityOf(u"JPEG"_s, u"Save Quality"_s, 90, 1, 100, qualities));
      });
    case PictureKind::Png:
      return written(picture, "png", [&](QImageWriter& writer) {
        writer.setQuality(
            pngQuality(qualityOf(u"PNG"_s, u"CompressionLevel"_s, 6, 0, 9, qualities)));
      });
    case PictureKind::Bmp:
      return written(onWhite(picture), "bmp", [](QImageWriter&) {});
    case PictureKind::Gif:
      break;
  }
  return gifOf(reduceTo256(picture));
}

}  // namespace

bool canConvert() {
  const QList<QByteArray> formats = QImageWriter::supportedImageFormats();
  return formats.contains("jpeg") && formats.contains("png");
}

PictureKind convertedKind(PictureKind offered, const QString& path) {
  if (offered == PictureKind::Gif || offered == PictureKind::Bmp) return offered;
  const QString ending = QFileInfo(path).suffix().toLower();
  const auto* known = std::find_if(std::begin(kEndings), std::end(kEndings),
                                   [&](const auto& row) { return ending == row.first; });
  return known == std::end(kEndings) ? offered : known->second;
}

void savePicture(const QImage& picture, const QString& path, PictureKind kind,
                 const QString& qualities) {
  saveFile(path, bytesOf(picture, kind, qualities));
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview/picture.h"

#include "theme/fault.h"
#include "theme/files.h"

#include <QBuffer>
#include <QCache>
#include <QHash>
#include <QImageReader>
#include <QScopeGuard>

#include <utility>

// Outside the namespace, as the resources of a static library ask for.
static void loadIconResources() {
  Q_INIT_RESOURCE(icons);
}

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

constexpr int kLongestSide = 4096;
constexpr qsizetype kRememberedBytes = 8'388'608;
constexpr int kAllocationLimit = 64;  // MB: a picture of the longest sides at 32 bits.

/// Pixels as the placement rules see them: HIMETRIC at 96 dots per inch, rounded half up, divided
/// by 26.455 and cut.
int placementSize(int pixels) {
  const int himetric = (pixels * 635 + 12) / 24;
  return himetric * 1000 / 26455;
}

/// Name of the decoder for the file's first bytes; empty for a kind that is not read.
QByteArray formatOf(const QByteArray& start) {
  if (start.startsWith("GIF8")) return "gif";
  if (start.startsWith("\xFF\xD8\xFF")) return "jpeg";
  if (start.startsWith("BM")) return "bmp";
  if (start.startsWith(QByteArray::fromRawData("\0\0\1\0", 4))) return "ico";
  return {};
}

/// The little-endian number of `width` bytes at a place; 0 beyond the end.
qint64 numberAt(const QByteArray& bytes, qint64 at, int width) {
  qint64 number = 0;
  if (at < 0 || at + width > bytes.size()) return 0;
  for (int i = width - 1; i >= 0; --i)
    number = number * 256 + static_cast<uchar>(bytes[at + i]);
  return number;
}

/// Bytes of a bitmap's row.
qint64 rowBytes(int width, int bits) {
  return (width * qint64{bits} + 31) / 32 * 4;
}

/// Clears what the AND mask of an icon file's first image hides where the decoder passes the mask
/// over: at 24 bits. The mask stands behind the colours, its rows from the bottom up.
QImage withIconMask(const QImage& decoded, const QByteArray& bytes) {
  constexpr int kHeaderBytes = 40;
  constexpr int kBits = 24;
  const qint64 header = numberAt(bytes, 18, 4);  // The offset in the first directory entry.
  if (numberAt(bytes, header, 4) != kHeaderBytes || numberAt(bytes, header + 14, 2) != kBits)
    return decoded;

  QImage image = decoded.convertToFormat(QImage::Format_ARGB32);
  qint64 row = header + kHeaderBytes + image.height() * rowBytes(image.width(), kBits);
  for (int y = image.height() - 1; y >= 0; --y, row += rowBytes(image.width(), 1))
    for (int x = 0; x < image.width(); ++x)
      if ((numberAt(bytes, row + x / 8, 1) >> (7 - x % 8) & 1) != 0) image.setPixel(x, y, 0);
  return image;
}

/// A picture of nothing for a decoder to fill. The one of bitmaps leaves the pixels that its data
/// do not reach as they were, which in a picture of its own is what the memory held before.
QImage cleared(const QImageReader& reader) {
  const QSize size = reader.size();
  QImage image(qAbs(size.width()), qAbs(size.height()), reader.imageFormat());
  image.fill(0);
  return image;
}

/// Decodes the bytes of a picture file; a null image when they are none.
QImage decode(QByteArray bytes) {
  const QByteArray format = formatOf(bytes);
  if (format.isEmpty() || bytes.size() < 10) return {};
  if (format == "gif" && isTooLarge(gifScreen(bytes).value_or(QSize()))) return {};

  const int formerLimit = QImageReader::allocationLimit();
  QImageReader::setAllocationLimit(kAllocationLimit);
  const auto restore = qScopeGuard([=] { QImageReader::setAllocationLimit(formerLimit); });

  QBuffer buffer(&bytes);
  QImageReader reader(&buffer, format);
  reader.setAutoDetectImageFormat(false);
  if (isTooLarge(reader.size())) return {};
  QImage image = cleared(reader);
  if (!reader.read(&image) || isTooLarge(image.size())) return {};
  return format == "ico" ? withIconMask(image, bytes) : image;
}

/// Decodes, or remembers having decoded the same bytes: the screens of a theme share their
/// pictures, and decoding costs many times what reading the file does.
Picture decodeOnce(const QByteArray& bytes) {
  thread_local QCache<QByteArray, Picture> decoded(kRememberedBytes);
  if (const Picture* known = decoded.object(bytes)) return *known;

  Picture picture(decode(bytes));
  const qsizetype cost = bytes.size() + picture.image().sizeInBytes();
  decoded.insert(bytes, new Picture(picture), cost);
  return picture;
}

}  // namespace

std::optional<QSize> gifScreen(const QByteArray& start) {
  constexpr qsizetype kHeader = 10;
  const bool isGif = start.startsWith("GIF87a") || start.startsWith("GIF89a");
  if (!isGif || start.size() < kHeader) return std::nullopt;
  return QSize(static_cast<int>(numberAt(start, 6, 2)), static_cast<int>(numberAt(start, 8, 2)));
}

bool isTooLarge(QSize size) {
  return qAbs(size.width()) > kLongestSide || qAbs(size.height()) > kLongestSide;
}

Picture::Picture(QImage image) : image_(std::move(image).convertToFormat(QImage::Format_ARGB32)) {
  image_.setDevicePixelRatio(1);
  for (int y = 0; y < image_.height(); ++y) {
    auto* line = reinterpret_cast<QRgb*>(image_.scanLine(y));
    for (int x = 0; x < image_.width(); ++x)
      line[x] = (line[x] & 0x00FFFFFFU) | (qAlpha(line[x]) < 128 ? 0U : 0xFF000000U);
  }
}

int Picture::width() const {
  return placementSize(image_.width());
}

int Picture::height() const {
  return placementSize(image_.height());
}

Picture LoadPicture(const QString& path) {
  Picture picture = decodeOnce(readFile(path));
  if (picture.isNull())
    throw Fault(FaultNumber::BadPicture,
                u"\"%1\" is no GIF, JPEG, BMP or icon file that can be shown, or has more than %2 "
                "pixels a side."_s.arg(path)
                    .arg(kLongestSide));
  return picture;
}

Picture LoadResourcePicture(int id) {
  // Decoded once for each thread: a screen asks for up to eight of them at every paint.
  thread_local QHash<int, Picture> decoded;
  if (const auto known = decoded.constFind(id); known != decoded.cend()) return *known;

  loadIconResources();
  QImage image(u":/CUSTOM/%1.png"_s.arg(id), "png");
  if (image.isNull())
    throw Fault(FaultNumber::ResourceNotFound, u"The numbered icon %1 does not exist."_s.arg(id));
  return *decoded.insert(id, Picture(std::move(image)));
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview/picture.h"

#include "theme/fault.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QImageReader>
#include <QScopeGuard>

#include <utility>

// Outside the namespace, as the resources of a static library ask for.
static void loadIconResources() {
  Q_INIT_RESOURCE(icons);
}

namespace quillane {
namespace {

constexpr int kLongestSide = 4096;
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

bool isTooLarge(QSize size) {
  return qAbs(size.width()) > kLongestSide || qAbs(size.height()) > kLongestSide;
}

/// The logical screen in a GIF's header. The decoder tells the first frame's size instead.
QSize gifScreen(const QByteArray& start) {
  const auto word = [&](qsizetype at) {
    return static_cast<uchar>(start[at]) + 256 * static_cast<uchar>(start[at + 1]);
  };
  return {word(6), word(8)};
}

[[noreturn]] void throwUnreadable(const QString& path) {
  throw Fault(FaultNumber::BadPicture, QStringLiteral("Invalid picture: ") + path);
}

QImage decode(QFile& file, const QByteArray& format) {
  const int formerLimit = QImageReader::allocationLimit();
  QImageReader::setAllocationLimit(kAllocationLimit);
  const auto restore = qScopeGuard([=] { QImageReader::setAllocationLimit(formerLimit); });

  QImageReader reader(&file, format);
  reader.setAutoDetectImageFormat(false);
  if (isTooLarge(reader.size())) return {};
  return reader.read();
}

}  // namespace

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
  if (!QFileInfo(path).isFile())
    throw Fault(FaultNumber::FileNotFound, QStringLiteral("File not found: ") + path);
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly))
    throw Fault(FaultNumber::NoPermission, QStringLiteral("Cannot read: ") + path);

  const QByteArray start = file.peek(10);
  const QByteArray format = formatOf(start);
  if (format.isEmpty() || start.size() < 10) throwUnreadable(path);
  if (format == "gif" && isTooLarge(gifScreen(start))) throwUnreadable(path);

  QImage image = decode(file, format);
  if (image.isNull() || isTooLarge(image.size())) throwUnreadable(path);
  return Picture(std::move(image));
}

Picture LoadResourcePicture(int id) {
  // Decoded once for each thread: a screen asks for up to eight of them at every paint.
  thread_local QHash<int, Picture> decoded;
  if (const auto known = decoded.constFind(id); known != decoded.cend()) return *known;

  loadIconResources();
  QImage image(QStringLiteral(":/CUSTOM/%1.png").arg(id), "png");
  if (image.isNull())
    throw Fault(FaultNumber::ResourceNotFound,
                QStringLiteral("Resource with identifier '%1' not found").arg(id));
  return *decoded.insert(id, Picture(std::move(image)));
}

}  // namespace quillane

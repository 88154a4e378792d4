// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/gifwriter.h"

#include "theme/fault.h"

#include <algorithm>
#include <array>
#include <gif_lib.h>
#include <memory>
#include <utility>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

int append(GifFileType* gif, const GifByteType* bytes, int size) {
  static_cast<QByteArray*>(gif->UserData)->append(reinterpret_cast<const char*>(bytes), size);
  return size;
}

/// A GIF that is being written into `bytes`.
class Writer {
 public:
  explicit Writer(QByteArray& bytes) : gif_(EGifOpen(&bytes, append, nullptr)) {
    demand(gif_ != nullptr);
  }
  ~Writer() {
    if (gif_) EGifCloseFile(gif_, nullptr);
  }
  Q_DISABLE_COPY(Writer)

  void begin(QSize size, const QList<QRgb>& colors) {
    const auto transparent =
        std::find_if(colors.begin(), colors.end(), [](QRgb color) { return qAlpha(color) == 0; });
    const bool isMasked = transparent != colors.end();
    EGifSetGifVersion(gif_, isMasked);
    const int bits = GifBitSize(static_cast<int>(colors.size()));
    const std::unique_ptr<ColorMapObject, decltype(&GifFreeMapObject)> map(
        GifMakeMapObject(1 << bits, nullptr), &GifFreeMapObject);
    demand(map != nullptr);
    std::transform(colors.begin(), colors.end(), map->Colors, [](QRgb color) {
      return GifColorType{static_cast<GifByteType>(qRed(color)),
                          static_cast<GifByteType>(qGreen(color)),
                          static_cast<GifByteType>(qBlue(color))};
    });
    demand(EGifPutScreenDesc(gif_, size.width(), size.height(), bits, 0, map.get()) == GIF_OK);
    if (isMasked) markTransparent(static_cast<int>(transparent - colors.begin()));
    demand(EGifPutImageDesc(gif_, 0, 0, size.width(), size.height(), false, nullptr) == GIF_OK);
  }

  void line(const uchar* pixels, int width) {
    // The library masks the bits of the line in its place.
    QList<GifPixelType> line(pixels, pixels + width);
    demand(EGifPutLine(gif_, line.data(), width) == GIF_OK);
  }

  void end() { demand(EGifCloseFile(std::exchange(gif_, nullptr), nullptr) == GIF_OK); }

 private:
  static void demand(bool done) {
    if (!done)
      throw Fault(FaultNumber::BadPicture, u"The picture could not be written as a GIF."_s);
  }

  void markTransparent(int index) {
    const GraphicsControlBlock block{DISPOSAL_UNSPECIFIED, false, 0, index};
    std::array<GifByteType, 4> bytes{};
    EGifGCBToExtension(&block, bytes.data());
    demand(EGifPutExtension(gif_, GRAPHICS_EXT_FUNC_CODE, static_cast<int>(bytes.size()),
                            bytes.data()) == GIF_OK);
  }

  GifFileType* gif_;
};

}  // namespace

QByteArray gifOf(const QImage& indexed) {
  QByteArray bytes;
  Writer gif(bytes);
  gif.begin(indexed.size(), indexed.colorTable());
  for (int y = 0; y < indexed.height(); ++y)
    gif.line(indexed.constScanLine(y), indexed.width());
  gif.end();
  return bytes;
}

QString gifLibraryVersion() {
  return u"%1.%2.%3"_s.arg(GIFLIB_MAJOR).arg(GIFLIB_MINOR).arg(GIFLIB_RELEASE);
}

}  // namespace quillane

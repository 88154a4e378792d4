// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/picturefacts.h"

#include "preview/picture.h"
#include "shell/jpegreader.h"

#include <QtEndian>

#include <algorithm>
#include <cstring>
#include <gif_lib.h>
#include <memory>
#include <vector>

namespace quillane {

namespace {

struct GifRelease {
  void operator()(GifFileType* gif) const { DGifCloseFile(gif, nullptr); }
};

/// Walks the records of a GIF as far as they tell something: up to its second frame or its end.
class GifWalk {
 public:
  GifWalk(const QByteArray& bytes, PictureFacts& facts)
      : rest_(bytes), facts_(facts), gif_(DGifOpen(this, &GifWalk::read, nullptr)) {}
  Q_DISABLE_COPY(GifWalk)

  void run() {
    while (gif_ && walkRecord()) {
    }
    facts_.isDamaged = !isComplete_;
  }

 private:
  static int read(GifFileType* gif, GifByteType* bytes, int count) {
    auto& rest = static_cast<GifWalk*>(gif->UserData)->rest_;
    const auto taken = std::min<qsizetype>(count, rest.size());
    std::memcpy(bytes, rest.data(), static_cast<std::size_t>(taken));
    rest = rest.sliced(taken);
    return static_cast<int>(taken);
  }

  /// False at the end, and where the rest cannot be read or does not matter.
  bool walkRecord() {
    GifRecordType type = UNDEFINED_RECORD_TYPE;
    if (DGifGetRecordType(gif_.get(), &type) != GIF_OK) return false;
    switch (type) {
      case EXTENSION_RECORD_TYPE:
        return skipExtension();
      case IMAGE_DESC_RECORD_TYPE:
        return walkFrame();
      case TERMINATE_RECORD_TYPE:
        isComplete_ = hasFrame_;
        return false;
      default:
        return false;
    }
  }

  bool skipExtension() {
    int code = 0;
    GifByteType* block = nullptr;
    bool isRead = DGifGetExtension(gif_.get(), &code, &block) == GIF_OK;
    while (isRead && block != nullptr)
      isRead = DGifGetExtensionNext(gif_.get(), &block) == GIF_OK;
    return isRead;
  }

  bool walkFrame() {
    if (hasFrame_) {
      facts_.isAnimated = isComplete_ = true;
      return false;
    }
    if (DGifGetImageDesc(gif_.get()) != GIF_OK) return false;
    const GifImageDesc& frame = gif_->Image;
    facts_.isInterlaced = frame.Interlace;
    hasFrame_ = frame.Width > 0 && frame.Height > 0 && !isTooLarge({frame.Width, frame.Height}) &&
                !isTooLarge(facts_.size);
    if (facts_.size.isEmpty()) facts_.size = {frame.Left + frame.Width, frame.Top + frame.Height};
    std::vector<GifPixelType> line(static_cast<std::size_t>(frame.Width));
    for (int y = 0; hasFrame_ && y < frame.Height; ++y)
      if (DGifGetLine(gif_.get(), line.data(), frame.Width) != GIF_OK) return false;
    return hasFrame_;
  }

  QByteArrayView rest_;
  PictureFacts& facts_;
  std::unique_ptr<GifFileType, GifRelease> gif_;
  bool hasFrame_ = false;
  bool isComplete_ = false;
};

}  // namespace

PictureForm pictureForm(const QByteArray& start) {
  if (gifScreen(start)) return PictureForm::Gif;
  return start.startsWith("\xFF\xD8\xFF") ? PictureForm::Jpeg : PictureForm::Other;
}

PictureFacts pictureFacts(const QByteArray& bytes) {
  PictureFacts facts{.form = pictureForm(bytes)};
  if (facts.form == PictureForm::Gif) {
    facts.size = *gifScreen(bytes);
    GifWalk(bytes, facts).run();
  } else if (facts.form == PictureForm::Jpeg) {
    readJpeg(bytes, facts);
  }
  return facts;
}

}  // namespace quillane

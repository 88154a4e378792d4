// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QSize>

#include <cstdint>

namespace quillane {

/// The form of a picture file, as far as themes tell them apart.
enum class PictureForm : std::uint8_t { Gif, Jpeg, Other };

/// Told by the first bytes of a file.
PictureForm pictureForm(const QByteArray& start);

/// What a phone's decoder has to cope with in a GIF or JPEG.
struct PictureFacts {
  PictureForm form = PictureForm::Other;
  QSize size{};            ///< Of a GIF its screen, or its frame when that is empty; 0 for none.
  bool isDamaged = false;  ///< Cut off, not to be decoded, or with sides over 4096 pixels.
  bool isInterlaced = false;
  bool isAnimated = false;  ///< More than one frame.
  bool isBaseline = true;   ///< False for a JPEG of another coding, such as a progressive one.
};

/// Reads a picture strictly: where our own painting makes do with part of a picture, it is damaged.
/// Of a GIF the first frame is decoded. Other kinds are not looked at.
PictureFacts pictureFacts(const QByteArray& bytes);

}  // namespace quillane

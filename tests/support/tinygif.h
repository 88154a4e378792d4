// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QRect>

namespace quillane {

/// A GIF of one frame that is black, red, green or blue all over (colour 0 to 3 of its palette).
/// `transparent` is the index of the transparent colour, -1 for none.
inline QByteArray tinyGif(QSize screen, const QRect& frame, int color, int transparent = -1) {
  const auto word = [](int value) {
    return QByteArray(1, static_cast<char>(value & 255)) + static_cast<char>(value >> 8);
  };
  QByteArray gif = "GIF89a" + word(screen.width()) + word(screen.height());
  gif += QByteArray::fromHex("910000000000ff000000ff000000ff");
  if (transparent >= 0)
    gif += QByteArray::fromHex("21f904010000") + static_cast<char>(transparent) + '\0';
  gif += ',' + word(frame.x()) + word(frame.y()) + word(frame.width()) + word(frame.height());
  gif += QByteArray::fromHex("0002");

  // Three-bit codes with a clear code (4) before every other pixel, so that they never grow.
  QByteArray data;
  int bits = 0;
  int held = 0;
  const auto put = [&](int code) {
    held |= code << bits;
    bits += 3;
    for (; bits >= 8; bits -= 8, held >>= 8)
      data += static_cast<char>(held & 255);
  };
  for (int pixel = 0; pixel < frame.width() * frame.height(); ++pixel) {
    if (pixel % 2 == 0) put(4);
    put(color);
  }
  put(5);
  data += static_cast<char>(held & 255);
  for (qsizetype at = 0; at < data.size(); at += 255) {
    const QByteArray block = data.mid(at, 255);
    gif += static_cast<char>(block.size()) + block;
  }
  return gif + '\0' + ';';
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>

#include <optional>

namespace quillane {

/// A picture with a mask: pixels are opaque or not there at all. An empty one paints nothing.
class Picture {
 public:
  Picture() = default;
  explicit Picture(QImage image);

  bool isNull() const { return image_.isNull(); }
  const QImage& image() const { return image_; }

  /// The size in pixels that the placement rules see: HIMETRIC units divided by 26.455 and cut, so
  /// often one less than the picture's own (27 gives 26, 80 gives 80).
  int width() const;
  int height() const;

 private:
  QImage image_;
};

/// The logical screen in the first bytes of a GIF, where a decoder tells the first frame's size;
/// nothing where they are of another file.
std::optional<QSize> gifScreen(const QByteArray& start);

/// Whether a picture has more pixels a side (4096) than the program works with.
bool isTooLarge(QSize size);

/// Reads a GIF (first frame on its logical screen), JPEG, BMP or icon file, by content. Throws
/// `Fault` (BadPicture, FileNotFound), also for a side above 4096 pixels.
Picture LoadPicture(const QString& path);

/// The numbered icon; throws `Fault` (ResourceNotFound) for a number that does not exist.
Picture LoadResourcePicture(int id);

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QString>

namespace quillane {

/// The kinds of picture files that the program writes.
enum class PictureKind { Gif, Jpeg, Png, Bmp };

/// Whether pictures can be written as GIF, JPEG and PNG on this machine.
bool canConvert();

/// What a file is written as that a dialog offered as `offered`. The ending decides between the
/// kinds that one converter writes; a GIF and a BMP are always what was offered.
PictureKind convertedKind(PictureKind offered, const QString& path);

/// Writes a picture; `qualities` is the INI file with the quality of a JPEG (1 to 100, section
/// "JPEG", "Save Quality") and the compression of a PNG (0 to 9, section "PNG",
/// "CompressionLevel"). A GIF gets at most 256 colours and keeps its transparency; a JPEG or BMP,
/// which have none, gets white there. Throws `Fault`; what was there before is then untouched.
void savePicture(const QImage& picture, const QString& path, PictureKind kind,
                 const QString& qualities);

}  // namespace quillane

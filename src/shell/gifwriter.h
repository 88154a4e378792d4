// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

namespace quillane {

/// A picture of `QImage::Format_Indexed8` as the bytes of a GIF file: one frame, not interlaced; an
/// entry of the palette that is transparent stays so. Throws `Fault`.
QByteArray gifOf(const QImage& indexed);

/// Version of the library that writes GIF files; it tells only the one that we were built with:
/// "5.2.1".
QString gifLibraryVersion();

}  // namespace quillane

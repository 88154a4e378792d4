// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QImage>

namespace quillane {

/// A picture of `QImage::Format_Indexed8` as the bytes of a GIF file: one frame, not interlaced; an
/// entry of the palette that is transparent stays so. Throws `Fault`.
QByteArray gifOf(const QImage& indexed);

}  // namespace quillane

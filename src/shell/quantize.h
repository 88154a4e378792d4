// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

namespace quillane {

/// The picture as a palette of at most 256 colours, dithered where it has more; one with fewer
/// keeps them all exactly. A pixel that is less than half opaque becomes transparent, for which one
/// entry of the palette is kept. With one version of the library the same
/// picture always gives the same palette and pixels.
QImage reduceTo256(const QImage& picture);

/// Version of the library that chooses the colours, as it is in memory: "2.17.0".
QString quantizerVersion();

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>

namespace quillane {

/// Reads bytes as an archive; whether what came out is what may come out of any bytes.
bool archiveHolds(QByteArrayView bytes);

/// Looks up every element in bytes as a theme's text; the same question.
bool parseXmlHolds(QByteArrayView bytes);

/// Reads bytes as a palette; the same question.
bool paletteHolds(QByteArrayView bytes);

}  // namespace quillane

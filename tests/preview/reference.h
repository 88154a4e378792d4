// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QString>

namespace quillane::test {

/// Compares a picture with `reference/<name>` pixel by pixel. What differs is left in the build
/// tree: the picture, its difference and that stretched to full contrast, and the test's message
/// has the count, the bounding box and the first place.
///
/// With $QUILLANE_RENEW_REFERENCES set the reference is written anew instead.
void expectReference(const QString& name, const QImage& actual);

}  // namespace quillane::test

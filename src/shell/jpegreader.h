// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/picturefacts.h"

#include <QString>

namespace quillane {

/// Fills the facts of a JPEG. One that is not baseline is not decoded. Whatever the library warns
/// of, such as an end that is cut off, makes the picture a damaged one.
void readJpeg(const QByteArray& bytes, PictureFacts& facts);

/// Version of the library that reads JPEG files; it tells only the one that we were built with:
/// "2.1.5".
QString jpegLibraryVersion();

}  // namespace quillane

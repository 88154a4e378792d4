// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/converter.h"

#include <QString>

#include <span>

namespace quillane {

/// The filters of a file dialog that offers some kinds of pictures, in this order.
QString pictureFilter(std::span<const PictureKind> kinds);

/// The ending of the files of a kind, as in ".gif".
QString pictureEnding(PictureKind kind);

}  // namespace quillane

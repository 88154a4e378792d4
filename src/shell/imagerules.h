// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/picturefacts.h"
#include "theme/elements.h"

#include <QSize>
#include <QString>

#include <optional>

namespace quillane {

/// A size in pixels as messages tell it: "101x80".
QString pixelsText(QSize size);

/// Whether a file begins as a GIF does, and the size of its logical screen. Nothing for any other
/// file, and for one that cannot be read.
std::optional<QSize> IsGifFile(const QString& path);

/// Size in pixels of a picture of a kind that the images of a generation may have: a GIF's logical
/// screen, or its frame when that is empty, or the picture of a JPEG in 3G. Told by content. Throws
/// `Fault` for a file of another kind or one that cannot be read.
QSize themePictureSize(const ThemeSchema& schema, const QString& path);

/// Whether the images of a generation may have this form.
bool takesForm(const ThemeSchema& schema, PictureForm form);

/// The complaint about a file of a form that the images of a generation may not have.
QString wrongFormText(const ThemeSchema& schema, const QString& file);

/// Whether a slot takes a picture of this size.
bool takesSize(const ImageElement& slot, QSize size);

/// Title of the dialog that asks for a slot's picture: "Select title small image".
QString imageDialogTitle(const ImageElement& slot);

/// Title of the message about a picture of a wrong size.
inline constexpr QLatin1String kImageDimensionsTitle{"Incorrect image dimensions"};

/// Lines of the message about a picture whose size a slot does not take.
QString imageDimensionsText(const ImageElement& slot, const QString& path, QSize size);

}  // namespace quillane

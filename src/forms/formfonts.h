// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>

namespace quillane {

/// The font, made smaller where its lines would be higher than so many pixels.
QFont fontOfHeight(QFont font, int height);

}  // namespace quillane

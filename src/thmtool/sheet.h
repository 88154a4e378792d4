// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "thmtool/rendering.h"

namespace quillane {

/// What stands above the screens of a sheet.
struct SheetHeading {
  QString title;
  QString line;
};

/// All screens on one picture, each with its caption below, under a heading. Every screen has the
/// size of the first.
QImage contactSheet(const SheetHeading& heading, const std::vector<RenderedScreen>& screens);

}  // namespace quillane

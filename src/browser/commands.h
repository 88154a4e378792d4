// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;

namespace quillane {

/// Gives the buttons of the browser's tool row their pictures.
void dressButtons(QWidget& browser);

/// Enables the menu items that follow the selection: how many themes are selected, and whether the
/// only one could not be shown.
void enableMenuItems(QWidget& browser, int selectedCount, bool themeFailed);

}  // namespace quillane

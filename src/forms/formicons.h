// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>
#include <QPixmap>

namespace quillane {

/// The numbered icon as a pixmap; a null one when the icon is missing, which never stops a form.
QPixmap formPixmap(int id);

/// The numbered icon for a button, with a paler picture while the button is disabled.
QIcon formIcon(int id);

/// The same without its transparent margin, for a button that is narrower than the picture.
QIcon tightFormIcon(int id);

/// The icon of the program, in all its sizes.
QIcon programIcon();

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>
#include <QPixmap>

#include <span>

class QWidget;

namespace quillane {

/// The numbered icon as a pixmap; a null one when the icon is missing, which never stops a form.
QPixmap formPixmap(int id);

/// The numbered icon for a button, with a paler picture while the button is disabled.
QIcon formIcon(int id);

/// The same without its transparent margin, for a button that is narrower than the picture.
QIcon tightFormIcon(int id);

/// A button by its name and the numbered icon on it.
struct ButtonPicture {
  const char* button;
  int picture;
};

/// Gives buttons of a form their icons.
void dressButtons(QWidget& form, std::span<const ButtonPicture> pictures);

/// The icon of the program's windows. It has no larger sizes than task bars show: the display takes
/// all of them at the start.
QIcon programIcon();

/// The program's picture, 128 pixels a side, sharp on dense displays.
QPixmap programPicture();

}  // namespace quillane

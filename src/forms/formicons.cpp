// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/formicons.h"

#include "preview/picture.h"
#include "theme/fault.h"

namespace quillane {

QPixmap formPixmap(int id) {
  QPixmap pixmap;
  skipOnFault([&] { pixmap = QPixmap::fromImage(LoadResourcePicture(id).image()); });
  return pixmap;
}

QIcon formIcon(int id) {
  return QIcon(formPixmap(id));
}

}  // namespace quillane

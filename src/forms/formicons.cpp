// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/formicons.h"

#include "preview/picture.h"
#include "theme/fault.h"

#include <QAbstractButton>
#include <QBitmap>
#include <QRegion>

// Outside the namespace, as the resources of a static library ask for.
static void loadProgramIcons() {
  Q_INIT_RESOURCE(programicons);
}

namespace quillane {

using namespace Qt::StringLiterals;

QPixmap formPixmap(int id) {
  QPixmap pixmap;
  skipOnFault([&] { pixmap = QPixmap::fromImage(LoadResourcePicture(id).image()); });
  return pixmap;
}

QIcon formIcon(int id) {
  return QIcon(formPixmap(id));
}

QIcon tightFormIcon(int id) {
  const QPixmap pixmap = formPixmap(id);
  return QIcon(pixmap.copy(QRegion(pixmap.mask()).boundingRect()));
}

void dressButtons(QWidget& form, std::span<const ButtonPicture> pictures) {
  for (const ButtonPicture& row : pictures)
    form.findChild<QAbstractButton*>(QLatin1String(row.button))->setIcon(formIcon(row.picture));
}

QIcon programIcon() {
  loadProgramIcons();
  QIcon icon;
  for (const int side : {16, 32, 48, 64, 128, 256})
    icon.addFile(u":/program/%1.png"_s.arg(side));
  return icon;
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/formicons.h"

#include "preview/picture.h"
#include "theme/fault.h"

#include <QAbstractButton>
#include <QBitmap>
#include <QRegion>

#include <initializer_list>

// Outside the namespace, as the resources of a static library ask for.
static void loadProgramIcons() {
  Q_INIT_RESOURCE(programicons);
}

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

QIcon programIconOf(std::initializer_list<int> sides) {
  loadProgramIcons();
  QIcon icon;
  // Left to find out the format, Qt would load all its picture plugins, also at a start that shows
  // no picture.
  for (const int side : sides)
    icon.addPixmap(QPixmap(u":/program/%1.png"_s.arg(side), "png"));
  return icon;
}

}  // namespace

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
  return programIconOf({16, 32, 48, 64});
}

QPixmap programPicture() {
  constexpr int kSide = 128;
  return programIconOf({kSide, 2 * kSide}).pixmap(kSide);
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/picturebox.h"

#include "forms/formcolors.h"
#include "forms/paintpixels.h"

#include <QMouseEvent>

namespace quillane {

namespace {

constexpr int kBorder = 2;

}  // namespace

PictureBox::PictureBox(QWidget* parent) : QFrame(parent) {
  setFrameStyle(QFrame::WinPanel | QFrame::Sunken);
  setLineWidth(kBorder);
}

Surface& PictureBox::surface() {
  if (!surface_) {
    const QSize client = size() - QSize(2 * kBorder, 2 * kBorder);
    surface_ = std::make_unique<Surface>(client, colorValueOf(palette().color(QPalette::Window)));
  }
  return *surface_;
}

void PictureBox::Cls() {
  surface().Cls();
  showSurface();
}

void PictureBox::paintEvent(QPaintEvent* event) {
  QFrame::paintEvent(event);
  // On a dense screen the picture may be smaller than the box; it stands in the middle.
  const QSizeF shown = QSizeF(surface().image().size()) * pixelSize(*this);
  const QSizeF spare = (QSizeF(size()) - shown) / 2;
  paintPixels(*this, surface().image(), {spare.width(), spare.height()});
}

void PictureBox::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::RightButton)
    Q_EMIT rightClicked(event->globalPosition().toPoint());
  else
    QFrame::mouseReleaseEvent(event);
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/tabbutton.h"

#include <QPainter>
#include <QStyleOptionFocusRect>
#include <qdrawutil.h>

namespace quillane {

namespace {

constexpr int kEdge = 2;
constexpr int kPadding = 6;

}  // namespace

QSize TabButton::sizeHint() const {
  const int around = 2 * (kEdge + kPadding);
  return fontMetrics().size(Qt::TextShowMnemonic, text()) + QSize(around, around);
}

void TabButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QBrush face = palette().window();
  // The lower edge is drawn below the button, where nobody sees it.
  qDrawWinPanel(&painter, rect().adjusted(0, 0, 0, kEdge), palette(), false, &face);
  const QRect inside = rect().adjusted(kEdge, kEdge, -kEdge, 0);
  painter.setPen(palette().color(foregroundRole()));
  painter.drawText(inside, Qt::AlignCenter | Qt::TextShowMnemonic, text());
  if (!hasFocus()) return;
  QStyleOptionFocusRect option;
  option.initFrom(this);
  option.rect = inside.adjusted(2, 2, -2, -2);
  style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/pagelabel.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

namespace quillane {

namespace {

constexpr int kIndent = 8;

}  // namespace

PageLabel::PageLabel(QWidget* parent) : QAbstractButton(parent) {
  setCheckable(true);
  setAutoExclusive(true);
  setFocusPolicy(Qt::StrongFocus);
}

void PageLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().brush(isChecked() ? QPalette::Highlight : QPalette::Base));
  painter.setPen(palette().color(isChecked() ? QPalette::HighlightedText : QPalette::ButtonText));
  painter.drawText(rect().adjusted(kIndent, 0, 0, 0), Qt::AlignVCenter, text().trimmed());
  if (!hasFocus()) return;
  QStyleOptionFocusRect option;
  option.initFrom(this);
  option.backgroundColor = palette().color(QPalette::Highlight);
  style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
}

}  // namespace quillane

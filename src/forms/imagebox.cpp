// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/imagebox.h"

#include "forms/paintpixels.h"

#include <QScrollBar>

namespace quillane {

namespace {

constexpr int kStep = 16;

void setRange(QScrollBar& bar, int whole, int shown) {
  bar.setPageStep(shown);
  bar.setSingleStep(kStep);
  bar.setRange(0, qMax(0, whole - shown));
}

}  // namespace

ImageBox::ImageBox(QWidget* parent) : QAbstractScrollArea(parent) {
  setFrameShape(NoFrame);
  viewport()->setBackgroundRole(QPalette::Window);
}

void ImageBox::setPicture(const QImage& picture) {
  picture_ = picture;
  horizontalScrollBar()->setValue(0);
  verticalScrollBar()->setValue(0);
  setRanges();
  viewport()->update();
}

void ImageBox::paintEvent(QPaintEvent*) {
  const QPoint hidden(horizontalScrollBar()->value(), verticalScrollBar()->value());
  paintPixels(*viewport(), picture_, -hidden);
}

void ImageBox::resizeEvent(QResizeEvent*) {
  setRanges();
}

// The scroll bar of one direction takes room from the other, so what fits is measured without them.
void ImageBox::setRanges() {
  const QSize room = maximumViewportSize();
  const bool fits = picture_.width() <= room.width() && picture_.height() <= room.height();
  const QSize shown = fits ? room : viewport()->size();
  setRange(*horizontalScrollBar(), picture_.width(), shown.width());
  setRange(*verticalScrollBar(), picture_.height(), shown.height());
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/colorpalette.h"

#include "tools/palettemodel.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QToolTip>

namespace quillane {

namespace {

/// The usual side of the whole grid, without the line that closes it below and at the right.
constexpr int kSide = 288;
constexpr int kBorder = 2;

void frame(QPainter& painter, const QRect& rect, const QColor& color) {
  painter.setPen(color);
  painter.drawRect(rect.adjusted(0, 0, -1, -1));
}

/// Fills a field but for the line above it and the one at its left.
class FieldDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    const QVariant color = index.data(Qt::BackgroundRole);
    if (!color.isValid()) return;
    const QRect field = option.rect.adjusted(1, 1, 0, 0);
    painter->fillRect(field, color.value<QColor>());
    if (!option.state.testFlag(QStyle::State_Selected)) return;
    // Two frames in each other show on every colour.
    const bool active = option.state.testFlag(QStyle::State_Active);
    frame(*painter, field, active ? option.palette.color(QPalette::Highlight) : Qt::black);
    frame(*painter, field.adjusted(1, 1, -1, -1), Qt::white);
    frame(*painter, field.adjusted(2, 2, -2, -2), Qt::black);
  }
};

}  // namespace

ColorPalette::ColorPalette(QWidget* parent) : QTableView(parent), model_(new PaletteModel(this)) {
  setModel(model_);
  setItemDelegate(new FieldDelegate(this));
  setSelectionMode(SingleSelection);
  setEditTriggers(NoEditTriggers);
  setTabKeyNavigation(false);
  setShowGrid(false);
  setCornerButtonEnabled(false);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setFrameStyle(QFrame::WinPanel | QFrame::Sunken);
  setLineWidth(kBorder);
  setCursor(Qt::CrossCursor);
  viewport()->setBackgroundRole(QPalette::Window);
  for (QHeaderView* header : {horizontalHeader(), verticalHeader()}) {
    header->hide();
    header->setMinimumSectionSize(1);
    header->setSectionResizeMode(QHeaderView::Fixed);
  }
  setSide(kSide);
}

void ColorPalette::setSide(int side) {
  side_ = side;
  setFixedSize(QSize(side + 1, side + 1) + QSize(kBorder, kBorder) * 2);
  fitFields();
}

void ColorPalette::loadBuiltIn() {
  model_->setColors(builtInPalette());
  fitFields();
}

void ColorPalette::load(const QString& path) {
  model_->setColors(loadPalette(path));
  fitFields();
}

void ColorPalette::save(const QString& path) const {
  savePalette(path, model_->colors());
}

void ColorPalette::fitFields() {
  for (QHeaderView* header : {horizontalHeader(), verticalHeader()})
    header->setDefaultSectionSize(side_ / model_->columnCount());
}

// The current field does not count: the focus alone makes one.
int ColorPalette::selectedIndex() const {
  return model_->placeOf(selectedIndexes().value(0));
}

ColorValue ColorPalette::colorAt(int index) const {
  return model_->colors().at(static_cast<std::size_t>(index));
}

void ColorPalette::setColorAt(int index, ColorValue color) {
  model_->setColor(model_->fieldAt(index), color);
}

void ColorPalette::select(int index) {
  setCurrentIndex(model_->fieldAt(index));
}

bool ColorPalette::pick(const QModelIndex& field) {
  if (model_->placeOf(field) < 0) return false;
  setCurrentIndex(field);
  Q_EMIT Click();
  return true;
}

bool ColorPalette::viewportEvent(QEvent* event) {
  if (event->type() != QEvent::ToolTip || !tip_) return QTableView::viewportEvent(event);
  const auto* help = static_cast<QHelpEvent*>(event);
  const QModelIndex field = indexAt(help->pos());
  const int place = model_->placeOf(field);
  QToolTip::showText(help->globalPos(), place < 0 ? QString() : tip_(colorAt(place)), viewport(),
                     visualRect(field));
  return true;
}

// The second press of two; the release of the first has picked the field.
void ColorPalette::mouseDoubleClickEvent(QMouseEvent* event) {
  const QModelIndex field = indexAt(event->position().toPoint());
  if (event->button() == Qt::LeftButton && model_->placeOf(field) >= 0) Q_EMIT DblClick();
}

void ColorPalette::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) QTableView::mousePressEvent(event);
}

// A small slip between press and release still picks what is framed.
void ColorPalette::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) pick(indexAt(event->position().toPoint()));
}

void ColorPalette::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Home:
      return select(0);
    case Qt::Key_End:
      return select(static_cast<int>(model_->colors().size()) - 1);
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
      if (selectedIndex() < 0) return event->ignore();
      if (pick(currentIndex())) Q_EMIT DblClick();
      return;
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
      if (selectedIndex() < 0) return select(0);
      break;
    default:
      break;
  }
  QTableView::keyPressEvent(event);
}

}  // namespace quillane

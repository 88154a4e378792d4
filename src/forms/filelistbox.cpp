// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/filelistbox.h"

#include "forms/dialogs.h"
#include "forms/formfonts.h"
#include "theme/fault.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QStringListModel>
#include <QStyledItemDelegate>
#include <QToolTip>

#include <algorithm>

namespace quillane {

namespace {

/// Gives every row its fixed height.
class RowDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return {QStyledItemDelegate::sizeHint(option, index).width(), FileListBox::kRowHeight};
  }

  QString displayText(const QVariant& value, const QLocale&) const override {
    return oneLine(value.toString());
  }

  /// A name that the row cannot hold shows in full beside the pointer.
  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override {
    const QString name = index.data().toString();
    const bool fits = sizeHint(option, index).width() <= view->visualRect(index).width();
    QToolTip::showText(event->globalPos(), fits ? QString() : tipText(oneLine(name)), view);
    return true;
  }
};

}  // namespace

FileListBox::FileListBox(QWidget* parent) : QListView(parent), model_(new QStringListModel(this)) {
  setModel(model_);
  setItemDelegate(new RowDelegate(this));
  setFont(fontOfHeight(font(), kRowHeight));
  setUniformItemSizes(true);
  setSelectionMode(ExtendedSelection);
  setEditTriggers(NoEditTriggers);
  setTextElideMode(Qt::ElideMiddle);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  connect(this, &QListView::doubleClicked, this, &FileListBox::DblClick);
}

void FileListBox::setPath(const QString& path) {
  path_ = path;
  Q_EMIT PathChange();
}

void FileListBox::refresh() {
  names_.clear();
  try {
    names_ = listFiles(path_, ending_, hidden_);
  } catch (const Fault&) {
    model_->setStringList(names_);
    throw;
  }
  model_->setStringList(names_);
}

QList<int> FileListBox::selectedItems() const {
  QList<int> rows;
  for (const QItemSelectionRange& range : selectionModel()->selection())
    for (int row = range.top(); row <= range.bottom(); ++row)
      rows << row;
  std::sort(rows.begin(), rows.end());
  return rows;
}

void FileListBox::setSelected(int index, bool on) {
  const QModelIndex item = model_->index(index);
  if (on) selectionModel()->setCurrentIndex(item, QItemSelectionModel::NoUpdate);
  selectionModel()->select(item, on ? QItemSelectionModel::Select : QItemSelectionModel::Deselect);
}

void FileListBox::selectOnly(int index) {
  setCurrentIndex(model_->index(index));
}

void FileListBox::selectEvery() {
  selectAll();
}

void FileListBox::invertSelection() {
  const QItemSelection every(model_->index(0), model_->index(listCount() - 1));
  selectionModel()->select(every, QItemSelectionModel::Toggle);
}

// The list has a current item before anything is selected; the first step goes there, not past it.
void FileListBox::keyPressEvent(QKeyEvent* event) {
  const bool isStep = event->key() == Qt::Key_Down || event->key() == Qt::Key_Up;
  if (isStep && selectionModel()->selection().isEmpty())
    selectOnly(qMax(0, currentIndex().row()));
  else
    QListView::keyPressEvent(event);
}

void FileListBox::selectionChanged(const QItemSelection& selected,
                                   const QItemSelection& deselected) {
  QListView::selectionChanged(selected, deselected);
  Q_EMIT Click();
}

}  // namespace quillane

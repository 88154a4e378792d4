// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/filelistbox.h"

#include "shell/listing.h"
#include "theme/fault.h"

#include <QStringListModel>
#include <QStyledItemDelegate>

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
};

}  // namespace

FileListBox::FileListBox(QWidget* parent) : QListView(parent), model_(new QStringListModel(this)) {
  setModel(model_);
  setItemDelegate(new RowDelegate(this));
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
    names_ = listFiles(path_, ending_);
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

void FileListBox::selectEvery() {
  selectAll();
}

void FileListBox::invertSelection() {
  const QItemSelection every(model_->index(0), model_->index(listCount() - 1));
  selectionModel()->select(every, QItemSelectionModel::Toggle);
}

void FileListBox::selectionChanged(const QItemSelection& selected,
                                   const QItemSelection& deselected) {
  QListView::selectionChanged(selected, deselected);
  Q_EMIT Click();
}

}  // namespace quillane

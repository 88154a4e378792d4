// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/listing.h"

#include <QListView>
#include <QStringList>

class QStringListModel;

namespace quillane {

/// A list of the files of one folder, or of those that bear an ending. Click, Ctrl+click and
/// Shift+click select.
class FileListBox : public QListView {
  Q_OBJECT

 public:
  /// Height of a row in pixels.
  static constexpr int kRowHeight = 13;

  explicit FileListBox(QWidget* parent = nullptr);

  /// The ending of the files to list, as in ".thm", letter case aside.
  void setEnding(const QString& ending) { ending_ = ending; }
  /// Whether files whose names begin with a point are listed, as they are not at first.
  void setHiddenFiles(HiddenFiles hidden) { hidden_ = hidden; }

  const QString& path() const { return path_; }
  /// Names another folder and emits `PathChange`; `refresh` then reads it.
  void setPath(const QString& path);
  /// Reads the folder anew; nothing is selected then. Throws `Fault` when it cannot be read; the
  /// list is then empty.
  void refresh();

  int listCount() const { return static_cast<int>(names_.size()); }
  const QString& item(int index) const { return names_.at(index); }
  /// Index of the item on which the keyboard stands, -1 for none.
  int listIndex() const { return currentIndex().row(); }
  /// Index of the first item in view.
  int topIndex() const { return indexAt(QPoint(0, 0)).row(); }

  /// Indexes of the selected items, ascending.
  QList<int> selectedItems() const;
  /// Selects or deselects one item and leaves the others as they are.
  void setSelected(int index, bool on);
  /// Selects one item alone, as a click on it does, so that ranges are then drawn from it.
  void selectOnly(int index);
  void selectEvery();
  void invertSelection();

 Q_SIGNALS:
  /// The selection changed, by the user or by the program.
  void Click();
  void DblClick();
  void PathChange();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

 private:
  QString path_;
  QString ending_;
  HiddenFiles hidden_ = HiddenFiles::LeaveOut;
  QStringList names_;
  QStringListModel* model_;
};

}  // namespace quillane

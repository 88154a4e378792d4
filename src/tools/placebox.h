// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>

namespace quillane {

/// A text box for the place of a frame in pixels. A person types digits alone; the program may also
/// show a negative number there.
class PlaceBox : public QLineEdit {
  Q_OBJECT

 public:
  explicit PlaceBox(QWidget* parent = nullptr);

  int place() const { return text().toInt(); }
  void setPlace(int place) { setText(QString::number(place)); }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace quillane

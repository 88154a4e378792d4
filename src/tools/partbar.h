// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QScrollBar>

namespace quillane {

/// A vertical scroll bar whose value rises towards its top, whatever it is moved with.
class PartBar : public QScrollBar {
  Q_OBJECT

 public:
  explicit PartBar(QWidget* parent = nullptr);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void turnAction(int action);

  bool pressed_ = false;  ///< A mouse button is held on the bar.
};

}  // namespace quillane

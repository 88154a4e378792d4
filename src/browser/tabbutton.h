// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractButton>

namespace quillane {

/// The tab of a page: a raised panel without a lower edge, with its caption in the colour of the
/// foreground role.
class TabButton : public QAbstractButton {
  Q_OBJECT

 public:
  using QAbstractButton::QAbstractButton;

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace quillane

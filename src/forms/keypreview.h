// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <functional>

class QKeyEvent;
class QWidget;

namespace quillane {

struct PublicState;

/// Lets a form see each key of its window before the control that has the focus does, and keeps
/// `ShiftDown` and `CtrlDown` as the last one told.
class KeyPreview : public QObject {
  Q_OBJECT

 public:
  /// Takes a key that goes down or is let go, as its type tells, and says whether the form used it
  /// up.
  using Handler = std::function<bool(const QKeyEvent& key)>;

  /// Belongs to `form`; `state` outlives it.
  KeyPreview(QWidget& form, PublicState& state, Handler handler = {});

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget& form_;
  PublicState& state_;
  Handler handler_;
};

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/keypreview.h"

#include "shell/state.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

#include <utility>

namespace quillane {

KeyPreview::KeyPreview(QWidget& form, PublicState& state, Handler handler)
    : QObject(&form), form_(form), state_(state), handler_(std::move(handler)) {
  qApp->installEventFilter(this);
}

bool KeyPreview::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease) return false;
  const auto* widget = qobject_cast<QWidget*>(watched);
  if (!widget || widget->window() != &form_) return false;
  const auto& key = *static_cast<QKeyEvent*>(event);
  state_.ShiftDown = key.modifiers().testFlag(Qt::ShiftModifier);
  state_.CtrlDown = key.modifiers().testFlag(Qt::ControlModifier);
  return handler_ && handler_(key);
}

}  // namespace quillane

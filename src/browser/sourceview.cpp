// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/sourceview.h"

#include <QKeyEvent>

namespace quillane {

SourceView::SourceView(QWidget* parent) : QPlainTextEdit(parent) {
  setReadOnly(true);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
}

bool SourceView::event(QEvent* event) {
  if (event->type() != QEvent::ShortcutOverride) return QPlainTextEdit::event(event);
  // Left to itself, the text would take the key that closes the view for a cut.
  const auto* const key = static_cast<QKeyEvent*>(event);
  event->setAccepted(key->matches(QKeySequence::Copy) || key->matches(QKeySequence::SelectAll));
  return true;
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/renamebox.h"

#include <QFocusEvent>
#include <QKeyEvent>

namespace quillane {

void RenameBox::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape)
    hide();
  else
    QLineEdit::keyPressEvent(event);
}

void RenameBox::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  selectAll();
}

void RenameBox::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  // Its own menu and another program's window take the focus for a while only.
  const Qt::FocusReason reason = event->reason();
  if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason) hide();
}

}  // namespace quillane

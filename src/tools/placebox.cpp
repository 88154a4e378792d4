// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/placebox.h"

#include <QKeyEvent>
#include <QRegularExpressionValidator>

namespace quillane {

using namespace Qt::StringLiterals;

PlaceBox::PlaceBox(QWidget* parent) : QLineEdit(parent) {
  setValidator(new QRegularExpressionValidator(QRegularExpression(u"-?[0-9]{0,4}"_s), this));
}

void PlaceBox::keyPressEvent(QKeyEvent* event) {
  if (event->text() != "-"_L1) QLineEdit::keyPressEvent(event);
}

}  // namespace quillane

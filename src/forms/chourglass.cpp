// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/chourglass.h"

#include <QCursor>
#include <QGuiApplication>

namespace quillane {

cHourglass::cHourglass() {
  QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

cHourglass::~cHourglass() {
  QGuiApplication::restoreOverrideCursor();
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/chourglass.h"

#include <QCursor>
#include <QGuiApplication>

namespace quillane {

PointerOverride::PointerOverride(Qt::CursorShape shape) {
  QGuiApplication::setOverrideCursor(shape);
}

PointerOverride::~PointerOverride() {
  QGuiApplication::restoreOverrideCursor();
}

}  // namespace quillane

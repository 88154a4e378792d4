// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/formarea.h"

#include "forms/bevel.h"

#include <QPainter>

namespace quillane {

void FormArea::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  Bevel bevel(painter, palette());
  Q_EMIT Paint(bevel);
}

}  // namespace quillane

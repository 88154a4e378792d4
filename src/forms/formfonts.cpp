// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/formfonts.h"

#include <QFontInfo>
#include <QFontMetrics>

namespace quillane {

namespace {

constexpr int kSmallest = 7;

}  // namespace

QFont fontOfHeight(QFont font, int height) {
  for (int size = QFontInfo(font).pixelSize(); size > kSmallest; --size) {
    if (QFontMetrics(font).height() <= height) break;
    font.setPixelSize(size - 1);
  }
  return font;
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview/clsvistrel.h"

namespace quillane {

using namespace Qt::StringLiterals;

clsVistrel::clsVistrel(PreviewWorld& world) : PreviewEngine(Generation::Two, world) {
  clsVistrel::DefaultColors();
}

void clsVistrel::takeTheme(const ThemeValues& values) {
  PreviewEngine::takeTheme(values);
  StandbyType = image(gen2::BackgroundImage).isEmpty() ? 0 : 1;
}

void clsVistrel::DefaultColors() {
  PreviewEngine::DefaultColors();
  StandbyType = 0;
  PopupPaddingLeftTop = u"3 5"_s;
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "forms/picturebox.h"
#include "preview/screens.h"
#include "theme/fault.h"

namespace quillane {

/// Paints a screen on its pane and shows it. A fault is reported and leaves what was painted by
/// then.
template <class Engine>
void paintScreen(const Screen<Engine>& screen, Engine& engine, PictureBox& pane,
                 const FaultReporter& report) {
  engine.setSurface(pane.surface());
  try {
    screen.paint(engine);
  } catch (const Fault& fault) {
    report(fault);
  }
  pane.showSurface();
}

}  // namespace quillane

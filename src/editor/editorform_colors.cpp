// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
// Colours: their swatches, and those that follow.
#include "editor/editorform.h"
#include "forms/colorfield.h"
#include "preview/previewengine.h"
#include "shell/state.h"
#include "ui_editorform.h"

#include <QLineEdit>

#include <algorithm>
#include <utility>

namespace quillane {

void EditorForm::lblClr_Click(const SlotControls& controls) {
  PublicState& state = desk_.state;
  state.PickerColorIn = static_cast<std::int32_t>(controls.swatch->color());
  const bool picked = PickColor();
  // A Ctrl key released over the dialog is never seen here, so it counts once.
  const bool alone = std::exchange(state.CtrlDown, false);
  if (!picked) return;
  QList<int> colors{controls.slot.color};
  if (!alone) colors += controls.slot.followers;
  const QString rgb = htmlOf(static_cast<ColorValue>(state.PickerColorOut));
  for (const int color : colors) {
    engine_.setColor(color, rgb);
    showColor(controlsOf(color));
  }
  DrawPreviews();
  CheckColorContrast();
}

void EditorForm::showColor(const SlotControls& controls) {
  const QString& rgb = engine_.color(controls.slot.color);
  controls.text->setText(rgb);
  try {
    controls.swatch->setColor(colorValueOf(rgb));
  } catch (const Fault& fault) {
    controls.swatch->setColor(0);
    faults_.reporter()(fault);
  }
}

const EditorForm::SlotControls& EditorForm::controlsOf(int color) const {
  return *std::find_if(slots_.begin(), slots_.end(), [color](const SlotControls& controls) {
    return controls.slot.color == color;
  });
}

}  // namespace quillane

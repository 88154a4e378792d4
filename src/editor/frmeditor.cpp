// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/frmeditor.h"

#include "forms/paintscreen.h"
#include "shell/dynamics.h"
#include "shell/state.h"
#include "tools/frmclrpicker.h"
#include "ui_editorform.h"

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

constexpr EditorKind kKind{Generation::Two, "frmEditor", "<Ericsson_theme>", gen2::BackgroundImage};
constexpr int kHighestDesktopIcon = 9;

}  // namespace

frmEditor::frmEditor(QWidget* owner, const EditorDesk& desk, bool openExisting)
    : EditorForm(owner, desk, kKind, *desk.state.EditorEngine2, *desk.state.PreviewEngine2),
      vistrel_(*desk.state.EditorEngine2) {
  useSwitch(*ui_->btnView, u"picStandby"_s, [this] { btnView_Click(); });
  Form_Load(openExisting);
}

void frmEditor::paintPanes(const QStringList& only, const FaultReporter& report) {
  ui_->btnView->setChecked(vistrel_.StandbyType == 1);
  for (const Screen<clsVistrel>& screen : screensOfGeneration2()) {
    if (!only.isEmpty() && !only.contains(screen.pane)) continue;
    stepPhone(screen.id, vistrel_, kHighestDesktopIcon, desk_.state, desk_.world);
    paintScreen(screen, vistrel_, *pane(screen.pane), report);
  }
}

bool frmEditor::PickColor() {
  return pickColor(this, desk_.state, desk_.dialogs);
}

void frmEditor::btnView_Click() {
  vistrel_.StandbyType = vistrel_.StandbyType == 0 ? 1 : 0;
  DrawPreviews({u"picStandby"_s});
}

void frmEditor::imageFilled(int slot, bool autoSelected) {
  if (slot == gen2::BackgroundImage) vistrel_.StandbyType = 1;
  if (desk_.state.SmartLAImage) return;
  if (slot == gen2::TitleImageLarge)
    shareImage(gen2::TitleImageLarge, gen2::TitleImageAsian, autoSelected);
  else if (slot == gen2::TitleImageAsian)
    shareImage(gen2::TitleImageAsian, gen2::TitleImageLarge, false);
}

void frmEditor::shareImage(int from, int to, bool evenFilled) {
  if (evenFilled || vistrel_.image(to).isEmpty()) setSlotPath(to, slotPath(from));
}

}  // namespace quillane

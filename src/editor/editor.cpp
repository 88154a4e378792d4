// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/editor.h"

#include "editor/frmeditor.h"
#include "editor/frmeditor2.h"
#include "editor/frmnew.h"
#include "shell/state.h"

namespace quillane {

namespace {

/// The button of `frmNew` that makes a theme of 3G; the others make one of generation 2.
constexpr int kNew3G = 2;

void showEditor(QWidget* owner, const EditorDesk& desk, Generation generation, bool openExisting) {
  if (generation == Generation::Two)
    frmEditor(owner, desk, openExisting).exec();
  else
    frmEditor2(owner, desk, openExisting).exec();
}

}  // namespace

void editTheme(QWidget* owner, const EditorDesk& desk) {
  showEditor(owner, desk, desk.state.ThemeGeneration, true);
}

void makeTheme(QWidget* owner, const EditorDesk& desk) {
  frmNew question(owner, desk);
  question.exec();
  if (question.choice() < 0) return;
  showEditor(owner, desk, question.choice() == kNew3G ? Generation::ThreeG : Generation::Two,
             false);
}

}  // namespace quillane

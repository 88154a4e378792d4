// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/editor.h"

#include "editor/frmeditor.h"
#include "editor/frmeditor2.h"
#include "editor/frmnew.h"
#include "shell/state.h"

namespace quillane {

namespace {

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
  if (const auto generation = question.choice()) showEditor(owner, desk, *generation, false);
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;

namespace quillane {

class Dialogs;
class PreviewWorld;
class SettingsStore;
struct PublicState;

/// What an editor works with; all of it outlives the editor.
struct EditorDesk {
  PublicState& state;
  SettingsStore& settings;
  Dialogs& dialogs;
  PreviewWorld& world;
};

/// Edits the theme that the browser shows, until the person closes the editor.
void editTheme(QWidget* owner, const EditorDesk& desk);

/// Asks which kind of theme to make, and opens its editor.
void makeTheme(QWidget* owner, const EditorDesk& desk);

}  // namespace quillane

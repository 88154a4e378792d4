// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "browser/frmbrowser.h"
#include "forms/filelistbox.h"
#include "forms/picturebox.h"
#include "shell/settings.h"
#include "shell/state.h"
#include "support/scripteddialogs.h"
#include "support/stillworld.h"
#include "support/tempfolder.h"

#include <QAction>
#include <QLabel>
#include <QPlainTextEdit>
#include <QToolButton>

#include <memory>

namespace quillane {

/// A browser on a folder of themes, with a program folder and settings of its own.
class BrowserTest : public TempFolder {
 protected:
  BrowserTest();

  /// Opens the window on the folder "themes".
  void open(const QString& commandLine = {});
  /// Packs a theme with the given elements, as in "<Text Color=\"0x000000\"/>", into "themes".
  void addTheme(const QString& name, const QByteArray& elements = {}, bool is3G = false,
                const QStringList& images = {});
  /// Themes of one letter each that set nothing.
  void addThemes(const QString& letters) {
    for (const QChar letter : letters)
      addTheme(letter + QString(".thm"));
  }
  /// A file in "themes" that is no theme.
  void addDamaged(const QString& name) { write("themes/" + name, "this is no archive"); }

  template <class Control>
  Control& control(const char* name) {
    auto* found = browser->findChild<Control*>(name);
    if (!found) throw std::runtime_error(std::string("no control ") + name);
    return *found;
  }
  FileListBox& list() { return control<FileListBox>("filFiles"); }
  void click(const char* button) { control<QToolButton>(button).click(); }
  void trigger(const char* item);
  QString label(const char* name) { return control<QLabel>(name).text(); }
  bool enabled(const char* name) { return control<QWidget>(name).isEnabled(); }
  bool shown(const char* name) { return !control<QWidget>(name).isHidden(); }
  /// Whether something was drawn into a pane since it was cleared.
  bool painted(const char* pane);
  /// The balloon's text.
  QString tip();
  /// 'W' or 'E' as the status icon shows, '-' for none.
  char statusIcon();

  PublicState state;
  MemorySettings settings;
  ScriptedDialogs dialogs;
  StillWorld world;
  FaultLog faults;
  std::unique_ptr<frmBrowser> browser;
};

}  // namespace quillane

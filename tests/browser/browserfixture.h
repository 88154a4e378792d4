// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "browser/frmbrowser.h"
#include "forms/filelistbox.h"
#include "forms/formicons.h"
#include "forms/picturebox.h"
#include "support/controls.h"
#include "support/desktest.h"
#include "support/scripteddialogs.h"
#include "support/tinygif.h"
#include "theme/archive.h"

#include <QAction>
#include <QLabel>
#include <QPlainTextEdit>
#include <QToolButton>

#include <memory>

namespace quillane {

/// A browser on a folder of themes, with a program folder and settings of its own.
class BrowserTest : public DeskTest {
 protected:
  BrowserTest() { state.BrowseFolder = makeFolder("themes") + '/'; }

  /// Opens the window on the folder "themes".
  void open(const QString& commandLine = {}) {
    browser = std::make_unique<frmBrowser>(state, settings, dialogs, world, commandLine);
  }
  void openAt(int index) {
    open();
    select(index);
  }
  void select(int index) {
    list().clearSelection();
    list().setSelected(index, true);
  }
  /// Packs a theme with the given elements, as in "<Text Color=\"0x000000\"/>", into "themes".
  void addTheme(const QString& name, const QByteArray& elements = {}, bool is3G = false,
                const QStringList& images = {}) {
    const QByteArray root = is3G ? "Sony_Ericsson_theme" : "Ericsson_theme";
    QStringList members{write("pack/theme.xml", '<' + root + '>' + elements + "</" + root + '>')};
    for (const QString& image : images)
      members << write("pack/" + image, tinyGif({101, 80}, {0, 0, 101, 80}, 1));
    packArchive(path("themes/" + name), members);
  }
  /// Themes of one letter each that set nothing.
  void addThemes(const QString& letters) {
    for (const QChar letter : letters)
      addTheme(letter + QString(".thm"));
  }
  /// A file in "themes" that is no theme.
  void addDamaged(const QString& name) { write("themes/" + name, "this is no archive"); }

  template <class Control>
  Control& control(const char* name) {
    return controlOf<Control>(*browser, name);
  }
  FileListBox& list() { return control<FileListBox>("filFiles"); }
  void click(const char* button) { control<QToolButton>(button).click(); }
  void trigger(const char* item) {
    auto& action = control<QAction>(item);
    ASSERT_TRUE(action.isEnabled()) << item;
    action.trigger();
  }
  QString label(const char* name) { return control<QLabel>(name).text(); }
  bool enabled(const char* name) { return control<QWidget>(name).isEnabled(); }
  bool shown(const char* name) { return !control<QWidget>(name).isHidden(); }
  /// Whether something was drawn into a pane since it was cleared.
  bool painted(const char* pane) {
    const QImage& pixels = control<PictureBox>(pane).surface().image();
    return pixels.pixel(20, 20) != pixels.pixel(0, 0);
  }
  /// The balloon's text.
  QString tip() { return browser->findChild<cTooltips*>()->text(); }
  /// 'W' or 'E' as the status icon shows, '-' for none.
  char statusIcon() {
    const QPixmap icon = control<QLabel>("picToolTip").pixmap();
    if (icon.isNull()) return '-';
    return icon.toImage() == formPixmap(110).toImage() ? 'E' : 'W';
  }

  ScriptedDialogs dialogs;
  std::unique_ptr<frmBrowser> browser;
};

}  // namespace quillane

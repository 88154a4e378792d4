// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browserfixture.h"

#include <QMenu>

namespace quillane {

namespace {

class Folders : public BrowserTest {
 protected:
  QList<QAction*> history() { return control<QMenu>("mnuPopup2").actions(); }
};

TEST_F(Folders, StartsOnTheFolderInUseAndStaysWhenBrowsingIsCancelled) {
  open();
  EXPECT_EQ(browser->windowTitle(), "Quillane - Theme Browser -  [" + path("themes/") + "]");
  EXPECT_EQ(label("lblNoThemes"), "Number of themes: 0");
  EXPECT_FALSE(enabled("btnDropDown"));
  EXPECT_FALSE(shown("picPreview_0") || shown("picPreview_1"));
  dialogs.expectFolder("Select folder with themes:", {});
  trigger("mnuNaviItem_5");
  EXPECT_EQ(state.BrowseFolder, path("themes/"));
  EXPECT_TRUE(history().isEmpty());
}

TEST_F(Folders, BrowsesHomeAndBackThroughTheHistory) {
  addTheme("a.thm");
  makeFolder("other");
  open();
  dialogs.expectFolder("Select folder with themes:", path("other"));
  click("btnBrowse");
  EXPECT_EQ(state.BrowseFolder, path("other/"));
  EXPECT_EQ(label("lblNoThemes"), "Number of themes: 0");
  click("btnHome");
  EXPECT_EQ(state.BrowseFolder, path("home/"));
  click("btnHome");
  ASSERT_EQ(history().size(), 3);
  EXPECT_TRUE(enabled("btnDropDown"));
  EXPECT_EQ(history()[2]->data(), path("home/")) << "twice home gives it twice";
  history()[0]->trigger();
  EXPECT_EQ(state.BrowseFolder, path("themes/"));
  EXPECT_EQ(list().listCount(), 1);
  history()[1]->trigger();
  EXPECT_FALSE(history()[0]->isChecked());
  EXPECT_TRUE(history()[1]->isChecked());
  EXPECT_EQ(history().size(), 3) << "a folder left through the history is not added";
}

TEST_F(Folders, RefreshForgetsTheSelection) {
  addTheme("a.thm");
  openAt(0);
  addTheme("b.thm");
  trigger("mnuViewItem_3");
  EXPECT_EQ(label("lblNoThemes"), "Number of themes: 2");
  EXPECT_EQ(state.SelectedIndex, -1);
  EXPECT_EQ(label("lblSize"), "");
  EXPECT_FALSE(shown("picPreview_0"));
}

TEST_F(Folders, AnUnreadableFolderIsSaidAndShownEmpty) {
  addTheme("a.thm");
  open();
  QFile::remove(path("themes/a.thm"));
  QDir().rmdir(path("themes"));
  dialogs.expectMessage("The folder \"" + path("themes/") + "\" cannot be read: *");
  click("btnRefresh");
  EXPECT_EQ(label("lblNoThemes"), "Number of themes: 0");
}

class BrowserStart : public BrowserTest {};

TEST_F(BrowserStart, SelectsTheThemeOfTheCommandLine) {
  for (const char* name : {"Blue Sky.thm", "red.thm"})
    addTheme(name);
  state.BrowseFolder = path("home/");
  open('"' + path("themes/Blue Sky.thm") + '"');
  EXPECT_EQ(state.BrowseFolder, path("themes/"));
  EXPECT_TRUE(list().selectedItems().isEmpty()) << "quotes and capitals";
  for (const QString& line : {'"' + path("themes/red.thm") + '"', path("themes/Blue Sky.thm")}) {
    state.BrowseFolder = path("home/");
    open(line);
    EXPECT_EQ(state.BrowseFolder, path("themes/"));
    EXPECT_EQ(state.ThemeFilePath, QString(line).remove('"'));
  }
}

TEST_F(BrowserStart, ShowsTheFolderOfTheCommandLine) {
  addTheme("a.thm");
  state.BrowseFolder = path("home/");
  for (const char* folder : {"themes", "themes/"}) {
    open(path(folder));
    EXPECT_EQ(state.BrowseFolder, path("themes/"));
    EXPECT_EQ(list().listCount(), 1);
    EXPECT_TRUE(list().selectedItems().isEmpty());
  }
}

TEST_F(BrowserStart, SaysThatAThemeIsMissing) {
  for (const auto& [missing, folder] :
       {std::pair{"nowhere/none.thm", "themes/"}, {"home/none.thm", "home/"}}) {
    dialogs.expectMessage("Theme " + path(missing) + " could not been found.");
    open(path(missing));
    EXPECT_EQ(state.BrowseFolder, path(folder));
  }
}

TEST_F(BrowserStart, EndsWithAnEmptyWorkFolderAndKeptFolders) {
  addTheme("a.thm");
  state.TARWizFilesFolder = path("files/");
  openAt(0);
  ASSERT_FALSE(listOf("temp").isEmpty());
  browser->close();
  EXPECT_TRUE(listOf("temp").isEmpty());
  EXPECT_EQ(settings.read(setting::BrowseFolder), path("themes/"));
  EXPECT_EQ(settings.read(setting::TARWizFilesFolder), path("files/"));
  for (const Setting& unkept :
       {setting::ThemesFolder, setting::CopyMoveFolder, setting::ImportFolder})
    EXPECT_EQ(settings.read(unkept), "") << unkept.key;
  EXPECT_FALSE(state.PreviewEngine2);
}

TEST_F(BrowserStart, GivesEachButtonAnIconAndAName) {
  open();
  for (const QToolButton* button : browser->findChildren<QToolButton*>())
    if (button->objectName().startsWith("btn")) {
      EXPECT_FALSE(button->icon().isNull() || button->accessibleName().isEmpty())
          << button->objectName().toStdString();
    }
}

}  // namespace

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browserfixture.h"

#include <QMenu>

namespace quillane {

namespace {

class Folders : public BrowserTest {
 protected:
  QList<QAction*> history() {
    for (const QMenu* menu : browser->findChildren<QMenu*>(QString(), Qt::FindDirectChildrenOnly))
      if (!menu->actions().isEmpty() && menu->actions().first()->isCheckable())
        return menu->actions();
    return {};
  }
};

TEST_F(Folders, StartsOnTheFolderInUse) {
  open();
  EXPECT_EQ(browser->windowTitle(), "Quillane - Theme Browser -  [" + path("themes/") + "]");
  EXPECT_EQ(label("lblNoThemes"), "Number of themes: 0");
  EXPECT_FALSE(enabled("btnDropDown"));
  EXPECT_FALSE(shown("picPreview_0") || shown("picPreview_1"));
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

TEST_F(Folders, CancelledBrowsingChangesNothing) {
  open();
  dialogs.expectFolder("Select folder with themes:", {});
  trigger("mnuNaviItem_5");
  EXPECT_EQ(state.BrowseFolder, path("themes/"));
  EXPECT_TRUE(history().isEmpty());
}

TEST_F(Folders, RefreshForgetsTheSelection) {
  addTheme("a.thm");
  open();
  list().setSelected(0, true);
  addTheme("b.thm");
  trigger("mnuViewItem_3");
  EXPECT_EQ(label("lblNoThemes"), "Number of themes: 2");
  EXPECT_EQ(state.SelectedIndex, -1);
  EXPECT_TRUE(list().selectedItems().isEmpty());
  EXPECT_EQ(label("lblSize"), "");
  EXPECT_FALSE(shown("picPreview_0"));
  EXPECT_FALSE(enabled("btnClipboardCopy") || enabled("btnPrev") || enabled("btnNext"));
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

}  // namespace

}  // namespace quillane

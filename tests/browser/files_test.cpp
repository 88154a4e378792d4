// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browserfixture.h"
#include "support/hindrance.h"

#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>
#include <QTest>

#include <functional>

namespace quillane {

namespace {

const QString kOdd = "a \"b\" caf\u00E9.thm";

class Files : public BrowserTest {
 protected:
  /// Opens the window with one theme selected, as the one that has the keyboard.
  void openActive(int index) {
    openAt(index);
    browser->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(browser.get()));
  }
  QStringList listed() {
    QStringList names;
    for (int index = 0; index < list().listCount(); ++index)
      names << list().item(index);
    return names;
  }
  QByteArray theme(const QString& name) { return read("themes/" + name); }
  QLineEdit& renameBox() { return control<QLineEdit>("txtRename"); }
  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(&list(), key, modifiers);
  }
  /// Opens the box for the selected theme, types a name and leaves by Enter.
  void rename(const QString& name) {
    press(Qt::Key_F2);
    EXPECT_TRUE(renameBox().isVisible() && renameBox().hasSelectedText());
    renameBox().setText(name);
    QTest::keyClick(&renameBox(), Qt::Key_Return);
    EXPECT_FALSE(renameBox().isVisible());
  }
};

TEST_F(Files, AreCopiedAndMovedWithAllTheirBytes) {
  addTheme(kOdd);
  addThemes("cd");
  const QByteArray odd = theme(kOdd);
  state.CopyMoveFolder = path("themes");
  const QString target = makeFolder("to \u00E9");
  openAt(0);
  dialogs.expectFolder("Copy file(s) to:", {});
  trigger("mnuEditItem_3");
  dialogs.expectFolder("Copy file(s) to:", target);
  click("btnCopy");
  EXPECT_EQ(dialogs.lastFolder, path("themes"));
  EXPECT_EQ(state.CopyMoveFolder, target);
  EXPECT_EQ(read("to \u00E9/" + kOdd), odd);
  EXPECT_EQ(theme(kOdd), odd);

  list().setSelected(2, true);
  write("to \u00E9/" + kOdd, "another");
  dialogs.expectFolder("Move file(s) to:", target);
  dialogs.expectQuestion("*", "Cancel");
  click("btnMove");
  EXPECT_EQ(theme(kOdd), odd) << "nothing is lost by a cancel";
  EXPECT_EQ(list().selectedItems(), (QList<int>{0, 2})) << "and the selection stays";
  dialogs.expectFolder("Move file(s) to:", target);
  dialogs.expectQuestion("*", "Replace", true);
  trigger("mnuEditItem_4");
  EXPECT_EQ(dialogs.lastFolder, target);
  EXPECT_EQ(listOf("to \u00E9"), (QStringList{kOdd, "d.thm"}));
  EXPECT_EQ(listed(), QStringList{"c.thm"});
  EXPECT_TRUE(list().selectedItems().isEmpty() && !shown("picPreview_0")) << "several were gone";
}

TEST_F(Files, LeaveTheNextThemeSelectedWhenOneIsDeleted) {
  addThemes("abc");
  openAt(1);
  dialogs.expectQuestion("Move \"b.thm\"*", "Cancel");
  press(Qt::Key_Delete);
  EXPECT_EQ(listed().size(), 3);
  dialogs.expectQuestion("Move \"b.thm\"*", "Move to Trash");
  press(Qt::Key_Delete);
  EXPECT_EQ(listed(), (QStringList{"a.thm", "c.thm"}));
  EXPECT_EQ(state.ThemeFilePath, path("themes/a.thm"));
  EXPECT_EQ(list().selectedItems(), QList<int>{0});
  dialogs.expectQuestion("Delete \"a.thm\" for good*", "Cancel");
  press(Qt::Key_Delete, Qt::ShiftModifier);
  EXPECT_FALSE(state.ShiftDown) << "also after a cancel";
  dialogs.expectQuestion("Delete \"a.thm\" for good*", "Delete");
  press(Qt::Key_Delete, Qt::ShiftModifier);
  EXPECT_EQ(state.ThemeFilePath, path("themes/c.thm")) << "the first follows the first";
  dialogs.expectQuestion("Delete \"c.thm\" for good*", "Delete");
  press(Qt::Key_Delete, Qt::ShiftModifier);
  EXPECT_TRUE(listed().isEmpty() && !shown("picPreview_0") && !enabled("btnDelete"));
  EXPECT_EQ(listOf("themes"), QStringList());
}

TEST_F(Files, AreRenamedInPlace) {
  const std::pair<QString, QString> cases[] = {
      {"new", "new.thm"}, {"one.two.thm", "one.thm"}, {kOdd, kOdd},       {"", "b.thm"},
      {".thm", "b.thm"},  {"b.thm", "b.thm"},         {"B.THM", "B.thm"},
  };
  for (const auto& [typed, becomes] : cases) {
    addThemes("abc");
    openActive(1);
    const QByteArray bytes = theme("b.thm");
    rename(typed);
    EXPECT_EQ(theme(becomes), bytes) << typed.toStdString();
    EXPECT_EQ(listed().size(), 3);
    const QList<int> selected = list().selectedItems();
    ASSERT_EQ(selected.size(), 1);
    EXPECT_EQ(list().item(selected[0]), becomes);
    EXPECT_EQ(state.ThemeFilePath, path("themes/b.thm")) << "until the next selection";
    EXPECT_TRUE(shown("picPreview_0"));
    browser.reset();
    EXPECT_TRUE(QFile::remove(path("themes/" + becomes)));
  }
}

TEST_F(Files, KeepTheirNamesWhereARenameIsRefused) {
  addThemes("abc");
  write("themes/elsewhere/x.txt", "x");
  openActive(1);
  const std::pair<const char*, const char*> refused[] = {
      {"a", "\"a.thm\" is already there. Choose another name."}, {"/b", "*"}, {"elsewhere/b", "*"}};
  for (const auto& [name, message] : refused) {
    dialogs.expectMessage(message);
    rename(name);
    EXPECT_EQ(listed(), (QStringList{"a.thm", "b.thm", "c.thm"})) << name;
  }
  EXPECT_EQ(listOf("themes/elsewhere"), QStringList{"x.txt"});
  rename("d");
  dialogs.expectMessage("File \"" + path("themes/b.thm") + "\" not found.");
  rename("e");
  EXPECT_EQ(listed(), (QStringList{"a.thm", "c.thm", "d.thm"})) << "the path of the theme is stale";
}

TEST_F(Files, AreRenamedOnlyUnderTheBox) {
  addThemes("ab");
  packArchive(path("themes/c.thm"), {write("pack/readme.txt", "no theme")});
  openActive(0);
  list().setSelected(0, false);
  trigger("mnuEditItem_7");
  list().setSelected(0, false);
  list().setSelected(2, false);
  select(0);
  list().setSelected(2, true);
  trigger("mnuEditItem_7");
  rename("new");
  EXPECT_EQ(listed(), (QStringList{"a.thm", "c.thm", "new.thm"})) << "the one that was inverted";
  select(1);
  trigger("mnuEditItem_7");
  press(Qt::Key_F2);
  EXPECT_FALSE(renameBox().isVisible()) << "two are selected, though one is counted";
}

TEST_F(Files, StaySelectedWhereNothingWasMoved) {
  addThemes("abc");
  openActive(1);
  dialogs.expectFolder("Move file(s) to:", path("themes"));
  click("btnMove");
  EXPECT_EQ(list().selectedItems(), QList<int>{1}) << "moved onto itself";
  const WithoutPrivilege nobody;
  dialogs.expectQuestion("Delete \"b.thm\" for good*", "Delete");
  dialogs.expectMessage("No permission to delete*");
  press(Qt::Key_Delete, Qt::ShiftModifier);
  EXPECT_EQ(list().selectedItems(), QList<int>{1});
}

TEST_F(Files, ForgetKeysThatAreLetGoElsewhere) {
  addThemes("a");
  openActive(0);
  QTest::keyPress(&list(), Qt::Key_Shift);
  QTest::keyPress(&list(), Qt::Key_Control, Qt::ShiftModifier);
  EXPECT_TRUE(state.ShiftDown && state.CtrlDown);
  QWidget other;
  other.show();
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  EXPECT_FALSE(state.ShiftDown || state.CtrlDown);
}

TEST_F(Files, GoOnWhenOthersAreTakenMeanwhile) {
  addTheme("*.thm");
  addThemes("bcde");
  openActive(0);
  dialogs.expectQuestion("Move \"*", "Move to Trash");
  press(Qt::Key_Delete);
  EXPECT_EQ(listed().size(), 4) << "the name is no pattern";
  select(3);
  QFile::remove(path("themes/b.thm"));
  QFile::remove(path("themes/c.thm"));
  dialogs.expectQuestion("Move \"e.thm\"*", "Move to Trash");
  press(Qt::Key_Delete);
  EXPECT_EQ(state.ThemeFilePath, path("themes/d.thm"));
}

TEST_F(Files, ShowTheRenameBoxOverTheirRow) {
  for (int i = 10; i < 60; ++i)
    addTheme(QString("t%1.thm").arg(i));
  openActive(45);
  const int top = list().verticalScrollBar()->value();
  press(Qt::Key_F2);
  EXPECT_EQ(renameBox().text(), "t55.thm");
  EXPECT_EQ(renameBox().pos(), QPoint(11, 42 + (45 - top) * FileListBox::kRowHeight));
  QTest::keyClick(&renameBox(), Qt::Key_Delete);
  EXPECT_EQ(renameBox().text(), "") << "the key edits the text";
  QTest::keyClick(&renameBox(), Qt::Key_Escape);
  EXPECT_FALSE(renameBox().isVisible());
  EXPECT_TRUE(list().hasFocus());
  // Whatever may mean another theme, or move its row, hides the box.
  const std::pair<const char*, std::function<void()>> hiding[] = {
      {"a menu", [this] { Q_EMIT control<QMenu>("mnuView").aboutToShow(); }},
      {"the list", [this] { list().setFocus(); }},
      {"btnPrev", [this] { click("btnPrev"); }},
      {"btnRefresh", [this] { click("btnRefresh"); }},
      {"scrolling", [this] { list().verticalScrollBar()->setValue(0); }}};
  for (const auto& [what, act] : hiding) {
    select(45);
    trigger("mnuFileItem_5");
    EXPECT_TRUE(renameBox().isVisible());
    act();
    EXPECT_FALSE(renameBox().isVisible()) << what;
  }
  list().setSelected(3, true);
  press(Qt::Key_F2);
  EXPECT_FALSE(renameBox().isVisible()) << "two are selected";
  list().setSelected(45, false);
  press(Qt::Key_F2);
  EXPECT_EQ(renameBox().text(), "t13.thm") << "the selected one, not the one clicked last";
}

TEST_F(Files, GiveTheirSourceAndImagesAway) {
  addTheme("a.thm", "<Background_image Source=\"b.gif\"/><Text Color=\"0x\xE9\"/>", false,
           {"b.gif"});
  addTheme("b.thm", {}, true);
  state.ExportFolder = makeFolder("out") + '/';
  state.ExtractFolder = path("out");
  openAt(0);
  dialogs.expectFile("Export the source XML code", {});
  click("btnExport");
  EXPECT_EQ(dialogs.lastFile.fileName, path("out/theme.xml"));
  const QString target = write("other/x.xml", QByteArray(5000, 'x'));
  dialogs.expectFile("Export the source XML code", target);
  trigger("mnuFileItem_3");
  EXPECT_EQ(QString::fromLatin1(read("other/x.xml")), state.ThemeXml);
  EXPECT_TRUE(read("other/x.xml").contains("\"0x\xE9\"/>\r\n"));
  EXPECT_EQ(state.ExportFolder, path("other/"));

  auto extract = [&](const char* pane, const char* menu, const QString& caption) {
    QTest::mouseClick(&control<PictureBox>(pane), Qt::RightButton, {}, {30, 30});
    auto& popup = control<QMenu>(menu);
    for (QAction* item : popup.actions())
      if (item->text() == caption) item->trigger();
    popup.close();
  };
  dialogs.expectFolder("Extract image to:", path("other"));
  extract("picStandby", "mnuPopup", "E&xtract Background Image...");
  EXPECT_EQ(dialogs.lastFolder, path("out"));
  EXPECT_EQ(state.ExtractFolder, path("other"));
  EXPECT_EQ(read("other/b.gif"), read("pack/b.gif"));
  select(1);
  dialogs.expectFolder("Extract image to:", path("other"));
  dialogs.expectMessage("This theme has no such image*");
  extract("picStandby2", "mnuPopup3", "Extract Wallpaper Image...");
}

TEST_F(Files, AreSentToThePhone) {
  addTheme(kOdd);
  addThemes("b");
  state.SystemFolder = makeFolder("bin");
  openAt(0);
  dialogs.expectMessage("Infrared link not detected on your PC.");
  click("btnIRSend");
  const QString log = path("sent.txt");
  const QString sender =
      write("bin/bluetooth-sendto",
            QString("#!/bin/sh\nfor f; do echo \"$f\"; done >'%1.new'; mv '%1.new' '%1'\n")
                .arg(log)
                .toUtf8());
  QFile::setPermissions(sender, QFile::Permissions(0x7755));
  list().setSelected(1, true);
  for (const bool silent : {false, true}) {
    if (silent)
      QTest::keyPress(&list(), Qt::Key_Control);
    else
      dialogs.expectMessage(
          "Activate the infrared port in your phone or another device\r\n"
          "and establish the infrared connection with your PC.");
    trigger("mnuToolsItem_1");
    EXPECT_FALSE(state.CtrlDown);
    EXPECT_TRUE(QTest::qWaitFor([&] { return QFile::exists(log); }));
    EXPECT_EQ(QString(read("sent.txt")),
              path("themes/" + kOdd) + '\n' + path("themes/b.thm") + '\n');
    QFile::remove(log);
  }
}

}  // namespace

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browserfixture.h"

#include <QApplication>
#include <QLineEdit>
#include <QTimer>

namespace quillane {

namespace {

using Commands = BrowserTest;

// A column is what was done; each begins with a refreshed list of five themes: good ones, one whose
// image is missing, one that is no archive and one without XML.
enum : int { Good = 0, Warned = 2, Damaged = 3, WithoutXml = 4 };

struct Column {
  const char* what;
  void (*act)(FileListBox& list, QAction& all, QAction& invert);
};

const Column kColumns[] = {
    {"nothing", [](FileListBox&, QAction&, QAction&) {}},
    {"one", [](FileListBox& list, QAction&, QAction&) { list.selectOnly(1); }},
    {"a warning", [](FileListBox& list, QAction&, QAction&) { list.selectOnly(Warned); }},
    {"failed", [](FileListBox& list, QAction&, QAction&) { list.selectOnly(Damaged); }},
    {"without XML", [](FileListBox& list, QAction&, QAction&) { list.selectOnly(WithoutXml); }},
    {"several at once", [](FileListBox& list, QAction&, QAction&) { list.selectEvery(); }},
    {"several after one",
     [](FileListBox& list, QAction&, QAction&) {
       list.selectOnly(1);
       list.setSelected(2, true);
     }},
    {"one taken back",
     [](FileListBox& list, QAction&, QAction&) {
       list.selectOnly(1);
       list.setSelected(1, false);
     }},
    {"all", [](FileListBox&, QAction& all, QAction&) { all.trigger(); }},
    {"all, then none",
     [](FileListBox&, QAction& all, QAction& invert) {
       all.trigger();
       invert.trigger();
     }},
};

struct Row {
  const char* controls;
  const char* on;  // By column.
};

constexpr Row kRows[] = {
    {"btnBrowse btnHome btnRefresh btnNew btnViewXML mnuFileItem_1 mnuFileItem_10 mnuEditItem_6 "
     "mnuEditItem_7 mnuEditItem_9 mnuToolsItem_5 mnuViewItem_1 mnuViewItem_3 mnuNaviItem_4 "
     "mnuNaviItem_5 "
     "mnuHelpItem_1 "
     "mnuHelpItem_5 mnuHelpItemInternet_1 mnuHelpItemInternet_2",
     "1111111111"},
    {"btnEdit btnExport btnClipboardCopy btnProperties", "011 0 0 0 0 1 0 0"},
    {"btnPrev btnNext mnuNaviItem_1 mnuNaviItem_2", "011 0 0 0 0 1 0 0"},
    {"btnCopy btnMove btnDelete", "011 1 1 0 1 1 1 0"},
    {"btnIRSend", "011 0 0 0 1 1 0 0"},
    {"mnuFileItem_2 mnuFileItem_3 mnuFileItem_8 mnuEditItem_1 mnuToolsItem_2", "011 0 0 0 0 0 0 0"},
    {"mnuFileItem_5", "011 1 0 0 0 0 0 0"},
    {"mnuFileItem_6 mnuEditItem_3 mnuEditItem_4", "011 1 0 1 1 0 1 0"},
    {"mnuToolsItem_1", "011 0 0 1 1 0 1 0"},
};

TEST_F(Commands, FollowTheSelection) {
  addThemes("ab");
  addTheme("c.thm", "<Background_image Source=\"gone.gif\"/>");
  addDamaged("d.thm");
  packArchive(path("themes/e.thm"), {write("pack/readme.txt", "no theme")});
  open();
  auto& all = control<QAction>("mnuEditItem_6");
  auto& invert = control<QAction>("mnuEditItem_7");
  for (std::size_t column = 0; column < std::size(kColumns); ++column) {
    click("btnRefresh");
    kColumns[column].act(list(), all, invert);
    for (const Row& row : kRows) {
      const bool wanted = QString(row.on).remove(' ').at(static_cast<int>(column)) == '1';
      for (const QString& name : QString(row.controls).split(' ')) {
        const auto* button = browser->findChild<QWidget*>(name);
        const auto* item = browser->findChild<QAction*>(name);
        ASSERT_TRUE(button || item) << name.toStdString();
        EXPECT_EQ(button ? button->isEnabled() : item->isEnabled(), wanted)
            << name.toStdString() << ": " << kColumns[column].what;
      }
    }
  }
}

TEST_F(Commands, OfferTheImageWizardWherePicturesCanBeWritten) {
  for (const bool present : {false, true}) {
    state.IViewPresent = present;
    open();
    EXPECT_EQ(control<QAction>("mnuToolsItem_4").isEnabled(), present);
  }
}

TEST_F(Commands, ShowTheThemeAnewAfterThePreferences) {
  addThemes("a");
  state.QualitiesFile = path("qualities.ini");
  for (const bool selected : {false, true}) {
    open();
    if (selected) select(0);
    const auto closeWith = [this](const char* button, const QString& name) {
      QTimer::singleShot(0, browser.get(), [=] {
        QWidget& form = *QApplication::activeModalWidget();
        controlOf<QLineEdit>(form, "txtOperatorName").setText(name);
        controlOf<QAbstractButton>(form, button).click();
      });
      trigger("mnuEditItem_9");
      return control<PictureBox>("picStandby").surface().image();
    };
    const QImage before = closeWith("btnCancel", "Other");
    EXPECT_EQ(closeWith("btnOK", "Other") != before, selected);
    EXPECT_EQ(closeWith("btnOK", "World"), before);
  }
}

TEST_F(Commands, ShowPagesAndSayWhenThereIsNone) {
  state.HelpFolder = path("help/");
  open();
  dialogs.expectMessage("The help page \"*");
  trigger("mnuHelpItem_1");
  write("help/index.html", "<html>");
  dialogs.expectPage("file://" + path("help/index.html"));
  trigger("mnuHelpItem_1");
  dialogs.expectPage("https://quillane.example/");
  trigger("mnuHelpItemInternet_1");
  dialogs.opensPages = false;
  dialogs.expectPage("https://quillane.example/forum/");
  dialogs.expectMessage("No program was found that shows \"https://quillane.example/forum/\"*");
  trigger("mnuHelpItemInternet_2");
}

}  // namespace

}  // namespace quillane

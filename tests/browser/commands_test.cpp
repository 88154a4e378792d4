// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browserfixture.h"

#include <QApplication>
#include <QLineEdit>
#include <QTimer>

namespace quillane {

namespace {

class Commands : public BrowserTest {
 protected:
  /// A digit selects a theme or takes that back, "*" selects every one, "A" and "I" are the menu's
  /// ways to select all and to invert.
  void act(QChar step) {
    const int index = step.digitValue();
    if (step == '*')
      list().selectEvery();
    else if (index < 0)
      trigger(step == 'A' ? "mnuEditItem_6" : "mnuEditItem_7");
    else
      list().setSelected(index, !list().selectedItems().contains(index));
  }
};

// A column is what was done; each begins with a refreshed list of five themes: two good ones, one
// whose image is missing, one that is no archive and one without XML.
const std::pair<const char*, QString> kColumns[] = {{"nothing", ""},
                                                    {"one", "1"},
                                                    {"a warning", "2"},
                                                    {"failed", "3"},
                                                    {"without XML", "4"},
                                                    {"several at once", "*"},
                                                    {"several after one", "12"},
                                                    {"one taken back", "11"},
                                                    {"all", "A"},
                                                    {"all, then none", "AI"}};

struct Row {
  const char* controls;
  const char* on;  // By column.
};

constexpr Row kRows[] = {
    {"btnBrowse btnHome btnRefresh btnNew btnViewXML mnuFileItem_1 mnuFileItem_10 mnuEditItem_6 "
     "mnuEditItem_7 mnuEditItem_9 mnuToolsItem_5 mnuViewItem_1 mnuViewItem_3 mnuNaviItem_4 "
     "mnuNaviItem_5 mnuHelpItem_1 mnuHelpItem_5 "
     "mnuHelpItemInternet_1 mnuHelpItemInternet_2",
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
  for (std::size_t column = 0; column < std::size(kColumns); ++column) {
    const auto& [what, steps] = kColumns[column];
    click("btnRefresh");
    for (const QChar step : steps)
      act(step);
    for (const Row& row : kRows) {
      const bool wanted = QString(row.on).remove(' ').at(static_cast<int>(column)) == '1';
      for (const QString& name : QString(row.controls).split(' ')) {
        const auto* button = browser->findChild<QWidget*>(name);
        const auto* item = browser->findChild<QAction*>(name);
        ASSERT_TRUE(button || item) << name.toStdString();
        EXPECT_EQ(button ? button->isEnabled() : item->isEnabled(), wanted)
            << name.toStdString() << ": " << what;
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

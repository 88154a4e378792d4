// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browserfixture.h"
#include "support/hostilethemes.h"

#include <QFileInfo>
#include <QTest>

namespace quillane {

namespace {

class Selection : public BrowserTest {
 protected:
  /// Which of the buttons that follow the selection are on.
  QString buttons() {
    QString on;
    for (const char* name : {"btnPrev", "btnNext", "btnClipboardCopy"})
      on += enabled(name) ? name[3] : '-';
    return on;
  }
};

TEST_F(Selection, LoadsOneTheme) {
  addThemes("ac");
  addTheme("b.thm", "<Background Color=\"0x102030\"/>");
  open();
  EXPECT_EQ(label("lblNoThemes"), "Number of themes: 3");
  select(1);
  EXPECT_EQ(state.ThemeFilePath, path("themes/b.thm"));
  EXPECT_EQ(state.ThemeXmlPath, path("temp/theme.xml"));
  EXPECT_EQ(state.PreviewEngine2->color(gen2::BackgroundColor), "102030");
  EXPECT_EQ(label("lblSize"), "2.0 KB (2048 bytes)");
  EXPECT_EQ(buttons(), "PNC");
  EXPECT_EQ(statusIcon(), '-');
  list().setSelected(1, false);
  EXPECT_TRUE(shown("picPreview_0") && painted("picStandby")) << "nothing selected, all stays";
  EXPECT_EQ(buttons(), "PNC");
}

TEST_F(Selection, EnablesSteppingByThePlaceInTheList) {
  addThemes("ab");
  openAt(0);
  EXPECT_EQ(buttons(), "-NC");
  EXPECT_FALSE(control<QAction>("mnuNaviItem_1").isEnabled());
  click("btnNext");
  EXPECT_EQ(state.ThemeFilePath, path("themes/b.thm"));
  EXPECT_EQ(buttons(), "P-C");
  EXPECT_EQ(list().selectedItems(), QList<int>{1});
  trigger("mnuNaviItem_1");
  EXPECT_EQ(state.ThemeFilePath, path("themes/a.thm"));
}

TEST_F(Selection, WalksWithTheArrowKeys) {
  addThemes("ac");
  addTheme("b.thm", {}, true);
  open();
  QTest::keyClick(&list(), Qt::Key_Down);
  EXPECT_EQ(list().selectedItems(), QList<int>{0}) << "the first arrow";
  click("btnNext");
  EXPECT_EQ(state.ThemeGeneration, Generation::ThreeG);
  QTest::keyClick(&list(), Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(list().selectedItems(), (QList<int>{1, 2})) << "from the item stepped to";
}

TEST_F(Selection, ReportsDamageWithoutAMessage) {
  addDamaged("a.thm");
  addTheme("b.thm", {}, true);
  openAt(1);
  select(0);
  EXPECT_EQ(statusIcon(), 'E');
  EXPECT_EQ(tip(),
            "The file you attempted to open could not be read or does not contain valid TAR data.");
  EXPECT_EQ(browser->findChild<cTooltips*>()->title(), "UnTAR operation error 4");
  EXPECT_EQ(dialogs.beeps, 1);
  EXPECT_EQ(buttons(), "---");
  EXPECT_EQ(label("lblSize"), "");
  EXPECT_TRUE(shown("picPreview_1") && painted("picStandby2")) << "3G panes keep their drawing";
}

TEST_F(Selection, SelectAllForgetsAFailure) {
  packArchive(path("themes/a.thm"), {write("pack/x.gif", "GIF")});
  openAt(0);
  EXPECT_EQ(tip(), "This theme does not contain an XML file.");
  EXPECT_EQ(browser->findChild<cTooltips*>()->title(), "Error in theme file \"a.thm\"");
  EXPECT_EQ(statusIcon(), 'E');
  trigger("mnuEditItem_6");
  EXPECT_EQ(statusIcon(), '-');
  EXPECT_TRUE(control<QAction>("mnuEditItem_1").isEnabled()) << "one is selected, none has failed";
}

TEST_F(Selection, WarnsOfMissingImagesAndShowsTheTheme) {
  addTheme("a.thm", "<Wallpaper_image Source=\"w.gif\"/><Title_image Source=\"t.gif\"/>", true);
  openAt(0);
  EXPECT_EQ(statusIcon(), 'W');
  EXPECT_EQ(tip(),
            "Wallpaper image defined, file \"w.gif\" not found.\r\n"
            "Title image defined, file \"t.gif\" not found.");
  EXPECT_EQ(dialogs.beeps, 0);
  EXPECT_TRUE(painted("picStandby2"));
}

TEST_F(Selection, SumsSeveral) {
  addThemes("abc");
  openAt(0);
  list().setSelected(2, true);
  EXPECT_EQ(label("lblNoThemes"), "Number of themes: 3 (Number of selected themes: 2)");
  EXPECT_EQ(label("lblSize"), "4.0 KB (4096 bytes)");
  EXPECT_EQ(buttons(), "---");
  EXPECT_FALSE(shown("picPreview_0") || shown("picPreview_1"));
  list().setSelected(0, false);
  EXPECT_EQ(state.ThemeFilePath, path("themes/c.thm")) << "one remains and is loaded";
  EXPECT_TRUE(shown("picPreview_0"));
}

TEST_F(Selection, SelectsAllAndInvertsWithoutLoading) {
  addThemes("ab");
  openAt(0);
  trigger("mnuEditItem_7");
  EXPECT_EQ(list().selectedItems(), QList<int>{1});
  EXPECT_EQ(label("lblNoThemes"), "Number of themes: 2 (Number of selected themes: 1)");
  EXPECT_EQ(state.ThemeFilePath, path("themes/a.thm")) << "nothing is loaded";
  trigger("mnuEditItem_6");
  EXPECT_EQ(label("lblSize"), "4.0 KB (4096 bytes)");
  EXPECT_TRUE(shown("picPreview_0")) << "the container stays";
  EXPECT_FALSE(painted("picStandby"));
  trigger("mnuEditItem_7");
  EXPECT_EQ(label("lblNoThemes"), "Number of themes: 2");
  EXPECT_EQ(label("lblSize"), "");
}

TEST_F(Selection, ShowsAFaultOnceInALoad) {
  packArchive(
      path("themes/a.thm"),
      {write("pack/a.xml", "<Sony_Ericsson_theme><Statusbar_background_image Source=\"bad.gif\"/>"),
       write("pack/bad.gif", "no picture")});
  dialogs.expectMessage("*");
  openAt(0);
  EXPECT_TRUE(shown("picPreview_1"));
}

/// Takes every message for read.
class PatientDialogs : public ScriptedDialogs {
 public:
  void message(QWidget*, MessageIcon, const QString&, const QString&) override { ++messages; }
  int messages = 0;
};

TEST_F(Selection, WalksOverHostileThemes) {
  const std::vector<HostileTheme> themes = hostileThemes();
  PatientDialogs patient;
  for (std::size_t at = 0; at < themes.size(); ++at)
    write(QString("themes/%1.thm").arg(at, 3, 10, QChar('0')), themes[at].bytes);
  addTheme("good.thm", {}, true);
  browser = std::make_unique<frmBrowser>(state, settings, patient, world, QString());
  for (int at = 0; at < static_cast<int>(themes.size()); ++at) {
    const HostileTheme& theme = themes[static_cast<std::size_t>(at)];
    SCOPED_TRACE(theme.name);
    const int before = patient.messages;
    select(at);
    EXPECT_EQ(statusIcon() == 'E', *theme.error != '\0');
    EXPECT_EQ(tip().left(static_cast<qsizetype>(qstrlen(theme.error))), theme.error);
    EXPECT_LE(patient.messages - before, 2) << "each text is told once";
  }
  select(static_cast<int>(themes.size()));
  EXPECT_EQ(statusIcon(), '-');
  EXPECT_TRUE(painted("picStandby2"));
  EXPECT_EQ(listOf("temp"), QStringList("theme.xml"));
  EXPECT_FALSE(QFile::exists(path("escaped.xml")));
}

}  // namespace

}  // namespace quillane

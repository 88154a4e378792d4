// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/frmtarwizard.h"

#include "support/controls.h"
#include "support/desktest.h"
#include "support/scripteddialogs.h"
#include "theme/archive.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>

namespace quillane {

namespace {

class TarWizard : public DeskTest {
 protected:
  TarWizard() {
    state.TARWizFilesFolder = makeFolder("files") + '/';
    form = std::make_unique<frmTARWizard>(nullptr, state, dialogs);
    form->show();
  }

  void click(const char* button) { controlOf<QAbstractButton>(*form, button).click(); }
  bool enabled(const char* button) { return controlOf<QWidget>(*form, button).isEnabled(); }
  QListWidget& list() { return controlOf<QListWidget>(*form, "lstFiles"); }
  QString log() { return controlOf<QPlainTextEdit>(*form, "txtInfo").toPlainText(); }
  /// The page in view and what heads it: "1 TAR Wizard - Step 1|File list|&Next".
  QString step() {
    QString shown;
    for (int page = 0; page < 3; ++page)
      if (controlOf<QWidget>(*form, QString("picTab_%1").arg(page)).isVisible())
        shown += QString::number(page);
    return shown + ' ' + controlOf<QLabel>(*form, "lblHeader_0").text() + '|' +
           controlOf<QLabel>(*form, "lblHeader_1").text() + '|' +
           controlOf<QAbstractButton>(*form, "btnNext").text();
  }
  void add(const QString& name, const QByteArray& bytes) {
    dialogs.expectFile("Select file to add", write(name, bytes));
    click("btnAdd");
  }
  QStringList membersOf(const QString& theme) {
    QStringList names;
    for (const ArchiveMember& member : listArchive(theme).members)
      names << QString("%1 %2").arg(member.name).arg(member.size);
    return names;
  }

  ScriptedDialogs dialogs;
  std::unique_ptr<frmTARWizard> form;
};

const QString kFirst = "0 Welcome to TAR Wizard|Introduction|&Next";
const QString kSecond = "1 TAR Wizard - Step 1|File list|&Next";
const QString kThird = "2 TAR Wizard - Step 2|Creating theme - TAR archive|OK";

TEST_F(TarWizard, PacksWhatWasPicked) {
  EXPECT_EQ(step(), kFirst);
  EXPECT_FALSE(enabled("btnPrev"));
  click("btnNext");
  EXPECT_EQ(step(), kSecond);
  dialogs.expectMessage("Add at least one file to the list.");
  click("btnNext");
  add("files/My Theme.XML", "<Ericsson_theme/>");
  add("more/B.gif", "1234");
  EXPECT_EQ(state.TARWizFilesFolder, path("more/"));
  dialogs.expectFile("", {});
  click("btnNext");
  EXPECT_EQ(step(), kSecond) << "cancelled";
  controlOf<QCheckBox>(*form, "chkIndexFile").setChecked(true);
  const QString theme = write("a.thm", "old");
  dialogs.expectFile("", theme);
  click("btnNext");
  EXPECT_EQ(step(), kThird);
  EXPECT_EQ(membersOf(theme), (QStringList{"index.txt 30", "my theme.xml 17", "b.gif 4"}));
  EXPECT_TRUE(read("a.thm").contains("my theme.xml <17>\r\nb.gif <4>\r\n"));

  click("btnPrev");
  EXPECT_EQ(step(), kSecond);
  controlOf<QCheckBox>(*form, "chkIndexFile").setChecked(false);
  dialogs.expectFile("", theme);
  click("btnNext");
  EXPECT_EQ(log().count("successfuly"), 2) << "it adds to the log";
  EXPECT_EQ(membersOf(theme), (QStringList{"my theme.xml 17", "b.gif 4"}));
  click("btnNext");
  EXPECT_FALSE(form->isVisible());
}

TEST_F(TarWizard, RemovesTheMarkedFileOrTheLast) {
  click("btnNext");
  for (const char* name : {"files/a", "files/b", "files/c"})
    add(name, "x");
  list().setCurrentRow(0);
  click("btnRemove");
  EXPECT_EQ(list().item(0)->text(), path("files/b"));
  click("btnRemove");
  EXPECT_EQ(list().count(), 1) << "nothing is marked, the last goes";
  EXPECT_EQ(list().item(0)->text(), path("files/b"));
  click("btnRemove");
  EXPECT_FALSE(enabled("btnRemove"));
  click("btnPrev");
  EXPECT_EQ(step(), kFirst);
}

TEST_F(TarWizard, KeepsTheOldThemeWhenAFileIsGone) {
  click("btnNext");
  add("files/a.xml", "x");
  QFile::remove(path("files/a.xml"));
  const QString theme = write("a.thm", "old");
  for (const bool index : {false, true}) {
    controlOf<QCheckBox>(*form, "chkIndexFile").setChecked(index);
    dialogs.expectFile("", theme);
    if (index) dialogs.expectMessage("File \"" + path("files/a.xml") + "\" not found.*");
    click("btnNext");
    EXPECT_EQ(read("a.thm"), "old");
    EXPECT_EQ(log().contains("successfuly"), !index) << log().toStdString();
    click("btnPrev");
  }
}

}  // namespace

}  // namespace quillane

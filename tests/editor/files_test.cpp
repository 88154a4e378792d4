// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "editorfixture.h"
#include "support/hindrance.h"
#include "theme/tags.h"
#include "theme/writer.h"

#include <QClipboard>
#include <QMimeData>

namespace quillane {

namespace {

class EditorFiles : public EditorTest {
 protected:
  /// How the last file dialog was filled.
  QStringList offered() const {
    const auto& fields = dialogs.lastFile;
    return {fields.folder, fields.fileName, fields.extension, fields.filter};
  }
  void clickFor(const QString& button, const QString& title, const QString& file) {
    dialogs.expectFile(title, file);
    click(button);
  }
  /// A text as a text box gives it back.
  static QString lines(QString text) { return text.remove('\r'); }
  QString captionOf(const QString& file) const { return "Theme Editor [" + path(file) + ']'; }
};

const char* const kSourceFilter = "XML file (*.xml)|*.xml|Text file (*.txt)|*.txt";

TEST_F(EditorFiles, NewThemeIsSaved) {
  for (const Generation which : kBoth) {
    state.AppTempFolder = makeFolder("temp") + '/';
    openNew(which);
    const QString home = path("home") + '/';
    const QString filter = "Theme files (*.thm)|*.thm";
    control<QLineEdit>("txtThemeName").setText(QString::fromUtf8("Caf\u00E9"));
    pick("TimeOut", "103A5E");
    const bool is2 = which == Generation::Two;
    state.IncludeIndexFile = is2;
    state.CompressXMLCode = !is2;
    choose(3, gif("Pic.gif", is2 ? QSize(101, 27) : QSize(128, 127)));
    clickFor("btnSave_0", "Save theme file", {});
    EXPECT_EQ(offered(), QStringList({home, "New Theme.thm", ".thm", filter}));
    EXPECT_EQ(dialogs.lastFile.question, FileQuestion::Save);
    clickFor("btnSave_1", "Save theme file as", {});
    EXPECT_EQ(offered()[1], "New Theme.thm");
    EXPECT_EQ(caption(), "Theme Editor [New Theme]");
    clickFor("btnSave_0", "Save theme file", home + "My.first.try.thm");
    EXPECT_EQ(listOf("home"), QStringList("My.thm"));
    EXPECT_EQ(caption(), captionOf("home/My.thm"));
    LoadedTheme theme = saved("home/My.thm");
    EXPECT_EQ(contentOf(theme.values), contentOf(engine().values()).replaceInStrings("Pic", "pic"));
    EXPECT_EQ(readThemeTags(theme.xml, faults.reporter())[0], QString::fromUtf8("Caf\u00E9"));
    EXPECT_EQ(listOf("again").contains("index.txt"), is2);
    EXPECT_EQ(read("again/my.xml").contains('\n'), is2);
    EXPECT_EQ(originButtons(), "Reset Import Paste");

    pick("TimeOut", "5E3A10");
    click("btnSave_0");  // To the same place, without a dialog.
    theme = saved("home/My.thm");
    EXPECT_EQ(contentOf(theme.values), contentOf(engine().values()).replaceInStrings("Pic", "pic"));
    clickFor("btnSave_1", "Save theme file as", makeFolder("other") + "/Copy.thm");
    EXPECT_EQ(offered()[1], "My.thm");
    EXPECT_EQ(caption(), captionOf("other/Copy.thm"));
    EXPECT_EQ(saved("other/Copy.thm").xml, theme.xml);
    EXPECT_FALSE(listOf("temp").contains("new"));
    QFile::remove(path("home/My.thm"));
  }
}

TEST_F(EditorFiles, OpenedThemeIsSavedOverTheOneOnShow) {
  for (const Generation which : kBoth) {
    const bool is2 = which == Generation::Two;
    const QSize size = is2 ? QSize(101, 20) : QSize(128, 127);
    const QByteArray image = is2 ? "Title_image_small" : "Wallpaper_image";
    showTheme(which, "Own.thm", '<' + image + " Source=\"back.gif\"/><Text Color=\"0x123456\"/>",
              {{"back.gif", size}});
    const QStringList shown = contentOf(shownEngine().values());
    const QByteArray old = read("themes/Own.thm");
    open(true);
    pick("DisabledText", "445566");
    // 3G takes a colour that is not there for black, which nothing black can be read on.
    for (const char* stem : {"OperatorName", "DesktopTitle", "Title", "Background", "Highlight",
                             "PopupTitle", "PopupBackground"})
      pick(stem, is2 ? "C0C080" : "FFFFFF");
    ASSERT_TRUE(enabled("btnSave_0"));
    pick("Time", "000000");
    {
      // In a folder that cannot be written to the old theme stays, and nobody is asked.
      ASSERT_TRUE(QFile::setPermissions(path("temp"), QFile::Permissions(0x7777)));
      ASSERT_TRUE(QFile::setPermissions(path("themes"), QFile::Permissions(0x5555)));
      const WithoutPrivilege nobody;
      testing::internal::CaptureStderr();
      click("btnSave_0");
      EXPECT_NE(testing::internal::GetCapturedStderr().find("quillane: "), std::string::npos);
    }
    ASSERT_TRUE(QFile::setPermissions(path("themes"), QFile::Permissions(0x7755)));
    EXPECT_EQ(read("themes/Own.thm"), old);
    click("btnSave_0");
    EXPECT_EQ(contentOf(saved("themes/Own.thm").values), contentOf(engine().values()));
    EXPECT_TRUE(read("again/index.txt").contains("back.gif "));
    EXPECT_EQ(listOf("themes"), QStringList("Own.thm"));
    EXPECT_EQ(contentOf(shownEngine().values()), shown);
    EXPECT_NE(contentOf(engine().values()), shown);

    // Back to what the browser shows, not to what was saved.
    click("btnRevert");
    EXPECT_EQ(contentOf(engine().values()), shown);
    EXPECT_EQ(source(), lines(state.ThemeXml));
    EXPECT_EQ(text("txtTextClr"), "123456");
    EXPECT_EQ(slotFiles(), is2 ? "2back" : "1back");
  }
}

TEST_F(EditorFiles, NameWithTwoPointsLosesAllBehindTheFirst) {
  showTheme(Generation::Two, "a.b.thm", {});
  const QByteArray old = read("themes/a.b.thm");
  open(true);
  click("btnSave_0");
  EXPECT_EQ(listOf("themes"), QStringList({"a.b.thm", "a.thm"}));
  EXPECT_EQ(read("themes/a.b.thm"), old);
  EXPECT_EQ(caption(), captionOf("themes/a.thm"));

  // What is left of another name belongs to somebody else's theme: the dialog asks about that one.
  const QByteArray taken = read("themes/a.thm");
  dialogs.expectFile("Save theme file as", path("themes/a.c.thm"));
  dialogs.expectFile("Save theme file as", QString());
  click("btnSave_1");
  EXPECT_EQ(offered().mid(0, 2), QStringList({path("themes/"), "a.thm"}));
  EXPECT_EQ(read("themes/a.thm"), taken);
}

TEST_F(EditorFiles, FaultsBeforeThePackingAreTold) {
  openNew(Generation::Two);
  choose(1, gif("gone.gif", {101, 80}));
  QFile::remove(path("images/gone.gif"));
  dialogs.expectFile("Save theme file", path("home/a.thm"));
  dialogs.expectMessage("*");
  click("btnSave_0");
  EXPECT_EQ(caption(), "Theme Editor [New Theme]");
  EXPECT_EQ(listOf("home"), QStringList());
  EXPECT_EQ(dialogs.icon, MessageIcon::Stop);
  EXPECT_TRUE(dialogs.text.contains("\r\nin Quillane.frmEditor.btnSave_Click at line "));
}

TEST_F(EditorFiles, SourceIsShownAndCopied) {
  for (const Generation which : kBoth) {
    openNew(which);
    const QString first = source();
    EXPECT_EQ(first, lines(generateXml(ThemeValues(which), {})));
    pick("Text", "7F0000");
    EXPECT_EQ(source(), first);
    click("btnRefresh");
    EXPECT_TRUE(source().contains("<Text Color=\"0x7F0000\"/>"));
    control<QLineEdit>("txtThemeName").setText("N");
    click("btnCopy");
    EXPECT_TRUE(source().contains("<Theme_name Name=\"N\"/>"));
    EXPECT_EQ(lines(QApplication::clipboard()->text()), source());
    click("btnReset");
    EXPECT_EQ(text("txtTextClr"), "000000");
    EXPECT_TRUE(source().contains("<Text Color=\"0x000000\"/>"));
  }
}

TEST_F(EditorFiles, SourceIsExported) {
  for (const Generation which : kBoth) {
    state.ExportFolder = path("exported/");
    openNew(which);
    control<QLineEdit>("txtThemeName").setText(QString::fromUtf8("Caf\u00E9"));
    clickFor("btnExport", "Export the source XML code", {});
    EXPECT_EQ(offered(), QStringList({path("exported/"), "*.xml", ".xml", kSourceFilter}));
    EXPECT_FALSE(source().contains("Theme_name"));
    write("out/a.xml", QByteArray(50'000, 'x'));
    clickFor("btnExport", "Export the source XML code", path("out/a.xml"));
    EXPECT_EQ(state.ExportFolder, path("out/"));
    EXPECT_EQ(lines(QString::fromLatin1(read("out/a.xml"))), source());
    EXPECT_TRUE(read("out/a.xml").contains("\"Caf\xE9\""));
    dialogs.expectFile("Export the source XML code", path("nowhere/a.xml"));
    dialogs.expectMessage("*");
    click("btnExport");
    const char* const name = which == Generation::Two ? "frmEditor" : "frmEditor2";
    EXPECT_TRUE(dialogs.text.contains(QString("in Quillane.%1.btnExport_Click").arg(name)));
  }
}

// Only colours come in; the buttons keep the pictures that the engine has lost.
TEST_F(EditorFiles, SourceComesFromAFileAndFromTheClipboard) {
  struct Case {
    Generation which;
    const char* source;
    bool taken;
  };
  const Case cases[] = {
      {Generation::Two, "<Ericsson_theme><Text Color=\"0x7F0102\"/></Ericsson_theme>", true},
      {Generation::Two, "<?x?><ERICSSON_theme><Text Color=\"0x7F0102\"/>", true},
      {Generation::Two, "<Ericsson_theme ><Text Color=\"0x7F0102\"/>", false},
      {Generation::Two, "<Sony_Ericsson_theme><Text Color=\"0x7F0102\"/>", false},
      {Generation::ThreeG, "<Sony_Ericsson_theme version=\"1\"><Text Color=\"0x7F0102\"/>", true},
      {Generation::ThreeG, "<Ericsson_theme><Text Color=\"0x7F0102\"/></Ericsson_theme>", false}};
  for (const Case& row : cases)
    for (const bool paste : {false, true}) {
      state.ImportFolder = path("imported/");
      openNew(row.which);
      const int desktop = row.which == Generation::Two ? 1 : 3;
      const QSize size = row.which == Generation::Two ? QSize(101, 80) : QSize(128, 127);
      choose(desktop, gif("a.gif", size));
      if (paste) {
        auto* const picture = new QMimeData;
        picture->setImageData(QImage(1, 1, QImage::Format_RGB32));
        QApplication::clipboard()->setMimeData(picture);
        dialogs.expectMessage("No source XML code found.");
        click("btnPaste");
        QApplication::clipboard()->setText(row.source);
        if (!row.taken) dialogs.expectMessage("The Clipboard does not contain the right XML code.");
        click("btnPaste");
      } else {
        clickFor("btnImport", "Import the source XML code from a file", {});
        EXPECT_EQ(offered(), QStringList({path("imported/"), "*.xml", "", kSourceFilter}));
        const QString file = write("in/a.xml", row.source);
        dialogs.expectFile("Import the source XML code from a file", file);
        if (!row.taken)
          dialogs.expectMessage("File \"" + file + "\" does not contain the right XML code.");
        click("btnImport");
        EXPECT_EQ(state.ImportFolder, path("in/"));
      }
      if (!row.taken) {
        EXPECT_EQ(dialogs.icon, MessageIcon::Warning);
      }
      EXPECT_EQ(text("txtTextClr"), QString(row.taken ? "7F0102" : "000000")) << row.source;
      EXPECT_EQ(slotFiles(), QString("%1a").arg(desktop) + (row.taken ? "!" : ""));
      EXPECT_EQ(source().contains("7F0102"), row.taken);
      EXPECT_EQ(state.ThemeXml, QString());
      // What a source leaves out has its default in generation 2 and nothing in 3G.
      EXPECT_EQ(text("txtHighlightTextClr"),
                row.taken && row.which == Generation::ThreeG ? "" : "FFFFFF");
    }
}

}  // namespace

}  // namespace quillane

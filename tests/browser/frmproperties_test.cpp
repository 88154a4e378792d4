// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/frmproperties.h"

#include "forms/filelistbox.h"
#include "forms/imagebox.h"
#include "support/controls.h"
#include "support/desktest.h"
#include "support/scripteddialogs.h"
#include "support/tinygif.h"
#include "theme/load.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>
#include <QTextBlock>
#include <QTextEdit>
#include <QTextLayout>

namespace quillane {

namespace {

constexpr QSize kPicture(12, 7);

class Properties : public DeskTest {
 protected:
  /// Makes a theme that the browser has just loaded, of elements as in "Title_image=t.gif" and the
  /// files that lie in the work folder beside its XML.
  void load(const QStringList& elements, bool is3G, const QStringList& files) {
    QByteArray xml = is3G ? "<Sony_Ericsson_theme>" : "<Ericsson_theme>";
    for (const QString& element : elements)
      xml += '<' + element.toUtf8().replace('=', " Source=\"") + "\"/>";
    state.ThemeXmlPath = write("temp/Theme.xml", xml);
    state.ThemeFilePath = write("themes/some.thm", QByteArray(1536, 'x'));
    for (const QString& file : files)
      write("temp/" + file, tinyGif(kPicture, QRect({}, kPicture), 1));
    const auto theme = loadTheme(state.AppTempFolder, state.ImageState, faults.reporter());
    state.ThemeXml = theme->xml;
    state.ThemeGeneration = theme->values.schema().generation;
    if (is3G)
      state.PreviewEngine3G->takeTheme(theme->values);
    else
      state.PreviewEngine2->takeTheme(theme->values);
  }
  /// A second opening is one of the same window.
  void open() {
    if (!form) form = std::make_unique<frmProperties>(nullptr, state, dialogs);
    form->show();
  }
  /// Selects files by name.
  void select(const QStringList& names) {
    list().clearSelection();
    for (int index = 0; index < list().listCount(); ++index)
      if (names.contains(list().item(index))) list().setSelected(index, true);
  }

  template <class Control>
  Control& control(const char* name) {
    return controlOf<Control>(*form, name);
  }
  FileListBox& list() { return control<FileListBox>("filFiles"); }
  ImageBox& picture() { return control<ImageBox>("imgPreview"); }
  QString label(const char* name) { return control<QLabel>(name).text(); }
  QString field(const char* name) { return control<QLineEdit>(name).text(); }
  QStringList details() {
    return {label("lblFileDescription"), label("lblFileSize"), label("lblDimension")};
  }
  /// Which preview is on show: 'P'icture, 'T'ext, 'F'ault, or '-' for none.
  QString preview() {
    QString shown;
    for (const auto& [name, letter] :
         {std::pair{"imgPreview", 'P'}, {"txtPreview", 'T'}, {"lblFault", 'F'}})
      if (!control<QWidget>(name).isHidden()) shown += letter;
    return shown.isEmpty() ? "-" : shown;
  }
  void extract() { control<QPushButton>("btnExtract").click(); }

  ScriptedDialogs dialogs;
  std::unique_ptr<frmProperties> form;
};

TEST_F(Properties, TellsWhichImageAFileServesAs) {
  const struct {
    bool is3G;
    QStringList elements;  ///< Which of them name the file.
    QString description;
  } cases[] = {
      {false, {"Desktop_background_image"}, "Desktop image"},
      {false, {"Background_image", "Desktop_background_image"}, "Background/desktop image"},
      {false, {"Title_image_medium", "Title_image_asian"}, "Title medium image"},
      {false, {"Title_image_large", "Title_image_asian"}, "Title large/asian image"},
      {true, {"Wallpaper_image", "Softkeys_background_image"}, "Wallpaper image"},
      {true, {"General_background_image", "Desktop_background_image"}, "Background/desktop image"},
      {true, {"Morelist_popup_highlight_image"}, "Popup highlight image"},
  };
  for (const auto& [is3G, elements, description] : cases) {
    load(QStringList(elements).replaceInStrings(QRegularExpression("$"), "=a.gif"), is3G,
         {"a.gif"});
    open();
    select({"a.gif"});
    EXPECT_EQ(details(), QStringList({"Description: " + description, "Size: 0.1 KB (87 bytes)",
                                      "Dimension: 12 x 7 pixels"}));
    EXPECT_EQ(preview(), "P");
    form->hide();
  }
}

TEST_F(Properties, TellsWhatOtherFilesServeAs) {
  load({"Title_image=x.gif"}, false, {"INDEX.TXT", "other.gif", ".point.gif"});
  open();
  const std::tuple<QString, QString, QString> cases[] = {{"Theme.xml", "Source XML Code", "T"},
                                                         {"INDEX.TXT", "Theme index file", "T"},
                                                         {"other.gif", "", "-"},
                                                         {".point.gif", "", "-"}};
  for (const auto& [file, description, shown] : cases) {
    select({file});
    EXPECT_EQ(label("lblFileDescription"), "Description: " + description);
    EXPECT_EQ(label("lblDimension"), "Dimension: ");
    EXPECT_EQ(preview(), shown);
    EXPECT_TRUE(control<QWidget>("btnExtract").isEnabled());
  }
}

TEST_F(Properties, ShowsTagsAndDates) {
  const struct {
    QByteArray tags;
    QStringList texts;  ///< Name, creator, modified by, created, modified.
  } cases[] = {
      {"", {"n/a", "n/a", "n/a", "5.3.2004 17:08", "n/a"}},
      {"<Theme_name Name=\"Sky\"/><Theme_creator Name=\"Ann\"/><Theme_modified_by Name=\"Bob\"/>"
       "<Theme_created Time=\"1.2.2003 04:05\"/>",
       {"Sky", "Ann", "Bob", "1.2.2003 04:05", "5.3.2004 17:08"}},
      {"<Theme_name Name=\"<b>\n&amp;\"/><Theme_created Time=\"<b>\nx\"/>",
       {"<b> &amp;", "n/a", "n/a", "<b> x", "5.3.2004 17:08"}},
  };
  for (const auto& [tags, texts] : cases) {
    load({}, false, {});
    state.ThemeXml = "<!--" + tags + "-->";
    QFile xml(state.ThemeXmlPath);
    ASSERT_TRUE(xml.open(QIODevice::Append));
    ASSERT_TRUE(xml.setFileTime(QDateTime({2004, 3, 5}, {17, 8}), QFile::FileModificationTime));
    open();
    EXPECT_EQ(QStringList({field("txtThemeName").replace('\n', ' '), field("txtThemeAuthor"),
                           field("txtThemeModifiedBy"), label("lblCreated"), label("lblModified")}),
              texts);
    EXPECT_EQ(label("lblThemeFile"), "some.thm");
    EXPECT_EQ(label("lblThemeSize"), "1.5 KB (1536 bytes)");
    form->hide();
  }
}

TEST_F(Properties, ListsTheImagesInTwoColumns) {
  const QStringList elements{"Desktop_background_image=a.gif", "Title_image_small=gone.gif",
                             "Morelist_popup_highlight_image=a.gif", "Highlight_image=gone.gif"};
  const std::tuple<bool, int, QString, QString> cases[] = {
      {false, 6, "Desktop\t\tSet", "Title small\t\tBroken"},
      {true, 9, "Popup highlight\tSet", "Highlight\t\tBroken"}};
  for (const auto& [is3G, rows, set, broken] : cases) {
    load(elements, is3G, {"a.gif"});
    open();
    auto& images = control<QTextEdit>("txtImages");
    const QStringList lines = images.toPlainText().split('\n');
    EXPECT_EQ(lines.size(), rows);
    EXPECT_TRUE(lines.contains(set) && lines.contains(broken)) << lines.join('|').toStdString();
    QSet<qreal> columns;
    for (QTextBlock row = images.document()->begin(); row.isValid(); row = row.next()) {
      const QTextLine line = row.layout()->lineAt(0);
      columns << line.cursorToX(static_cast<int>(row.text().lastIndexOf('\t')) + 1);
    }
    EXPECT_EQ(columns.size(), 1) << "the column of the status is crooked";
    form->hide();
  }
}

TEST_F(Properties, ShowsNoDetailsOfSeveralFilesAndExtractsThem) {
  load({"Background_image=a.gif"}, false, {"a.gif", "b.bin", "c.bin"});
  open();
  EXPECT_FALSE(control<QWidget>("btnExtract").isEnabled());
  select({"a.gif"});
  EXPECT_EQ(picture().picture().size(), kPicture);
  select({"a.gif", "c.bin"});
  EXPECT_EQ(details(), QStringList({"Description: ", "Size: ", "Dimension: "}));
  EXPECT_EQ(preview(), "-");

  state.ExtractFolder = "/before";
  dialogs.expectFolder("Extract file(s) to:", "");
  extract();
  EXPECT_EQ(dialogs.lastFolder, "/before");
  const QString target = makeFolder("out");
  dialogs.expectFolder("Extract file(s) to:", target);
  extract();
  EXPECT_EQ(state.ExtractFolder, target);
  EXPECT_EQ(listOf("out"), QStringList({"a.gif", "c.bin"}));
  EXPECT_EQ(read("out/c.bin"), read("temp/c.bin"));
}

TEST_F(Properties, BeginsAnewAtEachOpening) {
  load({"Background_image=a.gif"}, false, {"a.gif"});
  open();
  control<QAbstractButton>("btnTabs_1").click();
  EXPECT_TRUE(list().isVisible());
  EXPECT_FALSE(control<QWidget>("txtImages").isVisible());
  select({"a.gif"});
  EXPECT_FALSE(form->close()) << "the unload is cancelled";
  EXPECT_FALSE(form->isVisible());
  EXPECT_TRUE(picture().picture().isNull());

  ASSERT_TRUE(QFile::remove(path("temp/a.gif")));
  load({"Title_image=b.gif"}, true, {"b.gif"});
  open();
  EXPECT_TRUE(control<QWidget>("txtImages").isVisible());
  EXPECT_EQ(list().listCount(), 2);
  EXPECT_EQ(details(), QStringList({"Description: ", "Size: ", "Dimension: "}));
  EXPECT_EQ(preview(), "-");
  EXPECT_FALSE(control<QWidget>("btnExtract").isEnabled());
}

TEST_F(Properties, GoesOnWhenFilesAreDamagedOrGone) {
  load({"Background_image=a.gif", "Title_image_small=b.gif"}, false, {"a.gif", "b.gif"});
  write("temp/b.gif", "no picture");
  write("temp/index.txt", QByteArray((1 << 20) + 5, 'i'));
  open();
  select({"b.gif"});
  EXPECT_EQ(details(), QStringList({"Description: Title small image", "Size: 0.0 KB (10 bytes)",
                                    "Dimension: "}));
  EXPECT_EQ(preview(), "F");
  EXPECT_TRUE(label("lblFault").contains("b.gif"));
  select({"index.txt"});
  EXPECT_EQ(control<QPlainTextEdit>("txtPreview").toPlainText().size(), (1 << 20) + 1);
  ASSERT_TRUE(QFile::remove(path("temp/a.gif")));
  select({"a.gif"});
  EXPECT_EQ(label("lblFileSize"), "Size: ");
  EXPECT_EQ(preview(), "F");
  form->hide();
  ASSERT_TRUE(QDir(path("temp")).removeRecursively());
  open();
  dialogs.expectMessage("The folder \"*");
  QCoreApplication::processEvents();
  EXPECT_EQ(list().listCount(), 0);
}

TEST_F(Properties, ClosesWhenEscapeIsLetGo) {
  load({"Background_image=a.gif"}, false, {"a.gif"});
  open();
  QTest::keyRelease(form.get(), Qt::Key_Escape);
  EXPECT_TRUE(form->isVisible()) << "it went down in another window";
  for (const char* name : {"btnTabs_0", "txtThemeName", "txtImages", "filFiles", "imgPreview"}) {
    auto& focus = control<QWidget>(name);
    QTest::keyPress(&focus, Qt::Key_Escape);
    EXPECT_TRUE(form->isVisible()) << name;
    QTest::keyRelease(&focus, Qt::Key_Escape);
    EXPECT_FALSE(form->isVisible()) << name;
    open();
  }
}

TEST_F(Properties, WalksWithTheKeyboard) {
  load({"Background_image=a.gif"}, false, {"a.gif"});
  open();
  form->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
  const auto walk = [&] {
    QStringList names;
    QWidget* first = form->focusWidget();
    do {
      names << form->focusWidget()->objectName();
      QTest::keyClick(form->focusWidget(), Qt::Key_Tab);
    } while (form->focusWidget() != first && names.size() < 20);
    return names.join(' ');
  };
  EXPECT_EQ(walk(),
            "btnTabs_0 btnTabs_1 txtThemeName txtThemeAuthor txtThemeModifiedBy txtImages btnOK");
  QTest::keyClick(form->focusWidget(), Qt::Key_Tab);
  QTest::keyClick(form->focusWidget(), Qt::Key_Space);
  select({"a.gif"});
  EXPECT_EQ(walk(), "btnTabs_1 filFiles btnExtract imgPreview btnOK btnTabs_0");
  QTest::keyClick(form->focusWidget(), Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_TRUE(control<QWidget>("txtImages").isVisible());
  QTest::keyClick(form->focusWidget(), Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_TRUE(list().isVisible());
}

TEST_F(Properties, MakesRoomForTextsThatWrap) {
  load({"Background_image=a.gif", "Desktop_background_image=a.gif"}, false, {"a.gif"});
  open();
  auto& description = control<QLabel>("lblFileDescription");
  description.setFixedWidth(120);
  select({"a.gif"});
  EXPECT_GT(description.height(), 2 * description.fontMetrics().height() - 1);
  EXPECT_EQ(control<QLabel>("lblFileSize").y(), description.y() + description.height() + 10);
  state.ThemeFilePath = "/themes/" + QString(200, 'w') + ".thm";
  form->hide();
  open();
  auto& file = control<QLabel>("lblThemeFile");
  EXPECT_LE(file.sizeHint().width(), file.width());
  EXPECT_EQ(file.toolTip().count(u'w'), 200);
}

}  // namespace

}  // namespace quillane

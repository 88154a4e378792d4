// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "editorfixture.h"
#include "shell/files.h"

#include <QClipboard>
#include <QEnterEvent>
#include <QToolButton>

namespace quillane {

namespace {

class EditorImages : public EditorTest {
 protected:
  struct Slot {
    const char* word;
    QSize size;
    bool exactly;
    const char* property;
  };
  QList<Slot> slots_() const {
    if (generation == Generation::Two)
      return {{"background", {101, 80}, false, "BackgroundImage"},
              {"desktop", {101, 80}, false, "DesktopBackgroundImage"},
              {"title small", {101, 20}, true, "TitleImageSmall"},
              {"title medium", {101, 27}, true, "TitleImageMedium"},
              {"title large", {101, 16}, true, "TitleImageLarge"},
              {"title asian", {101, 16}, true, "TitleImageAsian"}};
    return {{"statusbar", {128, 14}, true, "StatusbarBackgroundImage"},
            {"wallpaper", {128, 127}, true, "WallpaperImage"},
            {"softkeys", {128, 19}, true, "SoftkeysBackgroundImage"},
            {"desktop", {128, 127}, true, "DesktopBackgroundImage"},
            {"title", {128, 23}, true, "TitleImage"},
            {"menu", {128, 104}, true, "GeneralBackgroundImage"},
            {"highlight", {123, 16}, true, "HighlightImage"},
            {"popup title", {118, 23}, true, "MoreListPopupTitleImage"},
            {"popup highlight", {113, 16}, true, "MoreListPopupHighlightImage"}};
  }
  static QString textOf(QSize size) {
    return QString("%1x%2").arg(size.width()).arg(size.height());
  }
  /// "required|name|size|picture" of the information panel.
  QString information() {
    const QSize picture = control<QLabel>("imgPreview").pixmap().size();
    return label("lblReqDim") + '|' + label("lblFileName") + '|' + label("lblFileSize") + '|' +
           (picture.isEmpty() ? QString() : textOf(picture));
  }
  QString wrongSize(const QString& word, const QString& needed, const QString& file,
                    const QString& size) {
    return QString(
               "The dimensions for %1 image must be %2 pixels.\r\n\r\nSelected image: \"%3\"\r\n"
               "Dimensions: %4 pixels")
        .arg(word, needed, file, size);
  }
  void autoSelect(const QString& file, int filter = 1) {
    dialogs.expectFile(
        generation == Generation::Two ? "Select background image" : "Select wallpaper image", file,
        filter);
    click("btnAutoSelect");
  }
  QList<QImage> panes() {
    QList<QImage> shown;
    for (PictureBox* box : form->findChildren<PictureBox*>())
      shown << box->surface().image().copy();
    return shown;
  }
};

const char* const kNothing = "|File name: |File size: |";

TEST_F(EditorImages, TakeOnlyTheirSize) {
  for (const Generation which : kBoth) {
    openNew(which);
    for (int at = 0; at < slots_().size(); ++at) {
      const auto [word, size, exactly, property] = slots_()[at];
      const QString title = QString("Select %1 image").arg(word);
      const QString needed = textOf(size);
      for (const QSize off : {QSize(1, 0), QSize(0, 1), QSize(-1, 0), QSize(0, -1)}) {
        const QString real = textOf(size + off);
        const QString file = gif("other.gif", size + off);
        const bool taken = !exactly && off.width() + off.height() < 0;
        dialogs.expectFile(title, file);
        if (!taken) dialogs.expectMessage(wrongSize(word, needed, "other.gif", real));
        click(QString("btnImage_%1").arg(at));
        EXPECT_EQ(slot(at).path(), taken ? file : QString()) << word;
        if (taken) continue;
        EXPECT_EQ(dialogs.title, "Incorrect image dimensions");
        EXPECT_EQ(dialogs.icon, MessageIcon::Warning);
      }
      const QString file = gif("fits.gif", size);
      const QList<QImage> before = panes();
      choose(at, title, file);
      EXPECT_EQ(slot(at).path(), file);
      EXPECT_EQ(QString(engine().values().schema().images[static_cast<std::size_t>(at)].property),
                property);
      EXPECT_EQ(engine().image(at), file);
      // A person sees the file's name and picture at once, and the previews with it.
      EXPECT_TRUE(information().startsWith(needed + " pixels|File name: fits.gif|"));
      EXPECT_EQ(panes() != before, word != QString("title asian")) << word;
      QTest::mouseClick(&slot(at), Qt::RightButton);
    }
    EXPECT_EQ(slotFiles(), "");
  }
}

TEST_F(EditorImages, AreAskedForWhereTheLastOneLay) {
  const QString filters[] = {
      "CompuServe Graphics Interchange (*.gif)|*.gif",
      "CompuServe Graphics Interchange (*.gif)|*.gif|JPEG Files (*.jpg)|*.jpg"};
  for (const Generation which : kBoth) {
    state.ImageFolder = path("images") + '/';
    openNew(which);
    const int at = which == Generation::Two ? 1 : 3;
    const auto fields = [this] {
      EXPECT_EQ(dialogs.lastFile.question, FileQuestion::Open);
      return dialogs.lastFile.folder + '|' + dialogs.lastFile.fileName;
    };
    choose(at, "Select desktop image", {});
    EXPECT_EQ(fields(), path("images/|*.gif"));
    EXPECT_EQ(dialogs.lastFile.filter, filters[which == Generation::Two ? 0 : 1]);
    choose(at, "Select desktop image", gif("deep/a.gif", slots_()[at].size));
    EXPECT_EQ(state.ImageFolder, path("images/deep/"));
    state.ImageFolder = path("images") + '/';
    choose(at, "Select desktop image", {});
    EXPECT_EQ(fields(), path("images/deep/|a.gif"));
    EXPECT_EQ(state.ImageFolder, path("images") + '/');
    autoSelect({});
    EXPECT_EQ(fields(), path("images/|*.gif"));
    EXPECT_EQ(slotFiles(), QString::number(at) + 'a');
  }
}

TEST_F(EditorImages, MayBeJpegsIn3G) {
  openNew(Generation::ThreeG);
  const QString jpeg = path("images/title.jpg"), wrong = path("images/wrong.jpg");
  ASSERT_TRUE(QImage(128, 23, QImage::Format_RGB32).save(jpeg));
  ASSERT_TRUE(QImage(128, 22, QImage::Format_RGB32).save(wrong));
  choose(4, "Select title image", jpeg, 2);
  EXPECT_EQ(slotFiles(), "4title");
  dialogs.expectFile("Select title image", wrong, 2);
  dialogs.expectMessage(wrongSize("title", "128x23", "wrong.jpg", "128x22"));
  click("btnImage_4");
  dialogs.expectFile("Select title image", write("images/none.jpg", "no picture"), 2);
  dialogs.expectMessage("*");
  click("btnImage_4");
  EXPECT_EQ(dialogs.icon, MessageIcon::Stop);
  EXPECT_EQ(slotFiles(), "4title");
  const QString wallpaper = path("images/wallpaper.jpg");
  ASSERT_TRUE(QImage(128, 127, QImage::Format_RGB32).save(wallpaper));
  gif("a.gif", {113, 16});
  autoSelect(wallpaper, 2);
  EXPECT_EQ(slotFiles(), "1wallpaper 4title 8a");
}

TEST_F(EditorImages, AreRemoved) {
  for (const Generation which : kBoth) {
    state.SmartLAImage = true;
    openNew(which);
    for (int at = 0; at < slots_().size(); ++at)
      choose(at, QString("Select %1 image").arg(slots_()[at].word),
             gif("x.gif", slots_()[at].size));
    const QString all =
        which == Generation::Two ? "0x 1x 2x 3x 4x 5x" : "0x 1x 2x 3x 4x 5x 6x 7x 8x";
    EXPECT_EQ(slotFiles(), all);
    const QList<QImage> filled = panes();
    click("btnImage_4", Qt::RightButton);
    EXPECT_EQ(slotFiles(), QString(all).remove("4x "));
    EXPECT_NE(panes(), filled);
    slot(0).setFocus();
    QTest::keyClick(&slot(0), Qt::Key_Delete);
    EXPECT_EQ(slotFiles(), QString(all).remove("4x ").remove("0x "));
    // The standby keeps the layout of one with a background.
    EXPECT_EQ(state.EditorEngine2->StandbyType, 1);
    click("btnRemoveAll");
    EXPECT_EQ(slotFiles(), "");
    EXPECT_EQ(state.EditorEngine2->StandbyType, 1);
  }
}

TEST_F(EditorImages, LargeAndAsianTitleGoTogether) {
  const QSize size(101, 16);
  gif("a.gif", size);
  gif("b.gif", size);
  for (const bool off : {false, true}) {
    state.SmartLAImage = off;
    for (const auto& [first, second, firstTitle, secondTitle] :
         {std::tuple{4, 5, "Select title large image", "Select title asian image"},
          {5, 4, "Select title asian image", "Select title large image"}}) {
      openNew(Generation::Two);
      choose(first, firstTitle, path("images/a.gif"));
      const QString one = QString("%1a").arg(first);
      EXPECT_EQ(slotFiles(), off ? one : "4a 5a");
      choose(second, secondTitle, path("images/b.gif"));
      choose(first, firstTitle, path("images/a.gif"));
      EXPECT_EQ(slotFiles(), first == 4 ? "4a 5b" : "4b 5a") << "both were filled";
      QTest::mouseClick(&slot(first), Qt::RightButton);
      EXPECT_EQ(slotFiles(), QString("%1b").arg(second));
    }
  }
  // An import empties the engine alone, and that is what a save reads.
  state.SmartLAImage = false;
  openNew(Generation::Two);
  choose(4, "Select title large image", path("images/a.gif"));
  QApplication::clipboard()->setText("<Ericsson_theme>");
  click("btnPaste");
  EXPECT_EQ(slotFiles(), "4a! 5a!");
  choose(5, "Select title asian image", path("images/b.gif"));
  EXPECT_EQ(slotFiles(), "4b 5b");
}

TEST_F(EditorImages, AreMatchedByTheirSizes) {
  struct Case {
    const char* name;
    Generation which;
    bool smartOff;
    QString files;  ///< The first is chosen.
    const char* filled;
  };
  const QString all3G =
      "0 128x127 a 128x14 b 128x19 c 128x127 d 128x23 e 128x104 f 123x16 g 118x23 h 113x16";
  const Case cases[] = {
      {"all, large title alone", Generation::Two, true,
       "c 101x80 a 101x80 b 101x20 d 101x27 e 101x16 f 100x80", "0c 1a 2b 3d 4e"},
      {"later wins, asian title too", Generation::Two, false, "a 50x50 b 101x16 c 101x16",
       "0a 4c 5c"},
      {"the seventh is left", Generation::Two, true,
       "g 101x80 a 1x1 b 1x1 c 1x1 d 1x1 e 1x1 F 101x20", "0g 2F"},
      {"the chosen one counts", Generation::Two, true,
       "a 101x80 b 1x1 c 1x1 d 1x1 e 1x1 f 101x27 g 101x20", "0a 3f"},
      {"3G, all nine", Generation::ThreeG, true, all3G, "0a 10 2b 3c 4d 5e 6f 7g 8h"},
      {"3G, later wins, the tenth is left", Generation::ThreeG, true, all3G + " dd 128x127",
       "0a 10 2b 3dd 4d 5e 6f 7g"}};
  for (const Case& row : cases) {
    QDir(path("images")).removeRecursively();
    const QStringList files = row.files.split(' ');
    for (int at = 0; at < files.size(); at += 2) {
      const QStringList size = files[at + 1].split('x');
      gif(files[at] + ".gif", {size[0].toInt(), size[1].toInt()});
    }
    write("images/note.txt", "no picture");
    state.SmartLAImage = row.smartOff;
    openNew(row.which);
    autoSelect(path("images/" + files[0] + ".gif"));
    EXPECT_EQ(slotFiles(), QString(row.filled)) << row.name;
    EXPECT_EQ(state.ImageFolder, path("images/"));
  }
  EXPECT_EQ(state.EditorEngine2->StandbyType, 1);

  const auto refused = [this](QSize size, const char* word, const char* needed, const char* real) {
    dialogs.expectFile(QString("Select %1 image").arg(word), gif("x.gif", size));
    dialogs.expectMessage(wrongSize(word, needed, "x.gif", real));
    click("btnAutoSelect");
    EXPECT_EQ(slotFiles(), "");
  };
  openNew(Generation::Two);
  refused({101, 81}, "background", "101x80", "101x81");
  openNew(Generation::ThreeG);
  refused({127, 127}, "wallpaper", "128x127", "127x127");
}

TEST_F(EditorImages, TellAboutThemselves) {
  openNew(Generation::Two);
  const QString file = gif("my&back.gif", {90, 70});
  choose(0, "Select background image", file);
  const auto at = [this](int index, bool comes) {
    QEvent leave(QEvent::Leave);
    QEnterEvent enter({5, 5}, {5, 5}, {5, 5});
    QApplication::sendEvent(&slot(index), comes ? &enter : &leave);
    return information();
  };
  const QString size = FormatFileSize(file);
  EXPECT_EQ(at(0, false), kNothing);
  EXPECT_EQ(at(0, true), "101x80 pixels|File name: my&back.gif|File size: " + size + "|90x70");
  EXPECT_EQ(at(0, false), kNothing);
  EXPECT_EQ(at(2, true), "101x20 pixels|File name: |File size: |");
  slot(1).setFocus();
  EXPECT_EQ(information(), "101x80 pixels|File name: |File size: |");
  QTest::keyClick(&slot(1), Qt::Key_Backtab);
  EXPECT_EQ(information(), "101x80 pixels|File name: my&back.gif|File size: " + size + "|90x70");
  QFile::remove(file);
  EXPECT_EQ(at(0, true), "101x80 pixels|File name: my&back.gif|File size: |");
}

TEST_F(EditorImages, SwitchThePreviews) {
  openNew(Generation::Two);
  const auto standby = [this] {
    return control<PictureBox>("picStandby").surface().image().copy();
  };
  const QImage plain = standby();
  choose(0, "Select background image", gif("a.gif", {101, 80}));
  const QImage filled = standby();
  EXPECT_NE(filled, plain);
  click("btnView");
  EXPECT_EQ(standby(), plain);
  click("btnView");
  EXPECT_EQ(standby(), filled);
  // The switch shows what the preview shows, whatever changed it.
  const auto isIn = [this] { return control<QToolButton>("btnView").isChecked(); };
  EXPECT_TRUE(isIn());
  click("btnReset");
  EXPECT_EQ(standby(), plain);
  EXPECT_FALSE(isIn());
  choose(0, "Select background image", path("images/a.gif"));
  QApplication::clipboard()->setText("<ERICSSON_theme>");
  click("btnPaste");
  EXPECT_FALSE(isIn());

  openNew(Generation::ThreeG);
  const QList<QImage> bare = panes();
  choose(1, "Select wallpaper image", gif("b.gif", {128, 127}));
  EXPECT_NE(panes(), bare);
  click("btnDrawImages");
  EXPECT_EQ(panes(), bare);
  click("btnDrawImages");
  EXPECT_NE(panes(), bare);
}

}  // namespace

}  // namespace quillane

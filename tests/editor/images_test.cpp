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
  /// "required|name|size|picture" of the information panel.
  QString information() {
    const QSize picture = control<QLabel>("imgPreview").pixmap().size();
    return label("lblReqDim") + '|' + label("lblFileName") + '|' + label("lblFileSize") + '|' +
           (picture.isEmpty() ? QString()
                              : QString("%1x%2").arg(picture.width()).arg(picture.height()));
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
      const QString needed = QString("%1x%2").arg(size.width()).arg(size.height());
      for (const QSize off : {QSize(1, 0), QSize(0, 1), QSize(-1, 0), QSize(0, -1)}) {
        const QSize real = size + off;
        const QString file = gif("other.gif", real);
        const bool taken = !exactly && off.width() + off.height() < 0;
        if (!taken)
          dialogs.expectFile(title, file),
              dialogs.expectMessage(
                  wrongSize(word, needed, "other.gif",
                            QString("%1x%2").arg(real.width()).arg(real.height())));
        else
          dialogs.expectFile(title, file);
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
    const Slot desktop = slots_()[which == Generation::Two ? 1 : 3];
    const int at = which == Generation::Two ? 1 : 3;
    const auto fields = [this] {
      EXPECT_EQ(dialogs.lastFile.question, FileQuestion::Open);
      return dialogs.lastFile.folder + '|' + dialogs.lastFile.fileName;
    };
    choose(at, "Select desktop image", {});
    EXPECT_EQ(fields(), path("images/|*.gif"));
    EXPECT_EQ(dialogs.lastFile.filter, filters[which == Generation::Two ? 0 : 1]);
    choose(at, "Select desktop image", gif("deep/a.gif", desktop.size));
    EXPECT_EQ(state.ImageFolder, path("images/deep/"));
    state.ImageFolder = path("images") + '/';
    choose(at, "Select desktop image", {});
    EXPECT_EQ(fields(), path("images/deep/|a.gif"));
    EXPECT_EQ(state.ImageFolder, path("images") + '/');
    autoSelect({});
    EXPECT_EQ(fields(), path("images/|*.gif"));
    EXPECT_EQ(slotFiles(), "a.gif");
  }
}

TEST_F(EditorImages, MayBeJpegsIn3G) {
  openNew(Generation::ThreeG);
  const QString jpeg = path("images/title.jpg"), wrong = path("images/wrong.jpg");
  ASSERT_TRUE(QImage(128, 23, QImage::Format_RGB32).save(jpeg));
  ASSERT_TRUE(QImage(128, 22, QImage::Format_RGB32).save(wrong));
  choose(4, "Select title image", jpeg, 2);
  EXPECT_EQ(slotFiles(), "title.jpg");
  dialogs.expectFile("Select title image", wrong, 2);
  dialogs.expectMessage(wrongSize("title", "128x23", "wrong.jpg", "128x22"));
  click("btnImage_4");
  dialogs.expectFile("Select title image", write("images/none.jpg", "no picture"), 2);
  dialogs.expectMessage("*");
  click("btnImage_4");
  EXPECT_EQ(dialogs.icon, MessageIcon::Stop);
  EXPECT_EQ(slotFiles(), "title.jpg");
  const QString wallpaper = path("images/wallpaper.jpg");
  ASSERT_TRUE(QImage(128, 127, QImage::Format_RGB32).save(wallpaper));
  gif("a.gif", {113, 16});
  autoSelect(wallpaper, 2);
  EXPECT_EQ(slotFiles(), "wallpaper.jpg   title.jpg    a.gif");
}

TEST_F(EditorImages, AreRemoved) {
  for (const Generation which : kBoth) {
    state.SmartLAImage = true;
    openNew(which);
    for (int at = 0; at < slots_().size(); ++at)
      choose(at, QString("Select %1 image").arg(slots_()[at].word),
             gif(QString("%1.gif").arg(at), slots_()[at].size));
    const QString all = which == Generation::Two
                            ? "0.gif 1.gif 2.gif 3.gif 4.gif 5.gif"
                            : "0.gif 1.gif 2.gif 3.gif 4.gif 5.gif 6.gif 7.gif "
                              "8.gif";
    EXPECT_EQ(slotFiles(), all);
    const QList<QImage> filled = panes();
    click("btnImage_4", Qt::RightButton);
    EXPECT_EQ(slotFiles(), QString(all).remove("4.gif"));
    EXPECT_NE(panes(), filled);
    slot(0).setFocus();
    QTest::keyClick(&slot(0), Qt::Key_Delete);
    EXPECT_EQ(slotFiles(), QString(all).remove("4.gif").remove("0.gif").trimmed());
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
      EXPECT_EQ(slotFiles(), off ? "a.gif" : "a.gif a.gif");
      choose(second, secondTitle, path("images/b.gif"));
      choose(first, firstTitle, path("images/a.gif"));
      EXPECT_EQ(slotFiles(), first == 4 ? "a.gif b.gif" : "b.gif a.gif") << "both were filled";
      QTest::mouseClick(&slot(first), Qt::RightButton);
      EXPECT_EQ(slotFiles(), "b.gif");
    }
  }
  // An import empties the engine alone, and that is what a save reads.
  state.SmartLAImage = false;
  openNew(Generation::Two);
  choose(4, "Select title large image", path("images/a.gif"));
  QApplication::clipboard()->setText("<Ericsson_theme>");
  click("btnPaste");
  EXPECT_EQ(slotFiles(), "a.gif! a.gif!");
  choose(5, "Select title asian image", path("images/b.gif"));
  EXPECT_EQ(slotFiles(), "b.gif b.gif");
}

TEST_F(EditorImages, AreMatchedByTheirSizes) {
  struct Case {
    const char* name;
    Generation which;
    bool smartOff;
    QList<std::pair<QString, QSize>> files;  ///< The first is chosen.
    const char* filled;
  };
  const Generation two = Generation::Two, three = Generation::ThreeG;
  const QList<std::pair<QString, QSize>> all3G = {
      {"0.gif", {128, 127}}, {"a.gif", {128, 14}}, {"b.gif", {128, 19}},
      {"c.gif", {128, 127}}, {"d.gif", {128, 23}}, {"e.gif", {128, 104}},
      {"f.gif", {123, 16}},  {"g.gif", {118, 23}}, {"h.gif", {113, 16}}};
  const Case cases[] = {
      {"all, large title alone",
       two,
       true,
       {{"c.gif", {101, 80}},
        {"a.gif", {101, 80}},
        {"b.gif", {101, 20}},
        {"d.GIF", {101, 27}},
        {"e.gif", {101, 16}},
        {"f.gif", {100, 80}}},
       "c.gif a.gif b.gif d.GIF e.gif"},
      {"later wins, asian title too",
       two,
       false,
       {{"a.gif", {50, 50}}, {"b.gif", {101, 16}}, {"c.gif", {101, 16}}},
       "a.gif    c.gif c.gif"},
      {"the seventh is left",
       two,
       true,
       {{"g.gif", {101, 80}},
        {"a.gif", {1, 1}},
        {"b.gif", {1, 1}},
        {"c.gif", {1, 1}},
        {"d.gif", {1, 1}},
        {"e.gif", {1, 1}},
        {"F.gif", {101, 20}}},
       "g.gif  F.gif"},
      {"the chosen one counts",
       two,
       true,
       {{"a.gif", {101, 80}},
        {"b.gif", {1, 1}},
        {"c.gif", {1, 1}},
        {"d.gif", {1, 1}},
        {"e.gif", {1, 1}},
        {"f.gif", {101, 27}},
        {"g.gif", {101, 20}}},
       "a.gif   f.gif"},
      {"3G, all nine", three, true, all3G, "a.gif 0.gif b.gif c.gif d.gif e.gif f.gif g.gif h.gif"},
      {"3G, later wins, the tenth is left", three, true,
       QList<std::pair<QString, QSize>>(all3G) << std::pair(QString("dd.gif"), QSize(128, 127)),
       "a.gif 0.gif b.gif dd.gif d.gif e.gif f.gif g.gif"}};
  for (const Case& row : cases) {
    QDir(path("images")).removeRecursively();
    for (const auto& [name, size] : row.files)
      gif(name, size);
    write("images/note.txt", "no picture");
    state.SmartLAImage = row.smartOff;
    openNew(row.which);
    autoSelect(path("images/" + row.files[0].first));
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
  openNew(two);
  refused({101, 81}, "background", "101x80", "101x81");
  openNew(three);
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

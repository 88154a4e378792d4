// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "editorfixture.h"
#include "shell/files.h"

#include <QClipboard>
#include <QEnterEvent>
#include <QToolButton>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

class EditorImages : public EditorTest {
 protected:
  int slotCount() const { return static_cast<int>(schemaOf(generation).images.size()); }
  static QString textOf(QSize size) {
    return QString("%1x%2").arg(size.width()).arg(size.height());
  }
  /// "required|name|size|picture" of the information panel.
  QString information() {
    const QSize picture = control<QLabel>("imgPreview").pixmap().size();
    return label("lblReqDim") + '|' + label("lblFileName") + '|' + label("lblFileSize") + '|' +
           (picture.isEmpty() ? QString() : textOf(picture));
  }
  /// Has a slot's dialog answered with a picture that does not fit.
  void expectRefusal(int index, const QString& file, QSize size, int filter = 1) {
    dialogs.expectFile(imageDialogTitle(element(index)), file, filter);
    dialogs.expectMessage(imageDimensionsText(element(index), file, size));
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

TEST_F(EditorImages, TakeOnlyTheirSize) {
  for (const Generation which : kBoth) {
    openNew(which);
    for (int at = 0; at < slotCount(); ++at) {
      const ImageElement& its = element(at);
      const QSize tooLarge = its.size + QSize(0, 1), smaller = its.size - QSize(1, 0);
      expectRefusal(at, gif("other.gif", tooLarge), tooLarge);
      click(QString("btnImage_%1").arg(at));
      EXPECT_EQ(dialogs.title, "Incorrect image dimensions");
      EXPECT_EQ(dialogs.icon, MessageIcon::Warning);
      EXPECT_EQ(slotFiles(), "");
      const QList<QImage> before = panes();
      const QString file = gif("fits.gif", its.rule == SizeRule::AtMost ? smaller : its.size);
      choose(at, file);
      EXPECT_EQ(slotFiles(), QString("%1fits").arg(at));
      // A person sees the file's name and picture at once, and the previews with it.
      EXPECT_TRUE(information().startsWith(textOf(its.size) + " pixels|File name: fits.gif|"));
      EXPECT_EQ(panes() != before, its.word != "title asian"_L1) << its.word.data();
      QTest::mouseClick(&slot(at), Qt::RightButton);
    }
    EXPECT_EQ(slotFiles(), "");
  }
}

TEST_F(EditorImages, AreAskedForWhereTheLastOneLay) {
  for (const Generation which : kBoth) {
    state.ImageFolder = path("images") + '/';
    openNew(which);
    const int at = which == Generation::Two ? 1 : 3;
    const auto fields = [this] {
      EXPECT_EQ(dialogs.lastFile.question, FileQuestion::Open);
      return dialogs.lastFile.folder + '|' + dialogs.lastFile.fileName;
    };
    choose(at, {});
    EXPECT_EQ(fields(), path("images/|*.gif"));
    EXPECT_EQ(dialogs.lastFile.filter.contains("*.jpg"), which == Generation::ThreeG);
    choose(at, gif("deep/a.gif", element(at).size));
    EXPECT_EQ(state.ImageFolder, path("images/deep/"));
    state.ImageFolder = path("images") + '/';
    choose(at, {});
    EXPECT_EQ(fields(), path("images/deep/|a.gif"));
    EXPECT_EQ(state.ImageFolder, path("images") + '/');
    autoSelect({});
    EXPECT_EQ(fields(), path("images/|*.gif"));
    EXPECT_EQ(slotFiles(), QString::number(at) + 'a');
  }
}

TEST_F(EditorImages, MayBeJpegsIn3G) {
  openNew(Generation::ThreeG);
  const auto jpeg = [this](const QString& name, QSize size) {
    const QString file = path("images/" + name);
    EXPECT_TRUE(QImage(size, QImage::Format_RGB32).save(file));
    return file;
  };
  choose(4, jpeg("title.jpg", {128, 23}), 2);
  expectRefusal(4, jpeg("wrong.jpg", {128, 22}), {128, 22}, 2);
  click("btnImage_4");
  dialogs.expectFile("Select title image", write("images/none.jpg", "no picture"), 2);
  dialogs.expectMessage("*");
  click("btnImage_4");
  EXPECT_EQ(dialogs.icon, MessageIcon::Stop);
  EXPECT_EQ(slotFiles(), "4title");
  gif("a.gif", {113, 16});
  autoSelect(jpeg("wallpaper.jpg", {128, 127}), 2);
  EXPECT_EQ(slotFiles(), "1wallpaper 4title 8a");
}

TEST_F(EditorImages, AreRemoved) {
  for (const Generation which : kBoth) {
    state.SmartLAImage = true;
    openNew(which);
    for (int at = 0; at < slotCount(); ++at)
      choose(at, gif("x.gif", element(at).size));
    const QString all = slotFiles();
    const QList<QImage> filled = panes();
    click("btnImage_4", Qt::RightButton);
    EXPECT_EQ(slotFiles(), QString(all).remove("4x "));
    EXPECT_NE(panes(), filled);
    slot(0).setFocus();
    QTest::keyClick(&slot(0), Qt::Key_Delete);
    EXPECT_EQ(slotFiles(), QString(all).remove("4x ").remove("0x "));
    click("btnRemoveAll");
    EXPECT_EQ(slotFiles(), "");
    EXPECT_EQ(state.EditorEngine2->StandbyType, 1) << "the layout of one with a background";
  }
}

TEST_F(EditorImages, LargeAndAsianTitleGoTogether) {
  const QSize size(101, 16);
  gif("a.gif", size);
  gif("b.gif", size);
  for (const bool off : {false, true}) {
    state.SmartLAImage = off;
    for (const auto& [first, second] : {std::pair{4, 5}, {5, 4}}) {
      openNew(Generation::Two);
      choose(first, path("images/a.gif"));
      const QString one = QString("%1a").arg(first);
      EXPECT_EQ(slotFiles(), off ? one : "4a 5a");
      choose(second, path("images/b.gif"));
      choose(first, path("images/a.gif"));
      EXPECT_EQ(slotFiles(), first == 4 ? "4a 5b" : "4b 5a") << "both were filled";
      QTest::mouseClick(&slot(first), Qt::RightButton);
      EXPECT_EQ(slotFiles(), QString("%1b").arg(second));
    }
  }
  // An import empties the engine alone, and that is what a save reads.
  state.SmartLAImage = false;
  openNew(Generation::Two);
  choose(4, path("images/a.gif"));
  QApplication::clipboard()->setText("<Ericsson_theme>");
  click("btnPaste");
  EXPECT_EQ(slotFiles(), "4a! 5a!");
  choose(5, path("images/b.gif"));
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
  const Case cases[] = {
      {"large title alone, not a near miss", Generation::Two, true,
       "c 101x80 a 101x80 e 101x16 f 100x20", "0c 1a 4e"},
      {"later wins, asian title too", Generation::Two, false, "a 50x50 b 101x16 c 101x16",
       "0a 4c 5c"},
      {"the seventh is left", Generation::Two, true,
       "g 101x80 a 1x1 b 1x1 c 1x1 d 1x1 e 1x1 F 101x20", "0g 2F"},
      {"the chosen one counts", Generation::Two, true,
       "a 101x80 b 1x1 c 1x1 d 1x1 e 1x1 f 101x27 g 101x20", "0a 3f"},
      {"3G, later wins, the tenth is left", Generation::ThreeG, true,
       "0 128x127 a 128x14 b 128x19 c 128x127 d 128x23 e 128x104 f 123x16 g 118x23 h 113x16 "
       "dd 128x127",
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
  openNew(Generation::ThreeG);
  expectRefusal(gen3g::WallpaperImage, gif("x.gif", {127, 127}), {127, 127});
  click("btnAutoSelect");
  EXPECT_EQ(slotFiles(), "");
}

TEST_F(EditorImages, TellAboutThemselves) {
  openNew(Generation::Two);
  const QString file = gif("my&back.gif", {90, 70});
  choose(0, file);
  const auto at = [this](int index, bool comes) {
    QEvent leave(QEvent::Leave);
    QEnterEvent enter({5, 5}, {5, 5}, {5, 5});
    QApplication::sendEvent(&slot(index), comes ? &enter : &leave);
    return information();
  };
  const QString nothing = "File name: |File size: |";
  const QString all =
      "101x80 pixels|File name: my&back.gif|File size: " + FormatFileSize(file) + "|90x70";
  EXPECT_EQ(at(0, true), all);
  EXPECT_EQ(at(0, false), '|' + nothing);
  EXPECT_EQ(at(2, true), "101x20 pixels|" + nothing);
  slot(1).setFocus();
  EXPECT_EQ(information(), "101x80 pixels|" + nothing);
  QTest::keyClick(&slot(1), Qt::Key_Backtab);
  EXPECT_EQ(information(), all);
  QFile::remove(file);
  EXPECT_EQ(at(0, true), "101x80 pixels|File name: my&back.gif|File size: |");
}

TEST_F(EditorImages, SwitchThePreviews) {
  openNew(Generation::Two);
  const auto standby = [this] {
    return control<PictureBox>("picStandby").surface().image().copy();
  };
  const QImage plain = standby();
  choose(0, gif("a.gif", {101, 80}));
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
  choose(0, path("images/a.gif"));
  QApplication::clipboard()->setText("<ERICSSON_theme>");
  click("btnPaste");
  EXPECT_FALSE(isIn());

  openNew(Generation::ThreeG);
  const QList<QImage> bare = panes();
  choose(1, gif("b.gif", {128, 127}));
  EXPECT_NE(panes(), bare);
  click("btnDrawImages");
  EXPECT_EQ(panes(), bare);
  click("btnDrawImages");
  EXPECT_NE(panes(), bare);
}

}  // namespace

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/frmimagewiz.h"

#include "forms/imagebox.h"
#include "shell/imagerules.h"
#include "support/controls.h"
#include "support/desktest.h"
#include "support/scripteddialogs.h"
#include "tools/cropcanvas.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>
#include <QToolButton>

namespace quillane {

namespace {

/// A picture in which each pixel tells its place.
QImage places(int width, int height) {
  QImage picture(width, height, QImage::Format_RGB32);
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x)
      picture.setPixel(x, y, qRgb(x % 256, y % 256, x / 256 + 16 * (y / 256)));
  return picture;
}

class ImageWizard : public DeskTest {
 protected:
  ImageWizard() {
    state.ImageWizOpenFolder = makeFolder("in") + '/';
    state.ImageWizSaveFolder = makeFolder("out") + '/';
    form = std::make_unique<frmImageWiz>(nullptr, state, dialogs);
    form->show();
  }

  void openPicture(int width, int height) {
    const QString file = path("in/p.bmp");
    ASSERT_TRUE(places(width, height).save(file));
    dialogs.expectFile("Open image", file);
    tool(0);
  }
  void tool(int index) { controlOf<QToolButton>(*form, toolName(index)).click(); }
  void pickSize(int item) {
    controlOf<QAction>(*form, QString("mnuPopupItem_%1").arg(item)).trigger();
  }
  /// Which buttons are on, by their indexes in hexadecimal.
  QString toolsOn() {
    QString on;
    for (int index = 0; index <= 10; ++index)
      if (controlOf<QWidget>(*form, toolName(index)).isEnabled()) on += QString::number(index, 16);
    return on;
  }
  QImage result() { return controlOf<ImageBox>(*form, "picCropPicture").picture(); }
  CropCanvas& canvas() { return controlOf<CropCanvas>(*form, "picImage"); }
  /// The place of the frame as the boxes show it.
  QPoint place() {
    return {controlOf<QLineEdit>(*form, "txtX").text().toInt(),
            controlOf<QLineEdit>(*form, "txtY").text().toInt()};
  }
  void type(const char* box, const QString& text) {
    auto& edit = controlOf<QLineEdit>(*form, box);
    edit.clear();
    QTest::keyClicks(&edit, text);
    QTest::keyClick(&edit, Qt::Key_Return);
  }
  bool shown(const char* name) { return controlOf<QWidget>(*form, name).isVisible(); }

  ScriptedDialogs dialogs;
  std::unique_ptr<frmImageWiz> form;

 private:
  static QString toolName(int index) { return QString("btnToolbar_%1").arg(index); }
};

TEST_F(ImageWizard, CutsWhatEachSlotTakes) {
  for (int item = 1; item <= 13; ++item) {
    if (item == 5) continue;  // The line between the generations.
    const ThemeSchema& schema = schemaOf(item < 5 ? Generation::Two : Generation::ThreeG);
    pickSize(item);
    const QSize size = canvas().frame().size();
    EXPECT_TRUE(std::any_of(schema.images.begin(), schema.images.end(),
                            [&](const ImageElement& slot) { return takesSize(slot, size); }))
        << item;
    openPicture(size.width(), size.height());
    EXPECT_EQ(result().convertToFormat(QImage::Format_RGB32), places(size.width(), size.height()))
        << item << ": the right size stays whole";
    for (const char* name : {"out/a.gif", "out/a.jpg"}) {
      const bool jpeg = QString(name).endsWith("jpg");
      if (jpeg && !schema.takesJpeg) continue;
      dialogs.expectFile("Save image as", path(name), jpeg ? 2 : 1);
      tool(2);
      EXPECT_EQ(themePictureSize(schema, path(name)), size) << item << name;
    }
  }
}

TEST_F(ImageWizard, EnablesWhatThePictureAllows) {
  EXPECT_EQ(toolsOn(), "05");
  dialogs.expectMessage("No image in Clipboard.");
  QGuiApplication::clipboard()->setText("no picture");
  tool(5);
  openPicture(300, 200);
  EXPECT_EQ(toolsOn(), "03589a");
  EXPECT_EQ(form->windowTitle(), "Image Wizard - [" + path("in/p.bmp") + "] - (300 x 200)");
  pickSize(8);
  EXPECT_EQ(toolsOn(), "0123456789a");
  EXPECT_EQ(controlOf<QLabel>(*form, "lblImgSize").text(), "128x104");
  QGuiApplication::clipboard()->setImage(places(150, 150));
  tool(5);
  EXPECT_EQ(toolsOn(), "012456789a") << "nothing to reload";
  EXPECT_EQ(form->windowTitle(), "Image Wizard - (150 x 150)");
  EXPECT_EQ(canvas().frame().size(), QSize(128, 104)) << "the frame stays";
  EXPECT_EQ(result().convertToFormat(QImage::Format_RGB32), places(150, 150).copy(0, 0, 128, 104));
}

TEST_F(ImageWizard, MovesItsFrame) {
  openPicture(300, 200);
  pickSize(7);  // 128 x 127
  for (const auto& [mouse, wanted] : {std::pair(QPoint(170, 71), QPoint(170, 71)),
                                      {QPoint(171, 72), QPoint(172, 73)},
                                      {QPoint(299, 199), QPoint(172, 73)}}) {
    QTest::mouseClick(&canvas(), Qt::LeftButton, {}, mouse);
    EXPECT_EQ(place(), wanted) << mouse.x();
    EXPECT_EQ(result().pixel(0, 0), places(300, 200).pixel(wanted));
  }
  QTest::mouseMove(&canvas(), {10, 12});
  EXPECT_EQ(controlOf<QLabel>(*form, "lblXY").text(), "X: 10, Y: 12");
  EXPECT_EQ(place(), QPoint(172, 73)) << "no button is held";
  type("txtX", "5a9");
  EXPECT_EQ(place(), QPoint(59, 73));
  type("txtX", "999");
  type("txtY", "4");
  EXPECT_EQ(canvas().frame().topLeft(), QPoint(172, 4));
  QTest::keyClick(&canvas(), Qt::Key_Left, Qt::ShiftModifier);
  QTest::keyClick(&canvas(), Qt::Key_Down);
  EXPECT_EQ(place(), QPoint(162, 5));
  QTest::keyClick(&canvas(), Qt::Key_Up, Qt::ShiftModifier);
  EXPECT_EQ(place(), QPoint(162, 0)) << "the picture ends there";
  openPicture(100, 400);
  QTest::mouseClick(&canvas(), Qt::LeftButton, {}, {3, 3});
  EXPECT_EQ(place(), QPoint(-28, 3)) << "the picture is narrower than the frame";
  EXPECT_EQ(qAlpha(result().pixel(0, 0)), 0);
  EXPECT_EQ(result().pixel(28, 0), places(100, 400).pixel(0, 3));
  QTest::keyClicks(&controlOf<QLineEdit>(*form, "txtX"), "-a");
  EXPECT_EQ(place().x(), -28);
  QTest::keyClicks(&controlOf<QLineEdit>(*form, "txtX"), "9");
  QTest::keyClick(&controlOf<QLineEdit>(*form, "txtX"), Qt::Key_Return);
  EXPECT_EQ(canvas().frame().x(), -289);
}

TEST_F(ImageWizard, FlipsMirrorsAndResizes) {
  openPicture(500, 300);
  pickSize(8);  // 128 x 104
  const QImage before = result();
  tool(8);
  EXPECT_EQ(result().pixel(0, 0), places(500, 300).pixel(0, 299));
  tool(8);
  EXPECT_EQ(result(), before);
  tool(9);
  EXPECT_EQ(result().pixel(0, 0), places(500, 300).pixel(499, 0));
  EXPECT_TRUE(shown("hsbWidth") && !shown("vsbHeight"));
  controlOf<QScrollBar>(*form, "hsbWidth").setValue(90);
  tool(6);
  EXPECT_EQ(canvas().geometry(), QRect(0, 0, 128, 104));
  EXPECT_FALSE(shown("hsbWidth"));
  tool(4);
  EXPECT_EQ(QGuiApplication::clipboard()->image().size(), QSize(128, 104));
  tool(3);
  EXPECT_EQ(canvas().size(), QSize(500, 300)) << "reloaded";
  EXPECT_EQ(result(), before);
}

TEST_F(ImageWizard, ScrollsLargePictures) {
  openPicture(900, 700);
  auto& across = controlOf<QScrollBar>(*form, "hsbWidth");
  auto& down = controlOf<QScrollBar>(*form, "vsbHeight");
  across.setValue(9999);
  down.setValue(50);
  EXPECT_EQ(canvas().pos(), QPoint(382 - 900, -50)) << "up to its edge";
  EXPECT_TRUE(shown("picCover"));
  pickSize(1);
  EXPECT_EQ(canvas().pos(), QPoint(0, 0));
  openPicture(300, 700);
  EXPECT_TRUE(shown("vsbHeight") && !shown("hsbWidth") && !shown("picCover"));
  EXPECT_EQ(down.maximum(), 300);
}

TEST_F(ImageWizard, SavesOnceAskedAndTellsFailures) {
  openPicture(200, 150);
  pickSize(1);
  dialogs.expectFile("Save image", {});
  tool(1);
  EXPECT_EQ(dialogs.lastFile.fileName, path("out/New Image.gif"));
  dialogs.expectFile("Save image", path("other/b.png"), 2);
  makeFolder("other");
  tool(1);
  EXPECT_TRUE(read("other/b.png").startsWith("\x89PNG")) << "the ending decides";
  EXPECT_EQ(state.ImageWizSaveFolder, path("other/"));
  QFile::remove(path("other/b.png"));
  tool(1);
  EXPECT_TRUE(QFile::exists(path("other/b.png"))) << "without a question";
  dialogs.expectFile("Save image as", path("nowhere/c.gif"));
  dialogs.expectMessage("Folder \"*");
  tool(2);
  tool(1);
  EXPECT_EQ(listOf("other"), QStringList{"b.png"}) << "the place that failed is not remembered";
}

TEST_F(ImageWizard, RefusesPicturesThatCannotBeShown) {
  openPicture(200, 150);
  ASSERT_TRUE(places(4097, 1).save(path("in/wide.bmp")));
  for (const QString& file :
       {path("in/wide.bmp"), write("in/broken.gif", "GIF89a"), path("gone")}) {
    dialogs.expectFile("Open image", file);
    dialogs.expectMessage("*");
    tool(0);
    EXPECT_EQ(canvas().size(), QSize(200, 150)) << "the one before stays";
    tool(3);
    EXPECT_TRUE(form->windowTitle().contains("p.bmp")) << "and can be reloaded";
  }
  QGuiApplication::clipboard()->setImage(QImage(5000, 2, QImage::Format_RGB32));
  dialogs.expectMessage("The image in the Clipboard has 5000 x 2 pixels*");
  tool(5);
}

}  // namespace

}  // namespace quillane

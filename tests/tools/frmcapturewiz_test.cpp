// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/frmcapturewiz.h"

#include "forms/imagebox.h"
#include "support/controls.h"
#include "support/desktest.h"
#include "support/scripteddialogs.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>
#include <QToolButton>

namespace quillane {

namespace {

class Capture : public DeskTest {
 protected:
  Capture() {
    state.CaptureFolder = makeFolder("out") + '/';
    state.IViewPresent = true;
    form = std::make_unique<frmCaptureWiz>(nullptr, state, dialogs,
                                           [this](int pane) { return pane_(pane); });
  }

  /// A screen with a margin, in which each pixel tells its pane and place.
  QImage pane_(int pane) const {
    const bool is3G = state.ThemeGeneration == Generation::ThreeG;
    QImage screen(is3G ? QSize(138, 171) : QSize(111, 91), QImage::Format_RGB32);
    for (int y = 0; y < screen.height(); ++y)
      for (int x = 0; x < screen.width(); ++x)
        screen.setPixel(x, y, qRgb(x, y, pane));
    return screen;
  }
  void click(const char* button) { controlOf<QToolButton>(*form, button).click(); }
  QImage result() { return controlOf<ImageBox>(*form, "picCapture").picture(); }
  QRect resultPlace() { return controlOf<ImageBox>(*form, "picCapture").geometry(); }
  QStringList checkedItems(const char* menu) {
    QStringList captions;
    for (const QAction* item : controlOf<QMenu>(*form, menu).actions())
      if (item->isChecked()) captions << item->text();
    return captions;
  }

  ScriptedDialogs dialogs;
  std::unique_ptr<frmCaptureWiz> form;
};

TEST_F(Capture, KeepsAsMuchBorderAsWanted) {
  const std::tuple<Generation, const char*, QRect> cases[] = {
      {Generation::Two, "btnBorder_0", {5, 5, 101, 80}},
      {Generation::ThreeG, "btnBorder_1", {4, 4, 130, 162}},
      {Generation::ThreeG, "btnBorder_2", {0, 0, 138, 171}}};
  for (const auto& [generation, border, kept] : cases) {
    state.ThemeGeneration = generation;
    state.CapturePane = 3;
    form->capture();
    click(border);
    const QImage wanted = pane_(3).copy(kept);
    EXPECT_EQ(result(), wanted) << border;
    click("btnClipboardCopy");
    EXPECT_EQ(QGuiApplication::clipboard()->image(), wanted);
  }
  EXPECT_EQ(resultPlace().topLeft(), QPoint(61, 36)) << "in the middle, ten pixels down";
  for (const auto& [ending, index] : {std::pair("png", 3), {"bmp", 4}}) {
    const QString file = path(QString("out/a.") + ending);
    dialogs.expectFile("Save image", file, index);
    click("btnCapture");
    EXPECT_EQ(QImage(file).convertToFormat(QImage::Format_RGB32), pane_(3)) << ending;
  }
}

TEST_F(Capture, TakesTheScreenOfItsMenu) {
  state.CapturePane = 11;
  form->capture();
  EXPECT_EQ(checkedItems("mnuPopup"), QStringList{"Notes"});
  controlOf<QMenu>(*form, "mnuPopup").actions().at(2)->trigger();
  EXPECT_EQ(checkedItems("mnuPopup"), QStringList{"Manu Small"});
  EXPECT_EQ(state.CapturePane, 3);
  EXPECT_EQ(qBlue(result().pixel(0, 0)), 3);
  state.CapturePane = 12;
  state.ThemeGeneration = Generation::ThreeG;
  form->capture();
  EXPECT_EQ(checkedItems("mnuPopup2"), QStringList{"Standby"}) << "3G has six";
}

TEST_F(Capture, SavesTheKindsThatCanBeWritten) {
  state.CapturePane = 1;
  form->capture();
  dialogs.expectFile("Save image", path("out/a.gif"), 1);
  click("btnCapture");
  EXPECT_EQ(dialogs.lastFile.filter.count('|'), 7);
  EXPECT_TRUE(read("out/a.gif").startsWith("GIF8"));
  EXPECT_EQ(state.CaptureFolder, path("out/"));
  dialogs.expectFile("Save image", path("nowhere/a.jpg"), 2);
  dialogs.expectMessage("Folder \"*");
  click("btnCapture");
  state.IViewPresent = false;
  dialogs.expectFile("Save image", path("out/a.bmp"), 1);
  click("btnCapture");
  EXPECT_EQ(dialogs.lastFile.filter, "Windows Bitmap (*.bmp)|*.bmp");
  EXPECT_EQ(dialogs.lastFile.extension, ".bmp");
  EXPECT_TRUE(read("out/a.bmp").startsWith("BM"));
}

}  // namespace

}  // namespace quillane

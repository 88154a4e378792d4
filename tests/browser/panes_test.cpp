// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/panemenus.h"
#include "browserfixture.h"
#include "forms/imagebox.h"
#include "preview/screens.h"

#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace quillane {

namespace {

class Panes : public BrowserTest {
 protected:
  /// Captions of the menu that a right click on a pane opens; empty when none opens.
  QStringList menuOf(const char* pane) {
    QTest::mouseClick(&control<PictureBox>(pane), Qt::LeftButton, {}, {30, 30});
    EXPECT_FALSE(QApplication::activePopupWidget());
    QTest::mouseClick(&control<PictureBox>(pane), Qt::RightButton, {}, {30, 30});
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    QStringList captions;
    if (!menu) return captions;
    for (const QAction* item : menu->actions())
      if (item->isVisible()) captions << item->text();
    menu->close();
    return captions;
  }
};

/// Each pane of a generation shows what the engine paints, inside the margin.
template <class Engine>
void expectScreens(const frmBrowser& browser, Engine& engine,
                   std::span<const Screen<Engine>> screens, QSize size, std::size_t panes) {
  for (const Screen<Engine>& screen : screens) {
    auto* pane = browser.findChild<PictureBox*>(screen.pane);
    if (!pane) continue;
    --panes;
    Surface surface(size);
    engine.setSurface(surface);
    screen.paint(engine);
    const QRect inside(QPoint(5, 5), size - QSize(10, 11));
    EXPECT_EQ(pane->surface().image().copy(inside), surface.image().copy(inside))
        << screen.id.data();
  }
  EXPECT_EQ(panes, 0U);
}

TEST_F(Panes, ShowTheScreensOfTheirGeneration) {
  addTheme("a.thm", "<Background Color=\"0x112233\"/>");
  addTheme("b.thm", "<Background Color=\"0x112233\"/>", true);
  openAt(1);
  expectScreens(*browser, *state.PreviewEngine3G, screensOf3G(), Surface::kSize3G, 6);
  EXPECT_TRUE(shown("picPreview_1") && !shown("picPreview_0"));
  select(0);
  expectScreens(*browser, *state.PreviewEngine2, screensOfGeneration2(), Surface::kSize2, 13);
  EXPECT_TRUE(shown("picPreview_0") && !shown("picPreview_1"));
}

TEST_F(Panes, OfferTheImagesOfGeneration2) {
  addTheme("a.thm", "<Background_image Source=\"i.gif\"/><Title_image_small Source=\"i.gif\"/>",
           false, {"i.gif"});
  openAt(0);
  const QString capture = "Vistrel &Capture...";
  EXPECT_EQ(menuOf("picStandby"), (QStringList{capture, "E&xtract Background Image..."}));
  EXPECT_EQ(state.CapturePane, 1);
  EXPECT_EQ(menuOf("picDesktop"), QStringList{capture});
  EXPECT_EQ(menuOf("picMenu_0"), (QStringList{capture, "E&xtract Title Small Image..."}));
}

TEST_F(Panes, OfferTheImagesOf3GWithTheirAsymmetry) {
  // What a theme without images offers, and what one with all of them offers beside that.
  const std::tuple<const char*, int, QString, QString> cases[] = {
      {"picStandby2", 1, "Wallpaper", "|Statusbar|Softkeys"},
      {"picMenu2", 3, "Title|General Background", "|Statusbar|Highlight|Softkeys"},
      {"picPopupMenu2", 4, "Title|General Background|Popup Title|Popup Highlight",
       "|Statusbar|Softkeys"},
      {"picNotes2", 6, "Wallpaper", "|Statusbar|Softkeys"}};
  QByteArray elements;
  for (const ImageElement& image : schemaOf(Generation::ThreeG).images)
    elements += QByteArray("<") + image.element.data() + " Source=\"i.gif\"/>";
  addTheme("a.thm", {}, true);
  addTheme("b.thm", elements, true, {"i.gif"});
  open();
  for (const bool full : {false, true}) {
    select(full ? 1 : 0);
    for (const auto& [pane, index, without, added] : cases) {
      QStringList wanted = (full ? without + added : without).split('|');
      QStringList offered = menuOf(pane);
      ASSERT_FALSE(offered.isEmpty()) << pane;
      EXPECT_EQ(offered.takeFirst(), "Vistrel &Capture...");
      for (QString& caption : offered)
        caption = caption.mid(8).chopped(9);  // "Extract ... Image..."
      wanted.sort();
      offered.sort();
      EXPECT_EQ(offered, wanted) << pane << full;
      EXPECT_EQ(state.CapturePane, index);
    }
  }
}

TEST_F(Panes, OpenNoMenuWithoutOneGoodTheme) {
  addThemes("ab");
  addDamaged("c.thm");
  open();
  for (const QList<int>& selected : {QList<int>{}, {0}, {0, 1}, {2}}) {
    list().clearSelection();
    for (const int index : selected)
      list().setSelected(index, true);
    EXPECT_EQ(menuOf("picStandby").isEmpty(), selected != QList<int>{0});
  }
}

TEST_F(Panes, ShowTheXmlAboveThemselves) {
  addTheme("a.thm", "<Text Color=\"0x000001\"/>");
  addThemes("b");
  open();
  auto& xml = control<QPlainTextEdit>("txtXML");
  EXPECT_TRUE(xml.isHidden());
  click("btnViewXML");
  EXPECT_TRUE(control<QAction>("mnuViewItem_1").isChecked());
  list().setSelected(0, true);
  EXPECT_FALSE(xml.isHidden());
  EXPECT_EQ(xml.toPlainText(), "<Ericsson_theme>\n<Text Color=\"0x000001\"/>\n</Ericsson_theme>");
  click("btnClipboardCopy");
  EXPECT_EQ(QApplication::clipboard()->text(), state.ThemeXml);
  xml.setFocus();
  QTest::keyClick(&xml, Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(xml.textCursor().selectedText().size(), xml.toPlainText().size());
  EXPECT_EQ(list().selectedItems().size(), 1);
  list().setSelected(1, true);
  EXPECT_EQ(xml.toPlainText(), "") << "several themes have no text";
  trigger("mnuViewItem_1");
  EXPECT_TRUE(xml.isHidden());
  EXPECT_FALSE(control<QToolButton>("btnViewXML").isChecked());
}

TEST_F(Panes, StepTheirSimulatedPhone) {
  addTheme("a.thm");
  addTheme("b.thm", {}, true);
  world.nextRandom = 0.999;
  openAt(0);
  EXPECT_EQ(state.PreviewEngine2->DesktopIcon, 9);
  select(1);
  EXPECT_EQ(state.ThemeLoadCount, 2) << "the count is shared";
  EXPECT_EQ(state.PreviewEngine3G->DesktopIcon, 9) << "the last three are never selected";
}

TEST_F(Panes, OpenMorePreviewsOverTheWindow) {
  addTheme("a.thm", {}, true);
  openAt(0);
  bool opened = false;
  QTimer watch;
  QObject::connect(&watch, &QTimer::timeout, [&] {
    auto* strip = QApplication::activeModalWidget();
    if (!strip || strip->windowTitle().endsWith("Drawing...")) return;
    opened = true;
    EXPECT_EQ(strip->parentWidget(), browser.get());
    strip->close();
  });
  watch.start(1);
  QTest::mouseClick(&control<QPushButton>("btnPreviewAll"), Qt::LeftButton);
  EXPECT_TRUE(opened);

  addDamaged("b.thm");
  click("btnRefresh");
  select(0);
  EXPECT_TRUE(enabled("btnPreviewAll"));
  select(1);
  EXPECT_FALSE(enabled("btnPreviewAll")) << "the screens of the theme before are still in view";
}

TEST_F(Panes, AreCaptured) {
  addTheme("a.thm", "<Background Color=\"0x112233\"/>");
  addTheme("b.thm", "<Background Color=\"0x112233\"/>", true);
  open();
  for (const auto& [theme, panes, menu] : {std::tuple(0, 13, "mnuPopup"), {1, 6, "mnuPopup2"}}) {
    select(theme);
    trigger("mnuToolsItem_2");
    auto& wizard = control<QDialog>("frmCaptureWiz");
    const QList<QAction*> items = controlOf<QMenu>(wizard, menu).actions();
    ASSERT_EQ(items.size(), panes);
    for (int pane = 0; pane < panes; ++pane) {
      items[pane]->trigger();
      const char* name =
          theme == 0 ? paneMenus2()[std::size_t(pane)].pane : paneMenus3G()[std::size_t(pane)].pane;
      EXPECT_EQ(controlOf<ImageBox>(wizard, "picCapture").picture(),
                control<PictureBox>(name).surface().image());
    }
  }
  browser->close();
  EXPECT_FALSE(control<QDialog>("frmCaptureWiz").isVisible());
}

}  // namespace

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/frmpreviewall.h"

#include "forms/formcolors.h"
#include "forms/picturebox.h"
#include "preview/screens.h"
#include "support/controls.h"
#include "support/probes.h"
#include "support/scripteddialogs.h"

#include <QGuiApplication>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>

#include <functional>

namespace quillane {

namespace {

const int kScreens = static_cast<int>(screensOf3G().size());
const QString kDrawing = "Theme preview - Drawing...";

/// A world in which a test can look around while a screen is being painted.
class WatchedWorld : public StillWorld {
 public:
  std::function<void()> onRandom = [] {};
  double random() override {
    onRandom();
    return StillWorld::random();
  }
};

class PreviewAll : public testing::Test {
 protected:
  PreviewAll() {
    state.PreviewEngine3G = std::make_unique<clsVistrel3G>(world);
    fillPhone(*state.PreviewEngine3G);
    state.ThemeFilePath = "/themes/My [*] theme.thm";
    form = std::make_unique<frmPreviewAll>(nullptr, state, dialogs, world);
  }

  template <class Control>
  Control& control(const QString& name) {
    return controlOf<Control>(*form, name);
  }
  PictureBox& pane(int index) { return control<PictureBox>(QString("picPreview_%1").arg(index)); }
  QScrollBar& bar() { return control<QScrollBar>("hsbScroll"); }
  QWidget& strip() { return control<QWidget>("picBackground"); }
  bool isStripShown() { return strip().isVisible() && bar().isVisible(); }
  bool isStripHidden() { return strip().isHidden() && bar().isHidden(); }
  /// How many columns of the progress bar are filled.
  int progress() {
    const QColor highlight = form->palette().color(QPalette::Highlight);
    return boundsOf(control<PictureBox>("picProgress").surface().image(), highlight.rgb()).width();
  }
  void paint() {
    form->show();
    QCoreApplication::processEvents();
  }
  /// Sends an event as the desktop does.
  static void deliver(QWidget& target, QEvent& event) {
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(&target, &event);
  }
  /// Each pane holds what the engine now paints on a plain surface, and that is something.
  void expectEveryScreen() {
    for (int index = 0; index < kScreens; ++index) {
      Surface plain(Surface::kSize3G, colorValueOf(form->palette().color(QPalette::Window)));
      EXPECT_NE(pane(index).surface().image(), plain.image()) << index;
      engine().setSurface(plain);
      skipOnFault([&] { screensOf3G()[static_cast<std::size_t>(index)].paint(engine()); });
      EXPECT_EQ(pane(index).surface().image(), plain.image()) << index;
    }
  }
  clsVistrel3G& engine() { return *state.PreviewEngine3G; }

  PublicState state;
  WatchedWorld world;
  ScriptedDialogs dialogs;
  std::unique_ptr<frmPreviewAll> form;
};

TEST_F(PreviewAll, PaintsEveryScreenBehindAFillingBar) {
  QList<int> filled;
  world.nextRandom = 0.5;
  world.onRandom = [&] {
    EXPECT_TRUE(isStripHidden());
    EXPECT_EQ(form->windowTitle(), kDrawing);
    ASSERT_TRUE(QGuiApplication::overrideCursor());
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    filled += progress();
  };
  EXPECT_EQ(form->windowTitle(), kDrawing);
  form->show();
  EXPECT_TRUE(isStripHidden()) << "painting waits until the window shows";
  QCoreApplication::processEvents();
  world.onRandom = [] {};
  EXPECT_EQ(filled.mid(0, 2), (QList<int>{0, 37})) << "before the first and the second screen";
  EXPECT_EQ(progress(), control<PictureBox>("picProgress").surface().image().width());
  EXPECT_FALSE(QGuiApplication::overrideCursor());

  EXPECT_TRUE(isStripShown());
  EXPECT_EQ(form->windowTitle(), "Theme preview - [/themes/My [*][*] theme.thm]");
  expectEveryScreen();
}

TEST_F(PreviewAll, ScrollsByScreensUpToTheLast) {
  paint();
  const int end = strip().width() - 598;
  ASSERT_GT(end, 152) << "too few screens to scroll";
  for (const auto& [notches, left] : {std::pair{-1, 152}, {1, 0}, {1, 0}}) {
    QWheelEvent turn({5, 5}, {5, 5}, {}, {0, 120 * notches}, {}, {}, Qt::NoScrollPhase, false);
    deliver(pane(2), turn);
    EXPECT_EQ(strip().x(), -left) << notches << " notches";
  }
  const std::pair<Qt::Key, int> keys[] = {
      {Qt::Key_Right, 152},    {Qt::Key_Left, 0},   {Qt::Key_Down, 152}, {Qt::Key_Up, 0},
      {Qt::Key_PageDown, 152}, {Qt::Key_PageUp, 0}, {Qt::Key_End, end},  {Qt::Key_Home, 0},
      {Qt::Key_End, end},      {Qt::Key_Right, end}};
  for (const auto& [key, left] : keys) {
    QTest::keyClick(form.get(), key);
    EXPECT_EQ(strip().x(), -left) << key;
  }
  EXPECT_EQ(pane(kScreens - 1).mapTo(form.get(), QPoint(142, 0)), QPoint(608, 10));
  bar().setValue(100);
  EXPECT_EQ(strip().x(), -100);
}

TEST_F(PreviewAll, StepsTheSimulatedPhone) {
  state.ActiveDesktop = false;
  world.nextRandom = 0.999;
  engine().SignalStrength = 2;
  engine().DesktopIcon = 7;
  engine().BatteryLevel = 4;
  paint();
  EXPECT_EQ(engine().SignalStrength, 5);
  EXPECT_EQ(engine().DesktopIcon, 7) << "switched off";
  state.ActiveDesktop = true;
  form->hide();
  paint();
  EXPECT_EQ(engine().DesktopIcon, 12);
  EXPECT_EQ(engine().BatteryLevel, 4) << "never moves";
}

TEST_F(PreviewAll, PaintsAnewWhenItIsShownAgainAndNotWhenTheDesktopBringsItBack) {
  paint();
  const int once = world.reseeded;
  QShowEvent fromAnIcon;
  deliver(*form, fromAnIcon);
  QCoreApplication::processEvents();
  EXPECT_EQ(world.reseeded, once);
  EXPECT_TRUE(isStripShown());

  form->hide();
  form->show();
  EXPECT_TRUE(isStripHidden());
  EXPECT_EQ(progress(), 0);
  QCoreApplication::processEvents();
  EXPECT_EQ(world.reseeded, 2 * once);
  EXPECT_TRUE(isStripShown());
}

TEST_F(PreviewAll, PaintsNothingWhenItIsClosedAtOnce) {
  QTimer::singleShot(0, form.get(), &QWidget::close);
  form->show();
  QCoreApplication::processEvents();
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(world.reseeded, 0);
  EXPECT_FALSE(QGuiApplication::overrideCursor());
}

TEST_F(PreviewAll, ShowsAFaultOnceAndTheOtherScreensAllTheSame) {
  state.ActiveDesktop = false;
  // The first fails on one screen, the second on all that have soft keys.
  for (const gen3g::Color color : {gen3g::StandbyTimeColor, gen3g::SoftkeysBackgroundColor}) {
    engine().DefaultColors();
    engine().setColor(color, "colour");
    dialogs.expectMessage(
        "\"colour\" is no colour.\r\nin Quillane.frmPreviewAll.Form_Activate at line *");
    form->hide();
    paint();
    EXPECT_TRUE(isStripShown());
    expectEveryScreen();
  }
}

}  // namespace

}  // namespace quillane

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
  EXPECT_EQ(form->grab().toImage().pixelColor(156, 95), form->palette().color(QPalette::Window))
      << "the bar shows between two screens";
  expectEveryScreen();
  EXPECT_EQ(strip().geometry(), QRect(0, 0, kScreens * 152 - 10, 175));
  for (int index = 0; index < kScreens; ++index) {
    EXPECT_EQ(pane(index).geometry(), QRect(index * 152, 0, 142, 175)) << index;
    EXPECT_FALSE(pane(index).toolTip().isEmpty()) << index;
  }
}

TEST_F(PreviewAll, ScrollsByScreensUpToTheLast) {
  paint();
  const int end = strip().width() - 598;
  ASSERT_GT(end, 152) << "too few screens to scroll";
  const auto key = [&](Qt::Key pressed) { QTest::keyClick(form.get(), pressed); };
  const auto wheel = [&](int notches) {
    QWheelEvent turn({5, 5}, {5, 5}, {}, {0, 120 * notches}, {}, {}, Qt::NoScrollPhase, false);
    deliver(pane(2), turn);
  };
  const std::pair<std::function<void()>, int> moves[] = {
      {[&] { key(Qt::Key_Right); }, 152},
      {[&] { key(Qt::Key_Left); }, 0},
      {[&] { key(Qt::Key_Down); }, 152},
      {[&] { key(Qt::Key_Up); }, 0},
      {[&] { key(Qt::Key_PageDown); }, 152},
      {[&] { key(Qt::Key_PageUp); }, 0},
      {[&] { wheel(-1); }, 152},
      {[&] { wheel(1); }, 0},
      {[&] { wheel(1); }, 0},
      {[&] { key(Qt::Key_End); }, end},
      {[&] { wheel(-1); }, end},
      {[&] { key(Qt::Key_Right); }, end},
      {[&] { key(Qt::Key_Home); }, 0},
      {[&] { bar().setValue(100); }, 100},
  };
  int number = 0;
  for (const auto& [move, left] : moves) {
    move();
    EXPECT_EQ(strip().x(), -left) << "move " << ++number;
  }
  key(Qt::Key_End);
  EXPECT_EQ(pane(kScreens - 1).mapTo(form.get(), QPoint(142, 0)), QPoint(608, 10));
}

TEST_F(PreviewAll, StepsTheSimulatedPhone) {
  struct Case {
    bool signalOn, desktopOn;
    double random;
    int signal, desktop;
  };
  for (const Case& row :
       {Case{true, true, 0, 1, 1}, Case{true, true, 0.999, 5, 12}, Case{true, false, 0.4, 3, 7},
        Case{false, true, 0.4, 2, 5}, Case{false, false, 0.999, 2, 7}}) {
    state.ActiveSignal = row.signalOn;
    state.ActiveDesktop = row.desktopOn;
    world.nextRandom = row.random;
    engine().SignalStrength = 2;
    engine().DesktopIcon = 7;
    engine().BatteryLevel = 4;
    form->hide();
    paint();
    EXPECT_EQ(engine().SignalStrength, row.signal) << row.random;
    EXPECT_EQ(engine().DesktopIcon, row.desktop) << row.random;
    EXPECT_EQ(engine().BatteryLevel, 4);
  }
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
  EXPECT_EQ(form->windowTitle(), kDrawing);
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

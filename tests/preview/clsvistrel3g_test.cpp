// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview/clsvistrel3g.h"

#include "preview/clsvistrel.h"
#include "support/probes.h"
#include "support/text.h"

namespace quillane {

namespace {

constexpr QRgb kGround = 0xFFC0DFFF;
constexpr QRgb kDesktopGround = 0xFFBFD3E8;

class Vistrel3GTest : public EngineTest<clsVistrel3G> {
 protected:
  Vistrel3GTest() : EngineTest(Surface::kSize3G) { fillPhone(engine); }
};

TEST(BoundedTest, ANumberOutOfItsRangeBecomesAFixedOne) {
  StillWorld world;
  clsVistrel two(world);
  clsVistrel3G three(world);
  const auto check = [](const char* name, auto property, int low, int high, int otherwise) {
    EXPECT_EQ(property, 0) << name << ", never set";
    EXPECT_EQ(property = low, low) << name;
    EXPECT_EQ(property = high, high) << name;
    EXPECT_EQ(property = low - 1, otherwise) << name;
    EXPECT_EQ(property = low, low) << name;
    EXPECT_EQ(property = high + 1, otherwise) << name;
  };
  check("line", two.LineIcon, 1, 2, 1);
  check("desktop", two.DesktopIcon, 0, 9, 5);
  check("3G desktop", three.DesktopIcon, 1, 12, 5);
  EXPECT_FALSE(three.DrawImages);
  two.CalendarDateFormat = QString();
  EXPECT_EQ(static_cast<const QString&>(two.CalendarDateFormat), "mmm yyyy");
}

TEST_F(Vistrel3GTest, StatusIconsAndTheSymbolBetweenTheKeys) {
  const QRect bar(5, 5, 128, 14);
  for (int signal = 0; signal <= 5; ++signal) {
    engine.SignalStrength = signal;
    engine.BatteryLevel = 2 * signal;
    engine.GPRSRange = signal % 2;
    engine.ShowGPRSIcon = signal > 1;
    engine.DrawStandby();
    std::vector<PlacedIcon> icons;
    if (signal > 1) icons.push_back({2300 + signal % 2, {6, 6}});
    icons.insert(icons.end(), {{2200 + signal, {6, 10}}, {2100 + 2 * signal, {114, 7}}});
    EXPECT_EQ(part(bar), iconsOn(kGround, icons).copy(bar)) << signal;
  }
  const QRect gap(60, 146, 20, 19);
  EXPECT_EQ(part(gap), iconsOn(kGround, {{2400, {64, 151}}}).copy(gap));
}

TEST_F(Vistrel3GTest, DesktopCells) {
  const QRect zone(5, 19, 128, 127);
  engine.DesktopTitles = "|||||||||||";
  for (int icon = 1; icon <= 12; ++icon) {
    engine.DesktopIcon = icon;
    engine.DrawDesktop();
    const QPoint cell(6 + (icon - 1) % 3 * 42, 41 + (icon - 1) / 3 * 26);
    EXPECT_EQ(part(zone),
              iconsOn(kDesktopGround, {{2000, {5, 19}}, {2000 + icon, cell}}).copy(zone))
        << icon;
  }
}

TEST_F(Vistrel3GTest, FaultsRiseAndLeaveWhatWasPainted) {
  const auto fault = [&](auto draw) { return faultNumberOf([&] { (engine.*draw)(); }); };
  const auto softkeys = [&](int i) { return faultNumberOf([&] { engine.DrawSoftkeys(i); }); };
  engine.StandbySoftkeyText = "Calls";
  EXPECT_EQ(fault(&clsVistrel3G::DrawStandby), 9);
  EXPECT_EQ(pixel(80, 148), 0xFFBDBDBD) << "the right box is there";
  const QRect gap(60, 151, 20, 11);
  EXPECT_EQ(part(gap), iconsOn(kGround, {}).copy(gap)) << "the symbol is not";

  engine.SoftkeysMenuTitleText = "1|2|3";
  EXPECT_EQ(softkeys(2), 9);
  EXPECT_EQ(pixel(7, 148), kMargin) << "no third sample";

  engine.setImage(gen3g::TitleImage, path("none.gif"));
  EXPECT_EQ(softkeys(1), 53);
  EXPECT_EQ(pixel(5, 18), kGround);
  EXPECT_EQ(pixel(5, 19), kMargin);
  engine.setImage(gen3g::TitleImage, write("rubbish.gif", "no picture"));
  EXPECT_EQ(softkeys(1), 481);

  engine.setColor(gen3g::BackgroundColor, "green");
  EXPECT_EQ(fault(&clsVistrel3G::DrawDesktop), 13);
  EXPECT_EQ(pixel(5, 5), 0xFF000000);

  clsVistrel3G fresh(world);
  fresh.setSurface(surface);
  fresh.DesktopTitles = fresh.DesktopSoftkeyText = "1|2";
  EXPECT_EQ(faultNumberOf([&] { fresh.DrawDesktop(); }), 9) << "DesktopIcon was never set";
  EXPECT_EQ(pixel(7, 148), kMargin);
}

}  // namespace

}  // namespace quillane

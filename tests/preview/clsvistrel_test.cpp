// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview/clsvistrel.h"

#include "preview/paintsteps.h"
#include "support/probes.h"
#include "support/text.h"
#include "support/tinygif.h"

namespace quillane {

namespace {

constexpr QRgb kFill = 0xFF102030;
constexpr QRgb kDesktopFill = 0xFF405060;
const QRect kScreen(5, 5, 101, 80);

class VistrelTest : public EngineTest<clsVistrel> {
 protected:
  VistrelTest() : EngineTest(Surface::kSize2) {
    engine.setColor(gen2::BackgroundColor, "102030");
    engine.setColor(gen2::DesktopBackgroundColor, "405060");
  }

  bool shows(QRgb color) const { return !boundsOf(surface.image(), color, kScreen).isNull(); }
  /// Saves a picture whose pixels tell their own place.
  QString map(QSize size) const {
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x)
        image.setPixel(x, y, qRgb(x, y, 77));
    return save(image);
  }
  void background(const QString& file) {
    engine.setImage(gen2::BackgroundImage, file);
    engine.StandbyType = 1;
  }
};

TEST_F(VistrelTest, AStepThatFailsKeepsTheFormerPicture) {
  PaintSteps steps(surface);
  steps.load(map({3, 3}));
  steps.load(path("none.bmp"));
  steps.icon(9999, 5, 5);
  EXPECT_EQ(pixel(7, 6), qRgb(2, 1, 77));
}

TEST_F(VistrelTest, DefaultsReplaceTheThemeAndKeepThePhone) {
  ThemeValues theme(Generation::Two);
  theme.setImage(gen2::BackgroundImage, "/back.gif");
  theme.setColor(gen2::TitleColor, "123456");
  engine.takeTheme(theme);
  EXPECT_EQ(engine.StandbyType, 1);
  engine.OperatorName = "World";
  engine.PopupPaddingLeftTop = "9 9";
  engine.DefaultColors();
  EXPECT_EQ(engine.StandbyType, 0);
  EXPECT_EQ(engine.image(gen2::BackgroundImage), QString());
  EXPECT_EQ(engine.color(gen2::TitleColor), "0000FF");
  EXPECT_EQ(engine.PopupPaddingLeftTop, "3 5");
  EXPECT_EQ(engine.OperatorName, "World");
}

TEST_F(VistrelTest, StatusIcons) {
  // Type, signal, battery, GPRS range (below 0 not shown), line (0 not shown), infrared and the
  // icons behind those of signal and battery.
  const std::tuple<int, int, int, int, int, bool, std::vector<PlacedIcon>> table[] = {
      {0, 0, 0, -1, 0, false, {}},
      {0, 1, 1, 0, 0, false, {{1300, {5, 72}}}},
      {0, 2, 3, 1, 0, false, {{1301, {5, 72}}}},
      {0, 3, 9, -1, 1, false, {{1400, {8, 6}}}},
      {0, 4, 10, -1, 2, true, {{1401, {23, 6}}, {1500, {9, 6}}}},
      {1, 5, 10, 1, 2, false, {{1301, {5, 72}}, {1401, {8, 38}}}},
      {1, 5, 10, -1, 1, true, {{1400, {8, 38}}, {1500, {94, 35}}}},
      {2, 5, 10, -1, 2, true, {{1401, {23, 6}}, {1500, {9, 6}}}}};
  for (const auto& [type, signal, battery, gprs, line, infrared, icons] : table) {
    engine.StandbyType = type;
    engine.SignalStrength = signal;
    engine.BatteryLevel = battery;
    engine.ShowGPRSIcon = gprs >= 0;
    engine.GPRSRange = gprs;
    engine.ShowLineIcon = line > 0;
    engine.LineIcon = line;
    engine.ShowIRIcon = infrared;
    engine.DrawStandby();
    std::vector<PlacedIcon> all{{1200 + signal, {5, 76}}, {1100 + battery, {86, 75}}};
    all.insert(all.end(), icons.begin(), icons.end());
    EXPECT_EQ(part(kScreen), iconsOn(kFill, all).copy(kScreen)) << signal;
  }
}

TEST_F(VistrelTest, DesktopCellsAndAMissingTitle) {
  for (int icon = 0; icon <= 9; ++icon) {
    if (icon > 0) engine.DesktopIcon = icon;
    engine.DrawDesktop();
    std::vector<PlacedIcon> icons{{1000, {5, 5}}};
    if (icon > 0)
      icons.push_back({1000 + icon, {6 + (icon - 1) % 3 * 33, 19 + (icon - 1) / 3 * 21}});
    EXPECT_EQ(part(kScreen), iconsOn(kDesktopFill, icons).copy(kScreen)) << icon;
  }
}

TEST_F(VistrelTest, ScreenImagesAreCentredOrCropped) {
  // A picture's size, a place on the surface, the pixel of the picture that it shows, and a place
  // that shows the fill colour, none when null.
  const std::tuple<QSize, QPoint, QPoint, QPoint> table[] = {
      {{101, 80}, {5, 20}, {0, 15}, {}},         {{101, 80}, {105, 70}, {100, 65}, {}},
      {{50, 40}, {31, 26}, {0, 0}, {30, 26}},    // Height 39: from 25.5; left 30.5.
      {{50, 40}, {80, 65}, {49, 39}, {80, 66}},  // All 40 rows.
      {{101, 100}, {5, 20}, {0, 25}, {}},        {{50, 100}, {31, 20}, {0, 25}, {81, 20}},
      {{200, 80}, {5, 20}, {50, 15}, {}},  // Source from 49.5.
      {{200, 100}, {5, 20}, {50, 25}, {}},       {{200, 60}, {30, 20}, {75, 5}, {30, 14}},
      {{200, 60}, {60, 70}, {105, 55}, {30, 75}}};
  for (const auto& [size, at, source, filled] : table) {
    background(map(size));
    engine.DrawStandby();
    EXPECT_EQ(pixel(at.x(), at.y()), qRgb(source.x(), source.y(), 77)) << size.width();
    EXPECT_TRUE(filled.isNull() || pixel(filled.x(), filled.y()) == kFill) << size.width();
    EXPECT_EQ(pixel(106, 40), kMargin) << size.width();
    EXPECT_EQ(pixel(50, 85), kMargin) << size.width();
  }
}

TEST_F(VistrelTest, ThroughAScreenImageShowsItsFillOrTheClearedSurface) {
  const std::pair<QSize, bool> sizes[] = {{{101, 80}, false},
                                          {{50, 40}, true},
                                          {{50, 100}, true},
                                          {{200, 100}, false},
                                          {{200, 60}, true}};
  for (const auto& [size, filled] : sizes) {
    const QString file = write("clear.gif", tinyGif(size, {{}, size}, 1, 1));
    background(file);
    engine.DrawStandby();
    EXPECT_EQ(pixel(5, 60), filled ? kFill : kMargin) << size.width();
    engine.setImage(gen2::DesktopBackgroundImage, file);
    engine.DrawDesktop();
    EXPECT_EQ(pixel(5, 60), filled ? kDesktopFill : kMargin) << size.width();
  }
}

TEST_F(VistrelTest, StandbyTypeDecidesImageAndOutlines) {
  engine.OperatorName = "World";
  engine.setColor(gen2::StandbyOperatorNameOutlineColor, "FF0000");
  engine.setColor(gen2::StandbyOperatorNameColor, "00FF00");
  engine.setColor(gen2::TextColor, "0000FF");
  background(map({101, 80}));
  for (const int type : {0, 1, 2}) {
    engine.StandbyType = type;
    engine.DrawStandby();
    EXPECT_EQ(pixel(20, 50), type == 0 ? kFill : qRgb(15, 45, 77)) << type;
    EXPECT_EQ(shows(0xFFFF0000), type == 1) << type;
    EXPECT_EQ(shows(0xFF00FF00), type != 0) << type;
    EXPECT_EQ(shows(0xFF0000FF), type == 0) << type;
  }
}

TEST_F(VistrelTest, FailingStepsAreSkipped) {
  engine.OperatorName = "World";
  background(path("none.gif"));
  engine.setColor(gen2::StandbyOperatorNameOutlineColor, "00FF00");
  engine.setColor(gen2::StandbyOperatorNameColor, "nocolr");
  const std::pair<const char*, QRgb> table[] = {
      {"102030", kFill}, {"12345G", kMargin}, {"FF", 0xFFFF0000}};
  for (const auto& [color, ground] : table) {
    engine.setColor(gen2::BackgroundColor, color);
    engine.DrawStandby();
    EXPECT_EQ(pixel(20, 50), ground) << color;
    EXPECT_TRUE(shows(0xFF00FF00)) << color;
    EXPECT_TRUE(boundsOf(surface.image(), 0xFF000000, {5, 5, 101, 13}).isNull())
        << "the outline's colour stays";
  }
}

}  // namespace

}  // namespace quillane

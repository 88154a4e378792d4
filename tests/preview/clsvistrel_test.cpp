// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview/clsvistrel.h"

#include "preview/paintsteps.h"
#include "probes.h"
#include "support/stillworld.h"
#include "support/temp_folder.h"
#include "support/text.h"
#include "support/tinygif.h"

namespace quillane {
namespace {

constexpr QRgb kMargin = 0xFFD4D0C8;
constexpr QRgb kFill = 0xFF102030;
constexpr QRgb kDesktopFill = 0xFF405060;
const QRect kScreen(5, 5, 101, 80);

class VistrelTest : public TempFolder {
 protected:
  VistrelTest() {
    engine.setSurface(surface);
    engine.setColor(gen2::BackgroundColor, QStringLiteral("102030"));
    engine.setColor(gen2::DesktopBackgroundColor, QStringLiteral("405060"));
  }

  QRgb pixel(int x, int y) const { return surface.image().pixel(x, y); }
  bool shows(QRgb color, const QRect& part = kScreen) const {
    return !boundsOf(surface.image().copy(part), color).isNull();
  }
  /// Saves a picture whose pixels tell their own place.
  QString map(QSize size) const {
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x)
        image.setPixel(x, y, qRgb(x, y, 77));
    QString file = path(QStringLiteral("map.bmp"));
    EXPECT_TRUE(image.save(file));
    return file;
  }
  void background(const QString& file) {
    engine.setImage(gen2::BackgroundImage, file);
    engine.StandbyType = 1;
  }

  StillWorld world;
  clsVistrel engine{world};
  Surface surface{Surface::kSize2};
};

TEST_F(VistrelTest, AStepThatFailsLeavesFontAndPictureAsTheyWere) {
  PaintSteps steps(surface);
  steps.setTextColor(QStringLiteral("123456"));
  steps.setTextColor(QStringLiteral("nocolr"));
  EXPECT_EQ(steps.font.Color, 0x563412U);
  steps.load(map({3, 3}));
  steps.load(path(QStringLiteral("none.bmp")));
  steps.icon(9999, 5, 5);
  EXPECT_EQ(pixel(7, 6), qRgb(2, 1, 77)) << "the former picture, painted again";
}

TEST_F(VistrelTest, DefaultsReplaceTheThemeAndKeepThePhone) {
  ThemeValues theme(Generation::Two);
  theme.setImage(gen2::BackgroundImage, QStringLiteral("/back.gif"));
  theme.setColor(gen2::TitleColor, QStringLiteral("123456"));
  engine.takeTheme(theme);
  EXPECT_EQ(engine.StandbyType, 1);
  engine.OperatorName = QStringLiteral("World");
  engine.PopupPaddingLeftTop = QStringLiteral("9 9");
  engine.DefaultColors();
  EXPECT_EQ(engine.StandbyType, 0);
  EXPECT_EQ(engine.image(gen2::BackgroundImage), QString());
  EXPECT_EQ(engine.color(gen2::TitleColor), QStringLiteral("0000FF"));
  EXPECT_EQ(engine.PopupPaddingLeftTop, QStringLiteral("3 5"));
  EXPECT_EQ(engine.OperatorName, QStringLiteral("World"));
}

TEST_F(VistrelTest, StatusIcons) {
  const struct {
    int type;
    bool gprs;
    int range;
    bool line;
    int lineIcon;
    bool infrared;
    int signal, battery;
    std::vector<PlacedIcon> icons;  // Behind those of signal and battery.
  } table[] = {
      {0, false, 1, false, 1, false, 0, 0, {}},
      {0, true, 0, false, 1, false, 1, 1, {{1300, {5, 72}}}},
      {0, true, 1, false, 1, false, 2, 3, {{1301, {5, 72}}}},
      {0, false, 1, true, 1, false, 3, 9, {{1400, {8, 6}}}},
      {0, false, 1, true, 2, true, 4, 10, {{1401, {23, 6}}, {1500, {9, 6}}}},
      {1, true, 1, true, 2, false, 5, 10, {{1301, {5, 72}}, {1401, {8, 38}}}},
      {1, false, 1, true, 1, true, 5, 10, {{1400, {8, 38}}, {1500, {94, 35}}}},
      {2, false, 1, true, 2, true, 5, 10, {{1401, {23, 6}}, {1500, {9, 6}}}},
  };
  for (const auto& row : table) {
    engine.StandbyType = row.type;
    engine.ShowGPRSIcon = row.gprs;
    engine.GPRSRange = row.range;
    engine.ShowLineIcon = row.line;
    engine.LineIcon = row.lineIcon;
    engine.ShowIRIcon = row.infrared;
    engine.SignalStrength = row.signal;
    engine.BatteryLevel = row.battery;
    engine.DrawStandby();
    std::vector<PlacedIcon> icons{{1200 + row.signal, {5, 76}}, {1100 + row.battery, {86, 75}}};
    icons.insert(icons.end(), row.icons.begin(), row.icons.end());
    EXPECT_EQ(surface.image().copy(kScreen), iconsOn(kFill, icons).copy(kScreen))
        << "row " << &row - table;
  }
}

TEST_F(VistrelTest, DesktopCellsAndAMissingTitle) {
  for (int icon = 0; icon <= 9; ++icon) {
    if (icon > 0) engine.DesktopIcon = icon;
    engine.DrawDesktop();
    std::vector<PlacedIcon> icons{{1000, {5, 5}}};
    if (icon > 0)
      icons.push_back({1000 + icon, {6 + (icon - 1) % 3 * 33, 19 + (icon - 1) / 3 * 21}});
    EXPECT_EQ(surface.image().copy(kScreen), iconsOn(kDesktopFill, icons).copy(kScreen)) << icon;
  }
}

TEST_F(VistrelTest, ScreenImagesAreCentredOrCropped) {
  const struct {
    QSize size;
    QPoint at;      // A place on the surface ...
    QPoint source;  // ... and the pixel of the picture that it shows.
    QPoint filled;  // A place that shows the fill colour; none when null.
  } table[] = {
      {{101, 80}, {5, 20}, {0, 15}, {}},          {{101, 80}, {105, 70}, {100, 65}, {}},
      {{50, 40}, {31, 26}, {0, 0}, {30, 26}},    // Height 39: from 25.5; left 30.5.
      {{50, 40}, {80, 65}, {49, 39}, {80, 66}},  // All 40 rows.
      {{101, 100}, {5, 20}, {0, 25}, {}},         {{50, 100}, {31, 20}, {0, 25}, {81, 20}},
      {{200, 80}, {5, 20}, {50, 15}, {}},  // Source from 49.5.
      {{200, 100}, {5, 20}, {50, 25}, {}},        {{200, 60}, {30, 20}, {75, 5}, {30, 14}},
      {{200, 60}, {60, 70}, {105, 55}, {30, 75}},
  };
  for (const auto& row : table) {
    background(map(row.size));
    engine.DrawStandby();
    const testing::Message shown = testing::Message()
                                   << row.size.width() << "x" << row.size.height();
    EXPECT_EQ(pixel(row.at.x(), row.at.y()), qRgb(row.source.x(), row.source.y(), 77)) << shown;
    if (!row.filled.isNull()) {
      EXPECT_EQ(pixel(row.filled.x(), row.filled.y()), kFill) << shown;
    }
    EXPECT_EQ(pixel(106, 40), kMargin) << shown;
    EXPECT_EQ(pixel(50, 85), kMargin) << shown;
  }
}

TEST_F(VistrelTest, ThroughAScreenImageShowsItsFillOrTheClearedSurface) {
  const struct {
    QSize size;
    bool filled;
  } table[] = {{{101, 80}, false},
               {{50, 40}, true},
               {{50, 100}, true},
               {{200, 100}, false},
               {{200, 60}, true}};
  for (const auto& row : table) {
    const QString file =
        write(QStringLiteral("clear.gif"), tinyGif(row.size, {{}, row.size}, 1, 1));
    background(file);
    engine.DrawStandby();
    EXPECT_EQ(pixel(5, 60), row.filled ? kFill : kMargin) << row.size.width();
    engine.setImage(gen2::DesktopBackgroundImage, file);
    engine.DrawDesktop();
    EXPECT_EQ(pixel(5, 60), row.filled ? kDesktopFill : kMargin) << row.size.width();
  }
}

TEST_F(VistrelTest, StandbyTypeDecidesImageAndOutlines) {
  engine.OperatorName = QStringLiteral("World");
  engine.setColor(gen2::StandbyOperatorNameOutlineColor, QStringLiteral("FF0000"));
  engine.setColor(gen2::StandbyOperatorNameColor, QStringLiteral("00FF00"));
  engine.setColor(gen2::TextColor, QStringLiteral("0000FF"));
  background(map({101, 80}));
  const struct {
    int type;
    bool image, outline, name, plain;
  } table[] = {
      {0, false, false, false, true}, {1, true, true, true, false}, {2, true, false, true, false}};
  for (const auto& row : table) {
    engine.StandbyType = row.type;
    engine.DrawStandby();
    EXPECT_EQ(pixel(20, 50), row.image ? qRgb(15, 45, 77) : kFill) << row.type;
    EXPECT_EQ(shows(0xFFFF0000), row.outline) << row.type;
    EXPECT_EQ(shows(0xFF00FF00), row.name) << row.type;
    EXPECT_EQ(shows(0xFF0000FF), row.plain) << row.type;
  }
}

TEST_F(VistrelTest, FailingStepsAreSkipped) {
  engine.OperatorName = QStringLiteral("World");
  background(path(QStringLiteral("none.gif")));
  engine.setColor(gen2::StandbyOperatorNameOutlineColor, QStringLiteral("00FF00"));
  engine.setColor(gen2::StandbyOperatorNameColor, QStringLiteral("nocolr"));
  const struct {
    const char* color;
    QRgb ground;
  } table[] = {{"102030", kFill}, {"12345G", kMargin}, {"FF", 0xFFFF0000}};
  for (const auto& row : table) {
    engine.setColor(gen2::BackgroundColor, QString::fromUtf8(row.color));
    engine.DrawStandby();
    EXPECT_EQ(pixel(20, 50), row.ground) << row.color;
    EXPECT_TRUE(shows(0xFF00FF00)) << row.color;
    EXPECT_FALSE(shows(0xFF000000, QRect(5, 5, 101, 13))) << "the name keeps its outline's colour";
  }
}

}  // namespace
}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview/clsvistrel.h"

#include "preview/paintsteps.h"
#include "preview/picture.h"
#include "preview/surface.h"
#include "support/faults.h"
#include "support/stillworld.h"
#include "support/tinygif.h"

#include <QFile>
#include <QTemporaryDir>
#include <gmock/gmock.h>

namespace quillane {
namespace {

constexpr QRgb kMargin = 0xFFD4D0C8;
constexpr QRgb kFill = 0xFF102030;

class VistrelTest : public testing::Test {
 protected:
  VistrelTest() {
    engine.setSurface(surface);
    engine.setColor(gen2::BackgroundColor, QStringLiteral("102030"));
    engine.setColor(gen2::DesktopBackgroundColor, QStringLiteral("102030"));
  }

  QRgb pixel(int x, int y) const { return surface.image().pixel(x, y); }
  int count(QRgb color, const QRect& part = QRect(5, 5, 101, 80)) const {
    int found = 0;
    for (int y = part.top(); y <= part.bottom(); ++y)
      for (int x = part.left(); x <= part.right(); ++x)
        found += pixel(x, y) == color ? 1 : 0;
    return found;
  }
  void background(const QImage& image) { use(image, folder.filePath(QStringLiteral("back.bmp"))); }
  void use(const QImage& image, const QString& path) {
    ASSERT_TRUE(image.save(path));
    engine.setImage(gen2::BackgroundImage, path);
    engine.StandbyType = 1;
  }

  QTemporaryDir folder;
  test::StillWorld world;
  clsVistrel engine{world};
  Surface surface{Surface::kSize2};
};

/// A picture whose pixels tell their own place.
QImage map(int width, int height) {
  QImage image(width, height, QImage::Format_RGB32);
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x)
      image.setPixel(x, y, qRgb(x, y, 77));
  return image;
}

TEST(PaintStepsTest, AStepThatFailsLeavesFontAndPictureAsTheyWere) {
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("map.bmp"));
  ASSERT_TRUE(map(3, 3).save(path));
  Surface surface(QSize(9, 9));
  PaintSteps steps(surface);
  steps.setTextColor(QStringLiteral("123456"));
  steps.setTextColor(QStringLiteral("nocolr"));
  EXPECT_EQ(steps.font.Color, 0x563412U);
  steps.load(path);
  steps.load(folder.filePath(QStringLiteral("none.bmp")));
  steps.icon(9999, 5, 5);
  EXPECT_EQ(surface.image().pixel(7, 6), qRgb(2, 1, 77)) << "the former picture, painted again";
}

TEST_F(VistrelTest, BoundedSettersPutAFixedValueInPlaceOfABadOne) {
  EXPECT_EQ(engine.SignalStrength, 0);
  EXPECT_EQ(engine.DesktopIcon, 0);
  const auto after = [](auto& property, int value) {
    property = value;
    return static_cast<int>(property);
  };
  EXPECT_EQ(after(engine.SignalStrength, 0), 0);
  EXPECT_EQ(after(engine.SignalStrength, 5), 5);
  EXPECT_EQ(after(engine.SignalStrength, 6), 5);
  EXPECT_EQ(after(engine.SignalStrength, -1), 5);
  EXPECT_EQ(after(engine.BatteryLevel, 11), 10);
  EXPECT_EQ(after(engine.BatteryLevel, -3), 10);
  EXPECT_EQ(after(engine.GPRSRange, 0), 0);
  EXPECT_EQ(after(engine.GPRSRange, 2), 1);
  EXPECT_EQ(after(engine.LineIcon, 2), 2);
  EXPECT_EQ(after(engine.LineIcon, 0), 1);
  EXPECT_EQ(after(engine.DesktopIcon, 0), 0);
  EXPECT_EQ(after(engine.DesktopIcon, 10), 5);
  engine.CalendarDateFormat = QString();
  EXPECT_EQ(static_cast<const QString&>(engine.CalendarDateFormat), QStringLiteral("mmm yyyy"));
}

TEST_F(VistrelTest, DefaultsReplaceTheThemeAndKeepThePhone) {
  engine.setColor(gen2::TextColor, QString());
  engine.setColor(gen2::DesktopTitleOutlineColor, QString());
  EXPECT_EQ(engine.color(gen2::TextColor), QStringLiteral("000000"));
  EXPECT_EQ(engine.color(gen2::DesktopTitleOutlineColor), QStringLiteral("FFFFFF"));

  ThemeValues theme(Generation::Two);
  theme.setImage(gen2::BackgroundImage, QStringLiteral("/back.gif"));
  engine.takeTheme(theme);
  EXPECT_EQ(engine.StandbyType, 1);
  engine.OperatorName = QStringLiteral("World");
  engine.PopupPaddingLeftTop = QStringLiteral("9 9");
  engine.setColor(gen2::TitleColor, QStringLiteral("123456"));
  engine.DefaultColors();
  EXPECT_EQ(engine.StandbyType, 0);
  EXPECT_EQ(engine.image(gen2::BackgroundImage), QString());
  EXPECT_EQ(engine.color(gen2::TitleColor), QStringLiteral("0000FF"));
  EXPECT_EQ(engine.PopupPaddingLeftTop, QStringLiteral("3 5"));
  EXPECT_EQ(engine.OperatorName, QStringLiteral("World"));
  engine.takeTheme(ThemeValues(Generation::Two));
  EXPECT_EQ(engine.StandbyType, 0);
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
    background(map(row.size.width(), row.size.height()));
    engine.DrawStandby();
    EXPECT_EQ(pixel(row.at.x(), row.at.y()), qRgb(row.source.x(), row.source.y(), 77))
        << row.size.width() << "x" << row.size.height();
    if (!row.filled.isNull()) {
      EXPECT_EQ(pixel(row.filled.x(), row.filled.y()), kFill)
          << row.size.width() << "x" << row.size.height();
    }
    EXPECT_EQ(pixel(4, 40), kMargin);
    EXPECT_EQ(pixel(106, 40), kMargin);
    EXPECT_EQ(pixel(50, 4), kMargin);
    EXPECT_EQ(pixel(50, 85), kMargin);
  }
}

TEST_F(VistrelTest, AnImageOfTheScreensSizeShowsTheClearedSurface) {
  QFile file(folder.filePath(QStringLiteral("clear.gif")));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(test::tinyGif({101, 80}, {0, 0, 101, 40}, 1, 1));
  file.close();
  engine.setImage(gen2::BackgroundImage, file.fileName());
  engine.StandbyType = 1;
  engine.DrawStandby();
  EXPECT_EQ(pixel(50, 30), kMargin);
  EXPECT_EQ(count(kFill), 0);
}

TEST_F(VistrelTest, StandbyTypeDecidesImageAndOutlines) {
  engine.OperatorName = QStringLiteral("World");
  engine.setColor(gen2::StandbyOperatorNameOutlineColor, QStringLiteral("FF0000"));
  engine.setColor(gen2::StandbyOperatorNameColor, QStringLiteral("00FF00"));
  engine.setColor(gen2::TextColor, QStringLiteral("0000FF"));
  background(map(101, 80));
  const QRect top(5, 5, 101, 13);
  const QRect lower(5, 20, 101, 13);

  engine.StandbyType = 0;
  engine.DrawStandby();
  EXPECT_EQ(pixel(20, 50), kFill);
  EXPECT_EQ(count(0xFF0000FF, top), 0);
  EXPECT_GT(count(0xFF0000FF, lower), 0);

  engine.StandbyType = 1;
  engine.DrawStandby();
  EXPECT_EQ(pixel(20, 50), qRgb(15, 45, 77));
  EXPECT_GT(count(0xFFFF0000, top), 0);
  EXPECT_GT(count(0xFF00FF00, top), 0);
  EXPECT_EQ(count(0xFF0000FF), 0);

  engine.StandbyType = 2;
  engine.DrawStandby();
  EXPECT_EQ(count(0xFFFF0000), 0);
  EXPECT_GT(count(0xFF00FF00, top), 0);
}

TEST_F(VistrelTest, TheClockFollowsTheWorldAndItsFormat) {
  engine.TimeFormat = QStringLiteral("hh:mm");
  engine.DrawStandby();
  const QImage morning = surface.image().copy();
  engine.DrawStandby();
  EXPECT_EQ(surface.image(), morning);
  world.time = world.time.addSecs(60);
  engine.DrawStandby();
  EXPECT_NE(surface.image(), morning);
}

TEST_F(VistrelTest, FailingStepsAreSkipped) {
  engine.OperatorName = QStringLiteral("World");
  engine.setImage(gen2::BackgroundImage, folder.filePath(QStringLiteral("none.gif")));
  engine.StandbyType = 1;
  engine.setColor(gen2::StandbyOperatorNameOutlineColor, QStringLiteral("00FF00"));
  engine.setColor(gen2::StandbyOperatorNameColor, QStringLiteral("nocolr"));
  engine.DrawStandby();
  EXPECT_EQ(pixel(20, 50), kFill) << "an unreadable image shows the fill";
  EXPECT_GT(count(0xFF00FF00), 0);
  EXPECT_EQ(count(0xFF000000, QRect(5, 5, 101, 13)), 0) << "the name keeps its outline's colour";

  engine.setColor(gen2::BackgroundColor, QStringLiteral("12345G"));
  engine.DrawStandby();
  EXPECT_EQ(pixel(20, 50), kMargin);
  EXPECT_GT(count(0xFF00FF00), 0);

  engine.setColor(gen2::BackgroundColor, QStringLiteral("FF"));
  engine.DrawStandby();
  EXPECT_EQ(pixel(20, 50), 0xFFFF0000) << "a short colour is filled up on the right";
}

TEST_F(VistrelTest, TheDesktopTitleIsOutlinedAndMayBeMissing) {
  engine.setColor(gen2::DesktopTitleColor, QStringLiteral("00FF00"));
  engine.setColor(gen2::DesktopTitleOutlineColor, QStringLiteral("FF0000"));
  engine.DesktopTitle = QStringLiteral("One|Two");
  const QRect top(5, 4, 101, 13);
  for (const int icon : {2, 3, 0}) {
    engine.DesktopIcon = icon;
    engine.DrawDesktop();
    EXPECT_EQ(count(0xFF00FF00, top) > 0, icon == 2) << icon;
    EXPECT_EQ(count(0xFFFF0000, top) > 0, icon == 2) << icon;
    EXPECT_EQ(pixel(5, 84), kFill);
  }
}

}  // namespace
}  // namespace quillane

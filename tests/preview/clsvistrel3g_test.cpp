// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview/clsvistrel3g.h"

#include "preview/picture.h"
#include "preview/screens.h"
#include "preview/surface.h"
#include "support/faults.h"
#include "support/samplephone.h"
#include "support/stillworld.h"

#include <QTemporaryDir>
#include <gmock/gmock.h>

#include <functional>

namespace quillane {
namespace {

using test::faultOf;

constexpr QRgb kMargin = 0xFFD4D0C8;

class Vistrel3GTest : public testing::Test {
 protected:
  void SetUp() override {
    engine.setSurface(surface);
    test::fillPhone(engine);
  }

  QRgb pixel(int x, int y) const { return surface.image().pixel(x, y); }
  QString file(QSize size, QRgb color) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    QString path = folder.filePath(QStringLiteral("%1.bmp").arg(++files));
    EXPECT_TRUE(image.save(path));
    return path;
  }

  int files = 0;
  QTemporaryDir folder;
  test::StillWorld world;
  clsVistrel3G engine{world};
  Surface surface{Surface::kSize3G};
};

TEST_F(Vistrel3GTest, BoundedSettersAndDefaults) {
  clsVistrel3G fresh(world);
  EXPECT_FALSE(fresh.DrawImages);
  EXPECT_EQ(fresh.DesktopIcon, 0);
  fresh.DesktopIcon = 12;
  EXPECT_EQ(fresh.DesktopIcon, 12);
  fresh.DesktopIcon = 0;
  EXPECT_EQ(fresh.DesktopIcon, 5);
  fresh.DesktopIcon = 13;
  EXPECT_EQ(fresh.DesktopIcon, 5);
  fresh.setColor(gen3g::TextColor, QString());
  EXPECT_EQ(fresh.color(gen3g::TextColor), QString());
  fresh.DefaultColors();
  EXPECT_EQ(fresh.color(gen3g::BackgroundColor), QStringLiteral("C0DFFF"));
}

TEST_F(Vistrel3GTest, ZonesShowTheirImageOrTheirColour) {
  // A picture larger than its zone is cut to it.
  engine.setImage(gen3g::WallpaperImage, file({200, 200}, 0xFF00AA00));
  engine.setImage(gen3g::StatusbarBackgroundImage, file({60, 200}, 0xFFAA0000));
  engine.DrawStandby();
  EXPECT_EQ(pixel(40, 18), 0xFFAA0000);
  EXPECT_EQ(pixel(64, 5), 0xFFAA0000);
  EXPECT_EQ(pixel(65, 5), 0xFF000000) << "black below what the image leaves";
  EXPECT_EQ(pixel(5, 19), 0xFF00AA00);
  EXPECT_EQ(pixel(132, 145), 0xFF00AA00);
  EXPECT_EQ(pixel(133, 100), kMargin);
  EXPECT_EQ(pixel(5, 146), 0xFFC0DFFF);
  EXPECT_EQ(pixel(132, 164), 0xFFC0DFFF);
  EXPECT_EQ(pixel(100, 165), kMargin);

  engine.DrawImages = false;
  engine.DrawStandby();
  const QImage without = surface.image().copy();
  engine.DrawImages = true;
  engine.setImage(gen3g::WallpaperImage, QString());
  engine.setImage(gen3g::StatusbarBackgroundImage, QString());
  engine.DrawStandby();
  EXPECT_EQ(surface.image(), without);
  EXPECT_EQ(pixel(5, 19), 0xFFC0DFFF);
}

TEST_F(Vistrel3GTest, SoftkeyBoxes) {
  const QRgb bar = 0xFFC0DFFF;
  const QRgb key = 0xFFBDBDBD;
  const QRgb pressed = 0xFFF6F6F5;
  const struct {
    const char* name;
    std::function<void()> draw;
    std::vector<QRgb>
        row;  // Bottom row of the boxes at x = 6, 7, 59, 60, 67, 68, 70, 80, 130, 131.
  } table[] = {
      {"standby",
       [&] { engine.DrawStandby(); },
       {bar, key, key, bar, bar, bar, bar, key, key, bar}},
      {"one label",
       [&] { engine.DrawDesktop(); },
       {bar, key, key, key, key, bar, bar, bar, bar, bar}},
      {"two labels",
       [&] {
         engine.DesktopSoftkeyText = QStringLiteral("a|b");
         engine.DrawDesktop();
       },
       {bar, key, key, key, key, bar, key, key, key, bar}},
      {"three labels",
       [&] {
         engine.DesktopSoftkeyText = QStringLiteral("a|b|c");
         engine.DrawDesktop();
       },
       {bar, key, key, key, key, bar, bar, bar, bar, bar}},
      {"pressed",
       [&] { engine.DrawSoftkeys(1); },
       {bar, key, key, key, key, bar, pressed, pressed, pressed, bar}},
      {"an image has no boxes",
       [&] {
         engine.setImage(gen3g::SoftkeysBackgroundImage, file({128, 19}, bar));
         engine.DrawSoftkeys(1);
       },
       {bar, bar, bar, bar, bar, bar, bar, bar, bar, bar}},
  };
  for (const auto& row : table) {
    row.draw();
    std::vector<QRgb> seen;
    for (const int x : {6, 7, 59, 60, 67, 68, 70, 80, 130, 131})
      seen.push_back(pixel(x, 162));
    EXPECT_EQ(seen, row.row) << row.name;
  }
}

TEST_F(Vistrel3GTest, ALargerSoftkeyImageShowsBelowItsZone) {
  engine.setImage(gen3g::SoftkeysBackgroundImage, file({130, 22}, 0xFF00AA00));
  engine.DrawDesktop();
  EXPECT_EQ(pixel(40, 165), kMargin);
  engine.DrawSoftkeys(0);
  EXPECT_EQ(pixel(40, 167), 0xFF00AA00);
  EXPECT_EQ(pixel(134, 150), 0xFF00AA00);
}

TEST_F(Vistrel3GTest, EveryRowRollsTheDiceAnew) {
  world.nextRandom = 0.49;
  engine.DrawSoftkeys(0);
  EXPECT_EQ(world.reseeded, 5);
  const QImage empty = surface.image().copy();
  world.nextRandom = 0.5;
  engine.DrawSoftkeys(0);
  for (int row = 0; row < 6; ++row)
    EXPECT_EQ(
        surface.image().copy(10, 47 + 16 * row, 10, 10) == empty.copy(10, 47 + 16 * row, 10, 10),
        row == 0)
        << row;
}

TEST_F(Vistrel3GTest, FaultsRiseAndLeaveWhatWasPainted) {
  engine.StandbySoftkeyText = QStringLiteral("Calls");
  EXPECT_EQ(faultOf([&] { engine.DrawStandby(); }), FaultNumber::BadIndex);
  EXPECT_EQ(pixel(80, 148), 0xFFBDBDBD) << "the right box is there";
  EXPECT_EQ(surface.image().copy(62, 151, 17, 11), [] {
    QImage i(17, 11, QImage::Format_RGB32);
    i.fill(0xFFC0DFFF);
    return i;
  }()) << "the symbol between the keys is not";

  engine.DesktopTitles = QStringLiteral("1|2|3|4");
  EXPECT_EQ(faultOf([&] { engine.DrawDesktop(); }), FaultNumber::BadIndex);
  EXPECT_EQ(pixel(7, 148), kMargin) << "no soft keys";

  engine.SoftkeysMenuText1 = QStringLiteral("a|b|c|d|e");
  EXPECT_EQ(faultOf([&] { engine.DrawSoftkeys(0); }), FaultNumber::BadIndex);
  EXPECT_EQ(faultOf([&] { engine.DrawSoftkeys(1); }), std::nullopt);
  EXPECT_EQ(faultOf([&] { engine.DrawSoftkeys(2); }), FaultNumber::BadIndex);

  engine.setImage(gen3g::TitleImage, folder.filePath(QStringLiteral("none.gif")));
  EXPECT_EQ(faultOf([&] { engine.DrawSoftkeys(1); }), FaultNumber::FileNotFound);
  EXPECT_EQ(pixel(5, 18), 0xFFC0DFFF);
  EXPECT_EQ(pixel(5, 19), kMargin);

  engine.setColor(gen3g::BackgroundColor, QStringLiteral("green"));
  EXPECT_EQ(faultOf([&] { engine.DrawDesktop(); }), FaultNumber::BadNumber);
  EXPECT_EQ(pixel(5, 5), 0xFF000000);
}

TEST_F(Vistrel3GTest, ScreensOfTheTableDifferAndStayInsideTheirFrame) {
  QList<QImage> seen;
  for (const auto& screen : screensOf3G()) {
    screen.paint(engine);
    EXPECT_FALSE(seen.contains(surface.image())) << screen.id.data();
    seen.append(surface.image().copy());
    for (int x = 0; x < 138; ++x) {
      EXPECT_EQ(pixel(x, 4), kMargin) << screen.id.data();
      EXPECT_EQ(pixel(x, 165), kMargin) << screen.id.data();
    }
  }
}

}  // namespace
}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview/picture.h"

#include "support/faults.h"
#include "support/tinygif.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gmock/gmock.h>

namespace quillane {
namespace {

using test::faultOf;
using test::tinyGif;

TEST(PictureTest, SizesForPlacementAreCutFromHimetric) {
  const struct {
    int pixels;
    int seen;
  } table[] = {{1, 0},   {2, 2},   {15, 15},   {16, 15},   {17, 17},   {27, 26},   {28, 28},
               {40, 39}, {80, 80}, {101, 101}, {127, 127}, {128, 128}, {160, 160}, {4096, 4096}};
  for (const auto& row : table) {
    const Picture picture(QImage(row.pixels, 1, QImage::Format_RGB32));
    EXPECT_EQ(picture.width(), row.seen) << row.pixels;
  }
  EXPECT_EQ(Picture().width(), 0);
  EXPECT_EQ(Picture().height(), 0);
}

TEST(PictureTest, PixelsAreOpaqueOrAbsent) {
  QImage image(3, 1, QImage::Format_ARGB32);
  image.setPixel(0, 0, 0x7F123456);
  image.setPixel(1, 0, 0x80123456);
  image.setPixel(2, 0, 0xFF123456);
  const QImage kept = Picture(image).image();
  EXPECT_EQ(qAlpha(kept.pixel(0, 0)), 0);
  EXPECT_EQ(kept.pixel(1, 0), 0xFF123456);
  EXPECT_EQ(kept.pixel(2, 0), 0xFF123456);
}

QByteArray encoded(const char* format, QSize size = {3, 2}) {
  QImage image(size, QImage::Format_RGB32);
  image.fill(Qt::red);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, format);
  return bytes;
}

TEST(PictureTest, FilesAreReadByContent) {
  const QTemporaryDir folder;
  const auto load = [&](const char* name, const QByteArray& bytes) {
    QFile file(folder.filePath(QString::fromUtf8(name)));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    file.close();
    return LoadPicture(file.fileName()).image();
  };
  const QRect whole(0, 0, 3, 2);
  const QByteArray gif = tinyGif({3, 2}, whole, 1);
  const QByteArray longGif = tinyGif({30, 20}, {0, 0, 30, 20}, 1);

  const struct {
    const char* name;
    QByteArray bytes;
    QSize size;
  } readable[] = {
      {"gif.gif", gif, {3, 2}},
      {"gif named.jpg", gif, {3, 2}},
      {"gif without a suffix", gif, {3, 2}},
      {"gif@2x.gif", gif, {3, 2}},
      {"gif cut in its data.gif", longGif.chopped(40), {30, 20}},
      {"gif of the longest side.gif", tinyGif({4096, 1}, whole, 1), {4096, 1}},
      {"gif frame below its screen.gif", tinyGif({8, 7}, {2, 3, 3, 2}, 1), {8, 7}},
      {"gif frame beyond its screen.gif", tinyGif({2, 2}, {0, 0, 30, 20}, 1), {2, 2}},
      {"jpeg.jpg", encoded("jpeg"), {3, 2}},
      {"jpeg named.gif", encoded("jpeg"), {3, 2}},
      {"bitmap.bmp", encoded("bmp"), {3, 2}},
      {"icon.ico", encoded("ico", {16, 16}), {16, 16}},
  };
  for (const auto& row : readable)
    EXPECT_EQ(load(row.name, row.bytes).size(), row.size) << row.name;

  const struct {
    const char* name;
    QByteArray bytes;
  } unreadable[] = {
      {"png.png", encoded("png")},
      {"png named.gif", encoded("png")},
      {"pixmap.ppm", encoded("ppm")},
      {"text.gif", "no picture at all"},
      {"empty.gif", ""},
      {"gif header alone.gif", gif.left(13)},
      {"gif cut in its header.gif", gif.left(8)},
      {"gif screen too wide.gif", tinyGif({5000, 1}, whole, 1)},
      {"gif screen too high.gif", tinyGif({1, 4097}, whole, 1)},
      {"gif screen of the largest size.gif", tinyGif({65535, 65535}, whole, 1)},
      {"bitmap too wide.bmp", encoded("bmp", {4097, 1})},
      {"jpeg too high.jpg", encoded("jpeg", {1, 5000})},
      {"jpeg cut in its header.jpg", encoded("jpeg").left(20)},
  };
  for (const auto& row : unreadable)
    EXPECT_EQ(faultOf([&] { load(row.name, row.bytes); }), FaultNumber::BadPicture) << row.name;

  EXPECT_EQ(faultOf([&] { LoadPicture(folder.filePath(QStringLiteral("none.gif"))); }),
            FaultNumber::FileNotFound);
  EXPECT_EQ(faultOf([&] { LoadPicture(folder.path()); }), FaultNumber::FileNotFound);
}

TEST(PictureTest, TransparentGifKeepsItsHoles) {
  const QTemporaryDir folder;
  QFile file(folder.filePath(QStringLiteral("hole.gif")));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(tinyGif({4, 3}, {1, 1, 2, 1}, 1, 2));
  file.close();
  const QImage image = LoadPicture(file.fileName()).image();
  ASSERT_EQ(image.format(), QImage::Format_ARGB32);
  for (int y = 0; y < 3; ++y)
    for (int x = 0; x < 4; ++x) {
      const bool inFrame = y == 1 && (x == 1 || x == 2);
      EXPECT_EQ(qAlpha(image.pixel(x, y)), inFrame ? 255 : 0) << x << "," << y;
    }
}

TEST(PictureTest, UnknownIconIsAFault) {
  EXPECT_EQ(faultOf([] { LoadResourcePicture(9999); }), FaultNumber::ResourceNotFound);
}

}  // namespace
}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview/picture.h"

#include "support/tempfolder.h"
#include "support/tinygif.h"

#include <QBuffer>
#include <QRegion>

#include <malloc.h>

namespace quillane {

namespace {

class PictureTest : public TempFolder {
 protected:
  QImage load(const char* name, const QByteArray& bytes) const {
    return LoadPicture(write(name, bytes)).image();
  }
};

TEST_F(PictureTest, SizesForPlacementAreCutFromHimetric) {
  const std::pair<int, int> sizes[] = {{0, 0},     {1, 0},     {2, 2},      {15, 15},
                                       {16, 15},   {27, 26},   {40, 39},    {80, 80},
                                       {101, 101}, {128, 128}, {4096, 4096}};
  for (const auto& [pixels, seen] : sizes) {
    EXPECT_EQ(Picture(QImage(pixels, 1, QImage::Format_RGB32)).width(), seen) << pixels;
    EXPECT_EQ(Picture(QImage(1, pixels, QImage::Format_RGB32)).height(), seen) << pixels;
  }
}

TEST_F(PictureTest, PixelsAreOpaqueOrAbsent) {
  for (const auto& [given, kept] :
       {std::pair{0x7F123456U, 0x00123456U}, {0x80123456, 0xFF123456}}) {
    QImage image(1, 1, QImage::Format_ARGB32);
    image.fill(given);
    EXPECT_EQ(Picture(image).image().pixel(0, 0), kept);
  }
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

TEST_F(PictureTest, FilesAreReadByContent) {
  const QRect whole(0, 0, 3, 2);
  const QByteArray gif = tinyGif({3, 2}, whole, 1);
  const QByteArray longGif = tinyGif({30, 20}, {0, 0, 30, 20}, 1);

  // A null size: it cannot be read.
  const std::tuple<const char*, QByteArray, QSize> table[] = {
      {"gif.gif", gif, {3, 2}},
      {"gif named.jpg", gif, {3, 2}},
      {"gif without a suffix", gif, {3, 2}},
      {"gif@2x.gif", gif, {3, 2}},
      {"gif cut in its data.gif", longGif.chopped(40), {30, 20}},
      {"gif of the longest sides.gif", tinyGif({4096, 4096}, whole, 1), {4096, 4096}},
      {"gif frame below its screen.gif", tinyGif({8, 7}, {2, 3, 3, 2}, 1), {8, 7}},
      {"gif frame beyond its screen.gif", tinyGif({2, 2}, {0, 0, 30, 20}, 1), {2, 2}},
      {"jpeg.jpg", encoded("jpeg"), {3, 2}},
      {"bitmap.bmp", encoded("bmp"), {3, 2}},
      {"icon.ico", encoded("ico", {16, 16}), {16, 16}},
      {"png.png", encoded("png"), {}},
      {"pixmap.ppm", encoded("ppm"), {}},
      {"text.gif", "no picture at all", {}},
      {"empty.gif", "", {}},
      {"gif cut in its header.gif", gif.left(8), {}},
      {"gif screen too wide.gif", tinyGif({5000, 1}, whole, 1), {}},
      {"bitmap too wide.bmp", encoded("bmp", {4097, 1}), {}},
      {"jpeg too high.jpg", encoded("jpeg", {1, 5000}), {}},
      {"jpeg cut in its header.jpg", encoded("jpeg").left(20), {}}};
  for (const auto& [name, bytes, size] : table) {
    QSize seen;
    const QString file = write(name, bytes);
    const int number = faultNumberOf([&] { seen = LoadPicture(file).image().size(); });
    EXPECT_EQ(number, size.isValid() ? 0 : 481) << name;
    EXPECT_EQ(seen, size) << name;
  }
  EXPECT_EQ(faultNumberOf([&] { LoadPicture(path("none.gif")); }), 53);
  EXPECT_EQ(faultNumberOf([&] { LoadPicture(path()); }), 53);

  // The first of two frames; the second one begins behind header and palette.
  const QByteArray twoFrames = gif.chopped(1) + tinyGif({3, 2}, whole, 2).mid(25);
  EXPECT_EQ(load("two frames.gif", twoFrames).pixel(0, 0), 0xFFFF0000);
}

/// An icon file of a black picture, 33 x 2 at 24 bits, whose AND mask hides (1, 0) and (32, 1).
QByteArray maskedIcon() {
  return QByteArray::fromHex(
             "0000010001002102000001001800f800000016000000"
             "2800000021000000040000000100180000000000") +
         QByteArray(20 + 2 * 100, 0) + QByteArray::fromHex("00000000800000004000000000000000");
}

TEST_F(PictureTest, TransparentPicturesKeepTheirHoles) {
  const QRegion icon(0, 0, 33, 2);
  const QRegion holes = QRegion(1, 0, 1, 1) + QRegion(32, 1, 1, 1);
  const std::tuple<const char*, QByteArray, QRegion> table[] = {
      {"gif", tinyGif({4, 3}, {1, 1, 2, 1}, 1, 2), {1, 1, 2, 1}},
      {"icon", maskedIcon(), icon - holes},
      {"icon, mask cut", maskedIcon().chopped(8), icon - QRegion(32, 1, 1, 1)}};
  for (const auto& [name, bytes, seen] : table) {
    const QImage image = load(name, bytes);
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x)
        EXPECT_EQ(qAlpha(image.pixel(x, y)), seen.contains(QPoint(x, y)) ? 255 : 0)
            << name << " " << x << "," << y;
  }
}

TEST_F(PictureTest, PixelsOfACutBitmapAreNotWhatTheMemoryHeld) {
  const QByteArray upward = encoded("bmp").chopped(12);  // A row less.
  QByteArray downward = upward;
  downward.replace(22, 4, QByteArray::fromHex("feffffff"));
  mallopt(M_PERTURB, 0x5A);  // No byte of fresh memory is 0.
  const std::tuple<const char*, QByteArray, int> table[] = {{"up.bmp", upward, 0},
                                                            {"down.bmp", downward, 1}};
  for (const auto& [name, bytes, row] : table) {
    const QImage image = load(name, bytes);
    for (int y = 0; y < 2; ++y)
      EXPECT_EQ(image.pixel(1, y), y == row ? 0xFF000000 : 0xFFFF0000) << name << " " << y;
  }
  mallopt(M_PERTURB, 0);
}

TEST_F(PictureTest, NumberedIcons) {
  const std::tuple<int, int, QSize> table[] = {
      {1000, 1000, {101, 80}},  {1001, 1007, {33, 21}},   {1008, 1008, {33, 20}},
      {1009, 1009, {33, 21}},   {1100, 1110, {20, 10}},   {1200, 1205, {16, 9}},
      {1300, 1301, {16, 8}},    {1400, 1401, {9, 9}},     {1500, 1500, {8, 11}},
      {2000, 2000, {128, 127}}, {2001, 2012, {40, 25}},   {2100, 2110, {18, 9}},
      {2200, 2205, {16, 9}},    {2300, 2301, {14, 8}},    {2400, 2400, {11, 11}},
      {2500, 2501, {10, 10}},   {2600, 2600, {110, 103}}, {101, 102, {20, 20}},
      {103, 107, {16, 16}},     {108, 108, {32, 32}},     {109, 131, {16, 16}},
      {132, 135, {20, 20}},     {136, 148, {16, 16}},     {211, 214, {24, 24}}};
  for (const auto& [first, last, size] : table)
    for (int id = first; id <= last; ++id)
      EXPECT_EQ(LoadResourcePicture(id).image().size(), size) << id;
  for (const int board : {1000, 2000})
    EXPECT_EQ(qAlpha(LoadResourcePicture(board).image().pixel(0, 40)), 0) << board;
  EXPECT_EQ(faultNumberOf([] { LoadResourcePicture(9999); }), 326);
}

}  // namespace

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/converter.h"

#include "shell/quantize.h"
#include "support/tempfolder.h"

#include <cmath>

namespace quillane {

namespace {

class Converter : public TempFolder {
 protected:
  QByteArray saved(const QImage& picture, const QString& name, PictureKind kind) {
    savePicture(picture, path(name), kind, path("qualities.ini"));
    return read(name);
  }
};

/// A sky over water, with more colours than a palette holds.
QImage photo() {
  QImage picture(128, 127, QImage::Format_RGB32);
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x)
      picture.setPixel(x, y, qRgb(y + x / 2, 40 + y, 255 - x - (x * y) % 7));
  return picture;
}

/// Mean square difference of the channels, per pixel.
double difference(const QImage& a, const QImage& b) {
  double sum = 0;
  for (int y = 0; y < a.height(); ++y)
    for (int x = 0; x < a.width(); ++x) {
      const QColor p = a.pixelColor(x, y);
      const QColor q = b.pixelColor(x, y);
      for (const int d : {p.red() - q.red(), p.green() - q.green(), p.blue() - q.blue()})
        sum += d * d;
    }
  return sum / (3.0 * a.width() * a.height());
}

TEST_F(Converter, WritesEveryKindSoThatItReadsBack) {
  struct Case {
    PictureKind kind;
    const char* start;
    double worst;
  };
  const Case cases[] = {{PictureKind::Gif, "GIF8", 40},
                        {PictureKind::Jpeg, "\xFF\xD8", 12},
                        {PictureKind::Png, "\x89PNG", 0},
                        {PictureKind::Bmp, "BM", 0}};
  for (const Case& row : cases) {
    const QByteArray bytes = saved(photo(), "any", row.kind);
    EXPECT_TRUE(bytes.startsWith(row.start));
    EXPECT_EQ(bytes, saved(photo(), "again", row.kind)) << "always the same";
    const QImage back(path("any"));
    ASSERT_EQ(back.size(), photo().size());
    EXPECT_LE(difference(back, photo()), row.worst) << row.start;
  }
}

TEST_F(Converter, KeepsTheMaskBesideManyColors) {
  QImage many = photo().convertToFormat(QImage::Format_ARGB32);
  for (int x = 0; x < many.width(); ++x)
    many.setPixel(x, 5, qRgba(200, 0, 0, x == 0 ? 0 : 127));
  const QImage reduced = reduceTo256(many);
  EXPECT_LE(reduced.colorCount(), 256);
  for (int y = 0; y < many.height(); ++y)
    for (int x = 0; x < many.width(); ++x)
      ASSERT_EQ(qAlpha(reduced.pixel(x, y)), y == 5 ? 0 : 255);
  saved(many, "a.bmp", PictureKind::Bmp);
  EXPECT_EQ(QImage(path("a.bmp")).pixel(0, 5), qRgb(255, 255, 255));
}

TEST_F(Converter, ObeysTheQualities) {
  const auto size = [&](PictureKind kind, const QByteArray& ini) {
    write("qualities.ini", ini);
    return saved(photo(), "sized", kind).size();
  };
  const auto jpeg = size(PictureKind::Jpeg, "");
  EXPECT_LT(size(PictureKind::Jpeg, "[JPEG]\r\nSave Quality=10\r\n"), jpeg);
  EXPECT_GT(size(PictureKind::Jpeg, "[JPEG]\r\nSave Quality=100\r\n"), jpeg);
  EXPECT_EQ(size(PictureKind::Jpeg, "[JPEG]\r\nSave Quality=0\r\n"), jpeg) << "out of range";
  const auto png = size(PictureKind::Png, "[PNG]\r\nCompressionLevel=x\r\n");
  EXPECT_GT(size(PictureKind::Png, "[PNG]\r\nCompressionLevel=0\r\n"), 3 * 128 * 127);
  EXPECT_EQ(size(PictureKind::Png, "[PNG]\r\nCompressionLevel=6\r\n"), png) << "the standard";
  EXPECT_NE(size(PictureKind::Png, "[PNG]\r\nCompressionLevel=1\r\n"), png);
}

TEST_F(Converter, LetsTheEndingDecideWhereOneConverterServes) {
  const std::tuple<PictureKind, const char*, PictureKind> cases[] = {
      {PictureKind::Jpeg, "a.PNG", PictureKind::Png},
      {PictureKind::Jpeg, "a.jpeg", PictureKind::Jpeg},
      {PictureKind::Png, "a.xyz", PictureKind::Png},
      {PictureKind::Png, "a.gif", PictureKind::Gif},
      {PictureKind::Gif, "a.jpg", PictureKind::Gif},
      {PictureKind::Bmp, "a.png", PictureKind::Bmp}};
  for (const auto& [offered, name, kind] : cases)
    EXPECT_EQ(convertedKind(offered, name), kind) << name;
}

}  // namespace

}  // namespace quillane

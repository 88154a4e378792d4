// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/imagerules.h"

#include "support/hindrance.h"
#include "support/tempfolder.h"
#include "support/tinygif.h"

#include <QImage>

namespace quillane {

namespace {

class ImageRules : public TempFolder {
 protected:
  int refusal(Generation generation, const QString& file) {
    return faultNumberOf([&] { themePictureSize(schemaOf(generation), file); });
  }
};

TEST_F(ImageRules, IsGifFileReadsTheSignatureAndTheScreen) {
  const std::tuple<const char*, QByteArray, QSize> rows[] = {
      {"frame smaller than its screen", tinyGif({300, 2}, {0, 0, 1, 1}, 1), {300, 2}},
      {"87a, header alone", QByteArray("GIF87a\x01\x02\x03\x04", 10), {513, 1027}},
      {"cut in the size", QByteArray("GIF89a\x01\x02\x03", 9), {}},
      {"other version", "GIF88a\x01\x02\x03\x04", {}},
      {"letter case", "gif89a\x01\x02\x03\x04", {}},
      {"empty", "", {}}};
  for (const auto& [what, bytes, size] : rows) {
    EXPECT_EQ(IsGifFile(write("a.jpg", bytes)).value_or(QSize()), size) << what;
  }
  EXPECT_FALSE(IsGifFile(path("gone.gif")).has_value());
  EXPECT_FALSE(IsGifFile(path()).has_value());
}

TEST_F(ImageRules, PicturesAreToldByTheirContent) {
  QImage image(128, 14, QImage::Format_RGB32);
  image.fill(Qt::red);
  const QString jpeg = path("jpeg.gif");
  const QString png = path("png.gif");
  const QString bmp = path("bmp.jpg");
  ASSERT_TRUE(image.save(jpeg, "JPG") && image.save(png, "PNG") && image.save(bmp, "BMP"));
  const QString gif = write("gif.jpg", tinyGif({101, 20}, {0, 0, 101, 20}, 1));
  const QString broken = write("broken.jpg", "\xFF\xD8\xFF nothing");
  EXPECT_EQ(themePictureSize(schemaOf(Generation::Two), gif), QSize(101, 20));
  EXPECT_EQ(themePictureSize(schemaOf(Generation::ThreeG), gif), QSize(101, 20));
  EXPECT_EQ(themePictureSize(schemaOf(Generation::ThreeG), jpeg), QSize(128, 14));
  const QString noScreen = write("no screen.gif", tinyGif({0, 0}, {0, 0, 30, 20}, 1));
  EXPECT_EQ(themePictureSize(schemaOf(Generation::Two), noScreen), QSize(30, 20));
  EXPECT_EQ(refusal(Generation::Two, jpeg), 481);
  EXPECT_EQ(refusal(Generation::ThreeG, broken), 481);
  for (const QString& file : {png, bmp})
    EXPECT_EQ(refusal(Generation::ThreeG, file), 481) << file.toStdString();
  EXPECT_EQ(refusal(Generation::Two, path("gone.gif")), 53);
  ASSERT_TRUE(QFile::setPermissions(gif, QFile::WriteOwner));
  const WithoutPrivilege nobody;
  EXPECT_EQ(refusal(Generation::Two, gif), 70);
}

TEST_F(ImageRules, SlotsTakeTheirSizes) {
  const std::tuple<Generation, int, QSize, bool> rows[] = {
      {Generation::Two, gen2::BackgroundImage, {101, 80}, true},
      {Generation::Two, gen2::BackgroundImage, {102, 80}, false},
      {Generation::Two, gen2::DesktopBackgroundImage, {101, 81}, false},
      {Generation::Two, gen2::TitleImageSmall, {101, 20}, true},
      {Generation::Two, gen2::TitleImageSmall, {100, 20}, false},
      {Generation::Two, gen2::TitleImageAsian, {101, 15}, false},
      {Generation::ThreeG, gen3g::WallpaperImage, {127, 127}, false},
      {Generation::ThreeG, gen3g::MoreListPopupHighlightImage, {113, 16}, true}};
  for (const auto& [generation, slot, size, taken] : rows)
    EXPECT_EQ(takesSize(schemaOf(generation).images[static_cast<std::size_t>(slot)], size), taken)
        << slot << ' ' << size.width() << ' ' << size.height();
  const ImageElement& small = schemaOf(Generation::Two).images[gen2::TitleImageSmall];
  EXPECT_EQ(imageDialogTitle(small), "Select title small image");
  EXPECT_EQ(imageDimensionsText(small, "/a/b.gif", {100, 20}),
            "The dimensions for title small image must be 101x20 pixels.\r\n\r\n"
            "Selected image: \"b.gif\"\r\nDimensions: 100x20 pixels");
}

}  // namespace

}  // namespace quillane

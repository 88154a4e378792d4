// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "thmtool/toolrun.h"

namespace quillane {
namespace {

class Thumbnail : public ToolTest {};

TEST_F(Thumbnail, FitsItsSquare) {
  const QString two = theme2("");
  const QString threeG = theme3G("<Title Color=\"0x1\"/>");
  const struct {
    QString theme;
    const char16_t* size;
    QSize fitted;
  } rows[] = {
      {two, u"1", {1, 1}},          {two, u"64", {64, 51}},       {two, u"100", {100, 79}},
      {two, u"101", {101, 80}},     {two, u"201", {101, 80}},     {two, u"202", {202, 160}},
      {two, u"512", {505, 400}},    {threeG, u"80", {64, 80}},    {threeG, u"160", {128, 160}},
      {threeG, u"319", {128, 160}}, {threeG, u"320", {256, 320}},
  };
  for (const auto& row : rows) {
    const QString size = QString::fromUtf16(row.size);
    EXPECT_EQ(runTool({u"thumbnail"_s, row.theme, path(u"t.png"_s), size}), kQuiet);
    EXPECT_EQ(image(u"t.png"_s).size(), row.fitted) << size.toStdString();
  }
}

TEST_F(Thumbnail, ShowsTheStandbyScreen) {
  const QString theme = theme3G("<Standby_time Color=\"0x1\"/>");
  runTool({u"render"_s, theme, u"--out"_s, path(), u"--screens"_s, u"standby"_s, u"--time-format"_s,
           u" "_s});
  runTool({u"thumbnail"_s, theme, path(u"t.png"_s), u"320"_s});
  const QImage standby = image(u"standby.png"_s);
  const QImage thumbnail = image(u"t.png"_s);
  // All but the lowest quarter, where the clock is.
  EXPECT_EQ(thumbnail.copy(0, 0, 256, 240),
            standby.scaled(256, 320).copy(0, 0, 256, 240).convertToFormat(thumbnail.format()));
}

TEST_F(Thumbnail, UnwritableTarget) {
  const QString theme = theme2("");
  EXPECT_EQ(runTool({u"thumbnail"_s, theme, path(u"none/t.png"_s), u"64"_s}),
            (ToolRun{NotDone, "",
                     "thmtool thumbnail: Folder \"" + path(u"none"_s).toStdString() +
                         "\" not found.\n"}));
}

}  // namespace
}  // namespace quillane

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
    QString size;
    QSize fitted;
  } rows[] = {
      {two, "1", {1, 1}},          {two, "64", {64, 51}},       {two, "100", {100, 79}},
      {two, "101", {101, 80}},     {two, "201", {101, 80}},     {two, "202", {202, 160}},
      {two, "512", {505, 400}},    {threeG, "80", {64, 80}},    {threeG, "160", {128, 160}},
      {threeG, "319", {128, 160}}, {threeG, "320", {256, 320}},
  };
  for (const auto& row : rows) {
    const QString size = row.size;
    EXPECT_EQ(runTool({"thumbnail", row.theme, path("t.png"), size}), kQuiet);
    EXPECT_EQ(image("t.png").size(), row.fitted) << size.toStdString();
  }
}

TEST_F(Thumbnail, ShowsTheStandbyScreen) {
  const QString theme = theme3G("<Standby_time Color=\"0x1\"/>");
  runTool({"render", theme, "--out", path(), "--screens", "standby", "--time-format", " "});
  runTool({"thumbnail", theme, path("t.png"), "320"});
  const QImage standby = image("standby.png");
  const QImage thumbnail = image("t.png");
  // All but the lowest quarter, where the clock is.
  EXPECT_EQ(thumbnail.copy(0, 0, 256, 240),
            standby.scaled(256, 320).copy(0, 0, 256, 240).convertToFormat(thumbnail.format()));
}

TEST_F(Thumbnail, UnwritableTarget) {
  const QString theme = theme2("");
  EXPECT_EQ(
      runTool({"thumbnail", theme, path("none/t.png"), "64"}),
      (ToolRun{NotDone, "",
               "thmtool thumbnail: Folder \"" + path("none").toStdString() + "\" not found.\n"}));
}

}  // namespace

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "thmtool/toolrun.h"

#include <set>

namespace quillane {

namespace {

class Sheet : public ToolTest {
 protected:
  QImage sheet(const QString& theme, const QStringList& words) const {
    EXPECT_EQ(runTool(QStringList{"render", theme, "--sheet", path("s.png"), "--now",
                                  "2003-06-14 09:41", "--seed", "1"} +
                      words),
              kQuiet);
    return image("s.png");
  }
};

/// Places of all exact copies of a part in a picture.
std::vector<QPoint> placesOf(const QImage& part, const QImage& whole) {
  std::vector<QPoint> places;
  const auto isAt = [&](int left, int top) {
    for (int y = 0; y < part.height(); ++y)
      for (int x = 0; x < part.width(); ++x)
        if (part.pixel(x, y) != whole.pixel(left + x, top + y)) return false;
    return true;
  };
  for (int y = 0; y + part.height() <= whole.height(); ++y)
    for (int x = 0; x + part.width() <= whole.width(); ++x)
      if (isAt(x, y)) places.push_back({x, y});
  return places;
}

TEST_F(Sheet, HoldsEachScreenAboveItsCaptionAndIsMagnifiedAsAWhole) {
  const QString theme = theme2("<Theme_name Name=\"Blue\"/>");
  runTool({"render", theme, "--out", path("out"), "--now", "2003-06-14 09:41"});
  const QImage sheet = this->sheet(theme, {});
  EXPECT_EQ(this->sheet(theme, {"--scale", "2"}), sheet.scaled(sheet.size() * 2));
  for (const QString& file : listOf("out")) {
    const QImage screen = image("out/" + file);
    const auto places = placesOf(screen, sheet);
    ASSERT_EQ(places.size(), 1U) << file.toStdString();
    const QRect below(places.front() + QPoint(0, screen.height() + 2), QSize(screen.width(), 14));
    EXPECT_EQ(sheet.copy(below).convertToFormat(QImage::Format_Indexed8).colorCount(), 2)
        << "caption and paper: " << file.toStdString();
  }
}

TEST_F(Sheet, RowsAreFilledEvenly) {
  const QString theme = theme2("");
  runTool({"render", theme, "--out", path("out"), "--screens", "desktop"});
  const QImage desktop = image("out/desktop.png");
  const std::tuple<int, std::size_t, std::size_t> rows[] = {
      {1, 1, 1}, {7, 7, 1}, {8, 4, 2}, {13, 7, 2}, {14, 7, 2}};
  for (const auto& [count, columns, lines] : rows) {
    const QStringList ids(count, "desktop");
    std::set<int> lefts;
    std::set<int> tops;
    const auto places = placesOf(desktop, sheet(theme, {"--screens", ids.join(u',')}));
    for (const QPoint& place : places) {
      lefts.insert(place.x());
      tops.insert(place.y());
    }
    EXPECT_EQ(places.size(), static_cast<std::size_t>(count));
    EXPECT_EQ(lefts.size(), columns) << count;
    EXPECT_EQ(tops.size(), lines) << count;
  }
}

TEST_F(Sheet, TitleIsTheThemesNameOrItsFile) {
  const QStringList one{"--screens", "desktop"};
  const QImage named = sheet(pack("a", "<Theme_name Name=\"Blue\"/>"), one);
  EXPECT_EQ(sheet(pack("Blue", "<x/>"), one), named);
  EXPECT_NE(sheet(pack("b", "<Theme_name Name=\"Green\"/>"), one), named);
}

TEST_F(Sheet, LongTitleEndsInAnEllipsis) {
  const auto titled = [this](const QByteArray& name) {
    return sheet(theme2("<Theme_name Name=\"" + name + "\"/>"), {"--screens", "desktop"});
  };
  const QImage shortened = titled(QByteArray(300, 'W'));
  EXPECT_EQ(titled(QByteArray(500000, 'W')), shortened);
  int places = 0;
  for (int letters = 8; letters <= 16; ++letters)
    places += titled(QByteArray(letters, 'W') + '\x85') == shortened ? 1 : 0;
  EXPECT_EQ(places, 1);
}

}  // namespace

}  // namespace quillane

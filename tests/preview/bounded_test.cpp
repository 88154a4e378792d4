// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview/clsvistrel.h"
#include "preview/clsvistrel3g.h"
#include "support/stillworld.h"
#include "support/text.h"

#include <functional>

namespace quillane {
namespace {

TEST(BoundedTest, ANumberOutOfItsRangeBecomesAFixedOne) {
  StillWorld world;
  clsVistrel two(world);
  clsVistrel3G three(world);
  const auto after = [](auto& property) -> std::function<int(int)> {
    EXPECT_EQ(property, 0) << "never set";
    return [&property](int value) { return property = value; };
  };
  const struct {
    const char* name;
    std::function<int(int)> after;
    int low, high, otherwise;
  } table[] = {
      {"signal", after(two.SignalStrength), 0, 5, 5},
      {"battery", after(two.BatteryLevel), 0, 10, 10},
      {"GPRS", after(two.GPRSRange), 0, 1, 1},
      {"line", after(two.LineIcon), 1, 2, 1},
      {"desktop", after(two.DesktopIcon), 0, 9, 5},
      {"3G signal", after(three.SignalStrength), 0, 5, 5},
      {"3G battery", after(three.BatteryLevel), 0, 10, 10},
      {"3G GPRS", after(three.GPRSRange), 0, 1, 1},
      {"3G desktop", after(three.DesktopIcon), 1, 12, 5},
  };
  for (const auto& row : table) {
    EXPECT_EQ(row.after(row.low), row.low) << row.name;
    EXPECT_EQ(row.after(row.high), row.high) << row.name;
    EXPECT_EQ(row.after(row.low - 1), row.otherwise) << row.name;
    EXPECT_EQ(row.after(row.high + 1), row.otherwise) << row.name;
  }
  two.CalendarDateFormat = QString();
  EXPECT_EQ(static_cast<const QString&>(two.CalendarDateFormat), QStringLiteral("mmm yyyy"));
}

}  // namespace
}  // namespace quillane

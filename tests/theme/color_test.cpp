// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "theme/color.h"

#include "support/text.h"

namespace quillane {

namespace {

TEST(Color, TurnsAValueIntoDigits) {
  const struct {
    const char* value;
    const char* html;
  } rows[] = {{"255", "FF0000"},   {"0", "000000"},         {"16711680", "0000FF"},
              {"33023", "FF8000"}, {"305419896", "563412"}, {"-1", "FFFFFF"}};
  for (const auto& row : rows)
    EXPECT_EQ(ColorToHtml(row.value), row.html);
}

TEST(Color, TurnsDigitsIntoAValueAndPadsThemInPlace) {
  const struct {
    const char* html;
    const char* padded;
    const char* value;
  } rows[] = {{"FF8000", "FF8000", "&H0080FF"},
              {"FF", "FF0000", "&H0000FF"},
              {"", "000000", "&H000000"},
              {"ff80", "ff8000", "&H0080ff"},
              {"12345678", "12345678", "&H563412"}};
  for (const auto& row : rows) {
    QString html = row.html;
    EXPECT_EQ(HtmlToColor(html), row.value);
    EXPECT_EQ(html, row.padded);
  }
}

TEST(Color, KnowsThePartsOfAValue) {
  const ColorValue value = colorValueOf("a1B2c3");
  EXPECT_EQ(value, 0xC3B2A1U);
  EXPECT_EQ(RedOf(value | 0xFF000000U), 0xA1);
  EXPECT_EQ(GreenOf(value | 0xFF000000U), 0xB2);
  EXPECT_EQ(BlueOf(value | 0xFF000000U), 0xC3);
}

TEST(Color, RefusesWhatIsNoNumber) {
  constexpr int badNumber = static_cast<int>(FaultNumber::BadNumber);
  for (const char* const html : {"GG0000", "0x1234", "+12345", " 12345", "12345 ", "-1"}) {
    EXPECT_EQ(faultNumberOf([&] { colorValueOf(html); }), badNumber) << html;
  }
  for (const char* const value : {"", "red", "1.5", "4294967296", "-2147483649"}) {
    EXPECT_EQ(faultNumberOf([&] { ColorToHtml(value); }), badNumber) << value;
  }
}

}  // namespace

}  // namespace quillane

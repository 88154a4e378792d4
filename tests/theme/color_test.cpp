// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "theme/color.h"

#include "support/text.h"

namespace quillane {

namespace {

TEST(Color, TurnsAValueIntoDigits) {
  for (const auto& [value, html] : {std::pair{"255", "FF0000"},
                                    {"0", "000000"},
                                    {"16711680", "0000FF"},
                                    {"33023", "FF8000"},
                                    {"305419896", "563412"},
                                    {"-1", "FFFFFF"}})
    EXPECT_EQ(ColorToHtml(value), html);
}

TEST(Color, TurnsDigitsIntoAValueAndPadsThemInPlace) {
  for (const auto& [given, padded, value] : {std::tuple{"FF8000", "FF8000", "&H0080FF"},
                                             {"FF", "FF0000", "&H0000FF"},
                                             {"", "000000", "&H000000"},
                                             {"ff80", "ff8000", "&H0080ff"},
                                             {"12345678", "12345678", "&H563412"}}) {
    QString html = given;
    EXPECT_EQ(HtmlToColor(html), value);
    EXPECT_EQ(html, padded);
  }
}

TEST(Color, KnowsThePartsOfAValue) {
  const ColorValue value = colorValueOf("a1B2c3") | 0xFF000000U;
  EXPECT_EQ(value, 0xFFC3B2A1U);
  EXPECT_EQ(RedOf(value), 0xA1);
  EXPECT_EQ(GreenOf(value), 0xB2);
  EXPECT_EQ(BlueOf(value), 0xC3);
}

TEST(Color, RefusesWhatIsNoNumber) {
  for (const char* const html : {"GG0000", "0x1234", "+12345", " 12345", "12345 ", "-1"})
    EXPECT_EQ(faultNumberOf([&] { colorValueOf(html); }), 13) << html;
  for (const char* const value : {"", "red", "1.5", "4294967296", "-2147483649"})
    EXPECT_EQ(faultNumberOf([&] { ColorToHtml(value); }), 13) << value;
}

}  // namespace

}  // namespace quillane

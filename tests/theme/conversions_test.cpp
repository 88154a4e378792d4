// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/text.h"
#include "theme/codepage.h"
#include "theme/color.h"

#include <QStringDecoder>

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

TEST(Color, RefusesWhatIsNoNumber) {
  for (const char* const html : {"GG0000", "0x1234", "+12345", " 12345", "12345 ", "-1"})
    EXPECT_EQ(faultNumberOf([&] { colorValueOf(html); }), 13) << html;
  for (const char* const value : {"", "red", "1.5", "4294967296", "-2147483649"})
    EXPECT_EQ(faultNumberOf([&] { ColorToHtml(value); }), 13) << value;
}

QByteArray everyByte() {
  QByteArray bytes;
  for (int byte = 0; byte < 256; ++byte)
    bytes.append(static_cast<char>(byte));
  return bytes;
}

TEST(CodePage, KeepsEveryByteAndAgreesWithTheToolkitWhereThatKnowsIt) {
  EXPECT_EQ(toCodePage(fromCodePage(everyByte())), everyByte());
  QStringDecoder decoder("windows-1252");
  if (!decoder.isValid()) GTEST_SKIP() << "This build of Qt has no such decoder.";
  EXPECT_EQ(fromCodePage(everyByte()), QString(decoder(everyByte())));
}

TEST(CodePage, WritesAQuestionMarkForACharacterOutside) {
  EXPECT_EQ(toCodePage(u"a\u0080b\u20AC\u0416\U0001F600c"), QByteArray("a?b\x80??c"));
  EXPECT_EQ(toCodePage(QString(QChar(0xD83D)) + u'x'), QByteArray("?x"));
}

}  // namespace

}  // namespace quillane

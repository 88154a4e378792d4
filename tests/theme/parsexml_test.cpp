// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "theme/parsexml.h"

#include "support/text.h"
#include "theme/tags.h"

namespace quillane {
namespace {

using namespace Qt::StringLiterals;

const auto kTitleNeverClosed = u"The element \"Title\" is never closed by \"/>\"."_s;
const auto kTitleUnquoted = u"The element \"Title\" has no value in double quotes."_s;

struct Row {
  const char* what;
  QString xml;
  QString value;
  QStringList faults = {};
};

const Row kTitleRows[] = {
    {"plain colour", u"<Title Color=\"0xFF8000\"/>"_s, u"FF8000"_s},
    {"lower-case digits stay", u"<Title Color=\"0xff80Aa\"/>"_s, u"ff80Aa"_s},
    {"not there", u"<Other Color=\"0x1\"/>"_s, u""_s},
    {"empty text", u""_s, u""_s},
    {"other letter case", u"<title Color=\"0x112233\"/>"_s, u""_s},
    {"longer name first", u"<Title_text Color=\"0x111111\"/><Title Color=\"0x222222\"/>"_s,
     u"222222"_s},
    {"longer name first, tabs", u"<Title_text\tColor=\"0x111111\"/><Title\tColor=\"0x222222\"/>"_s,
     u"222222"_s},
    {"family in other letter case",
     u"<Popup_title Color=\"0x111111\"/><Title Color=\"0x222222\"/>"_s, u"222222"_s},
    {"longer word that ends in the name", u"<My_Title Color=\"0x333333\"/>"_s, u"333333"_s},
    {"inside a comment", u"<!-- <Title Color=\"0x444444\"/> -->"_s, u"444444"_s},
    {"first of two", u"<Title Color=\"0x1\"/><Title Color=\"0x2\"/>"_s, u"1"_s},
    {"blanks before the tab", u"<Title  \tColor=\"0x555555\"/>"_s, u"555555"_s},
    {"tab behind the value", u"<Title Color=\"0x555555\"\t/>"_s, u""_s},
    {"tab in a later tag", u"<Title Color=\"0x555555\"/><Text\tColor=\"0x6\"/>"_s, u"555555"_s},
    {"line end behind the name", u"<Title\r\nColor=\"0x555555\"/>"_s, u""_s},
    {"line end, then a good one", u"<Title\nColor=\"0x1\"/><Title Color=\"0x22\"/>"_s, u"22"_s},
    {"no blank before the end mark", u"<Title/><Text Color=\"0x777777\"/>"_s, u"0x777777"_s},
    {"line ends between attributes", u"<Title a=\"x\"\r\nColor=\"0x777777\"/>"_s, u""_s},
    {"first quoted text counts", u"<Title Name=\"0xABC\" Color=\"0x888888\"/>"_s, u"ABC"_s},
    {"attribute in lower case keeps its prefix", u"<Title color=\"0x999999\"/>"_s, u"0x999999"_s},
    {"image", u"<Title Source=\"a.gif\"/>"_s, u"a.gif"_s},
    {"empty value", u"<Title Color=\"\"/>"_s, u""_s},
    {"value of one sign", u"<Title Color=\"7\"/>"_s, u""_s},
    {"prefix alone", u"<Title Color=\"0x\"/>"_s, u""_s},
    {"Color= inside the value", u"<Title Name=\"Color=red\"/>"_s, u"lor=red"_s},
    {"Color= in the next tag", u"<Title Name=\"abcd\"/><Text Color=\"0x1\"/>"_s, u"abcd"_s},
    {"single quotes take the next value", u"<Title Color='0x1'/><Text Color=\"0xABCDEF\"/>"_s,
     u"ABCDEF"_s},
    {"no value, a later one answers", u"<Title />\r\n<Text Source=\"b.gif\"/>"_s, u"b.gif"_s},
    {"end mark inside the value", u"<Title Name=\"a/>b\"/>"_s, u"a/>b"_s},
    {"entities stay", u"<Title Name=\"&lt;&#65;\"/>"_s, u"&lt;&#65;"_s},
    {"closed by a later end mark", u"<Title Color=\"0x1A\"></Title><Text/>"_s, u"1A"_s},
    {"never closed", u"<Title Color=\"0x1A\">"_s, u""_s, {kTitleNeverClosed}},
    {"never closed, twice",
     u"<Title Color=\"0x1A\"></Title>"_s,
     u""_s,
     {kTitleNeverClosed, kTitleNeverClosed}},
    {"a closed longer name, then never closed",
     u"<Title_text Color=\"0x1\"/><Title Color=\"0x2\">"_s,
     u""_s,
     {kTitleNeverClosed}},
    {"no quotes at all", u"<Title Color=0x1A/>"_s, u""_s, {kTitleUnquoted}},
    {"quotes only before",
     u"<?xml version=\"1.0\"?><Title Color=0x1A/>"_s,
     u""_s,
     {kTitleUnquoted}},
    {"one quote only", u"<Title Color=\"0x1A/>"_s, u""_s, {kTitleUnquoted}},
};

TEST(ParseXML, AnswersToOddTexts) {
  for (const Row& row : kTitleRows) {
    SCOPED_TRACE(row.what);
    FaultLog log;
    EXPECT_EQ(ParseXML(u"Title"_s, row.xml, log.reporter()), row.value);
    EXPECT_EQ(log.texts(), row.faults);
  }
}

TEST(ParseXML, FindsNothingForANameThatNoTagCanHave) {
  FaultLog log;
  const QString xml = u" Title  Color=\"0x12\"/>"_s;
  for (const QString& name : {u""_s, u" Title"_s, u"Title "_s, u"Title  Color"_s})
    EXPECT_EQ(ParseXML(name, xml, log.reporter()), u""_s) << name.toStdString();
  EXPECT_TRUE(log.texts().isEmpty());
}

/// Texts of a mebibyte on which a scan that starts over at each match would take hours.
TEST(ParseXML, EndsSoonOnHostileTexts) {
  constexpr int size = 1 << 20;
  const QString names = u"Title_"_s.repeated(size / 6);
  const QString blanks(size, u' ');
  const struct {
    const char* what;
    QString xml;
    bool closed;
  } rows[] = {
      {"never closed", names, false},
      {"closed at the end", names + u"/>"_s, true},
      {"far tab", names + u"\t/>"_s, true},
      {"far blank", names + u" />"_s, true},
      {"blanks up to a far tab", u"Title "_s.repeated(size / 6) + blanks + u"x\t/>"_s, true},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    int faults = 0;
    EXPECT_EQ(ParseXML(u"Title"_s, row.xml, [&](const Fault&) { ++faults; }), u""_s);
    EXPECT_EQ(faults, row.closed ? 0 : size / 6);
  }
}

TEST(ThemeTags, AreFoundInsideTheComment) {
  const QString xml =
      u"<!--CreatedWithQuillane30187>\r\n<Theme_name Name=\"Blue \"sea\"/>\r\n"
      "<Theme_created Time=\"1.2.2003 04:05\"/>\r\n<Theme_creator Name=\"\"/>-->"_s;
  FaultLog log;
  const ThemeTagTexts expected{u"Blue "_s, u""_s, u""_s, u"1.2.2003 04:05"_s};
  EXPECT_EQ(readThemeTags(xml, log.reporter()), expected);
  EXPECT_TRUE(log.texts().isEmpty());
}

}  // namespace
}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "theme/parsexml.h"

#include "support/text.h"

namespace quillane {

namespace {

const auto kTitleNeverClosed = "The element \"Title\" is never closed by \"/>\".";
const auto kTitleUnquoted = "The element \"Title\" has no value in double quotes.";

struct Row {
  const char* what;
  QString xml;
  QString value;
  QStringList faults = {};
};

const Row kTitleRows[] = {
    {"plain colour", "<Title Color=\"0xFF8000\"/>", "FF8000"},
    {"lower-case digits stay", "<Title Color=\"0xff80Aa\"/>", "ff80Aa"},
    {"not there", "<Other Color=\"0x1\"/>", ""},
    {"empty text", "", ""},
    {"other letter case", "<title Color=\"0x112233\"/>", ""},
    {"longer name first", "<Title_text Color=\"0x111111\"/><Title Color=\"0x222222\"/>", "222222"},
    {"the same, tabs", "<Title_text\tColor=\"0x111111\"/><Title\tColor=\"0x222222\"/>", "222222"},
    {"in other letters", "<Popup_title Color=\"0x111111\"/><Title Color=\"0x222222\"/>", "222222"},
    {"longer word that ends in the name", "<My_Title Color=\"0x333333\"/>", "333333"},
    {"inside a comment", "<!-- <Title Color=\"0x444444\"/> -->", "444444"},
    {"first of two", "<Title Color=\"0x1\"/><Title Color=\"0x2\"/>", "1"},
    {"blanks before the tab", "<Title  \tColor=\"0x555555\"/>", "555555"},
    {"tab behind the value", "<Title Color=\"0x555555\"\t/>", ""},
    {"tab in a later tag", "<Title Color=\"0x555555\"/><Text\tColor=\"0x6\"/>", "555555"},
    {"line end behind the name", "<Title\r\nColor=\"0x555555\"/>", ""},
    {"line end, then a good one", "<Title\nColor=\"0x1\"/><Title Color=\"0x22\"/>", "22"},
    {"no blank before the end mark", "<Title/><Text Color=\"0x777777\"/>", "0x777777"},
    {"line ends between attributes", "<Title a=\"x\"\r\nColor=\"0x777777\"/>", ""},
    {"first quoted text counts", "<Title Name=\"0xABC\" Color=\"0x888888\"/>", "ABC"},
    {"attribute in lower case keeps its prefix", "<Title color=\"0x999999\"/>", "0x999999"},
    {"image", "<Title Source=\"a.gif\"/>", "a.gif"},
    {"empty value", "<Title Color=\"\"/>", ""},
    {"value of one sign", "<Title Color=\"7\"/>", ""},
    {"prefix alone", "<Title Color=\"0x\"/>", ""},
    {"Color= inside the value", "<Title Name=\"Color=red\"/>", "lor=red"},
    {"Color= in the next tag", "<Title Name=\"abcd\"/><Text Color=\"0x1\"/>", "abcd"},
    {"single quotes", "<Title Color='0x1'/><Text Color=\"0xABCDEF\"/>", "ABCDEF"},
    {"no value, a later one answers", "<Title />\r\n<Text Source=\"b.gif\"/>", "b.gif"},
    {"end mark inside the value", "<Title Name=\"a/>b\"/>", "a/>b"},
    {"entities stay", "<Title Name=\"&lt;&#65;\"/>", "&lt;&#65;"},
    {"closed by a later end mark", "<Title Color=\"0x1A\"></Title><Text/>", "1A"},
    {"never closed", "<Title Color=\"0x1A\">", "", {kTitleNeverClosed}},
    {"never closed, twice",
     "<Title Color=\"0x1A\"></Title>",
     "",
     {kTitleNeverClosed, kTitleNeverClosed}},
    {"a closed longer name, then never closed",
     "<Title_text Color=\"0x1\"/><Title Color=\"0x2\">",
     "",
     {kTitleNeverClosed}},
    {"no quotes at all", "<Title Color=0x1A/>", "", {kTitleUnquoted}},
    {"quotes only before", "<?xml version=\"1.0\"?><Title Color=0x1A/>", "", {kTitleUnquoted}},
    {"one quote only", "<Title Color=\"0x1A/>", "", {kTitleUnquoted}}};

TEST(ParseXML, AnswersToOddTexts) {
  for (const Row& row : kTitleRows) {
    SCOPED_TRACE(row.what);
    FaultLog log;
    EXPECT_EQ(ParseXML("Title", row.xml, log.reporter()), row.value);
    EXPECT_EQ(log.texts(), row.faults);
  }
}

}  // namespace

}  // namespace quillane

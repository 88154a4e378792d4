// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/ini.h"

#include "support/tempfolder.h"
#include "support/text.h"

namespace quillane {

namespace {

class Ini : public TempFolder {};

TEST_F(Ini, ReadsAsTheFileStands) {
  struct Case {
    const char* fault;
    QByteArray text;
    QString value;
  };
  const Case cases[] = {
      {"plain", "[Menu]\r\nTitles=A|B\r\n", "A|B"},
      {"blanks around", "[ Menu ]\n  Titles  =  A | B  \n", "A | B"},
      {"other letter case", "[MENU]\ntitles=A\n", "A"},
      {"quotes", "[Menu]\nTitles=\" A \"\n", "A "},
      {"a space that is no blank", "[Menu]\nTitles=A\xa0\n", QString("A") + QChar(0xA0)},
      {"an equals sign in the value", "[Menu]\nTitles=a=b\n", "a=b"},
      {"first of two keys", "[Menu]\nTitles=1\nTitles=2\n", "1"},
      {"key in another section", "[Other]\nTitles=1\n[Menu]\n", "standard"},
      {"commented out", "[Menu]\n;Titles=1\n", "standard"},
      {"empty value", "[Menu]\nTitles=\n", ""},
      {"no section", "Titles=1\n", "standard"},
      {"8-bit text", "[Menu]\nTitles=\xe9\x80\n", "é€"},
      {"too long", "[Menu]\nTitles=" + QByteArray(300, 'x'), QString(254, 'x')},
      {"not a text at all", QByteArray("\0\xff[\0=]", 6), "standard"},
  };
  for (const Case& row : cases)
    EXPECT_EQ(ReadIni("Menu", "Titles", "standard", write("x.lng", row.text)), row.value)
        << row.fault;
}

TEST_F(Ini, TakesTheDefaultWithoutAFile) {
  EXPECT_EQ(ReadIni("Menu", "Titles", "standard", path("missing.lng")), "standard");
}

}  // namespace

}  // namespace quillane

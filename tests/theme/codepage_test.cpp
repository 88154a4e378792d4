// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "theme/codepage.h"

#include "support/text.h"

#include <QStringDecoder>

namespace quillane {

namespace {

QByteArray everyByte() {
  QByteArray bytes;
  for (int byte = 0; byte < 256; ++byte)
    bytes.append(static_cast<char>(byte));
  return bytes;
}

TEST(CodePage, KeepsEveryByte) {
  const QString text = fromCodePage(everyByte());
  EXPECT_EQ(text.size(), 256);
  EXPECT_EQ(toCodePage(text), everyByte());
}

TEST(CodePage, AgreesWithTheToolkitWhereThatKnowsIt) {
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

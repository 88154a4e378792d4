// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "reference.h"

#include "preview/modapigraphics.h"
#include "preview/surface.h"

#include <gmock/gmock.h>

namespace quillane {
namespace {

/// Every face and size of the screens with all the characters of Latin-1 and the ampersand's uses.
TEST(ReferenceTest, Typefaces) {
  const FontSpec fonts[] = {
      {QStringLiteral("Tahoma"), AlignLeft, false, 7, 0},
      {QStringLiteral("Tahoma"), AlignLeft, true, 7, 0},
      {QStringLiteral("Tahoma"), AlignLeft, false, 8, 0},
      {QStringLiteral("Tahoma"), AlignLeft, true, 8, 0},
      {QStringLiteral("Tahoma"), AlignLeft, true, 9, 0},
      {QStringLiteral("MS Sans Serif"), AlignLeft, false, 8, 0},
      {QStringLiteral("MS Sans Serif"), AlignLeft, true, 8, 0},
      {QStringLiteral("Small Fonts"), AlignLeft, false, 5, 0},
  };
  Surface sheet(QSize(360, 8 * 94), 0xFFFFFF);
  int top = 2;
  for (const FontSpec& font : fonts) {
    QString text = QStringLiteral("&Fun && &Games &gjpqy&&\n");
    for (char16_t character = 0x21; character < 0x100; ++character) {
      if (character >= 0x7F && character < 0xA0) continue;
      text += QChar(character == u'&' ? u'+' : character);
      if (character == 0x4A || character == 0x6F || character == 0xBF || character == 0xDF)
        text += QLatin1Char('\n');
    }
    DrawTextRect(sheet, text, 3, top, 92, 354, font);
    top += 94;
  }
  test::expectReference(QStringLiteral("typefaces/sheet.png"), sheet.image());
}

}  // namespace
}  // namespace quillane

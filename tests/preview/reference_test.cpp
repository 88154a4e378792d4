// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "reference.h"

#include "preview/modapigraphics.h"
#include "preview/screens.h"
#include "preview/surface.h"
#include "support/samplephone.h"
#include "support/stillworld.h"
#include "theme/load.h"

#include <QDir>
#include <QPainter>
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

/// All screens of a theme side by side, four in a row.
template <class Engine>
QImage contactSheet(std::span<const Screen<Engine>> screens, QSize size, const ThemeValues& theme) {
  constexpr int kColumns = 4;
  const int rows = (static_cast<int>(screens.size()) + kColumns - 1) / kColumns;
  QImage sheet(kColumns * size.width(), rows * size.height(), QImage::Format_RGB32);
  sheet.fill(Qt::white);
  QPainter painter(&sheet);

  test::StillWorld world;
  world.nextRandom = -1;
  Engine engine(world);
  engine.takeTheme(theme);
  test::fillPhone(engine);
  int place = 0;
  for (const Screen<Engine>& screen : screens) {
    Surface surface(size);
    engine.setSurface(surface);
    screen.paint(engine);
    painter.drawImage(place % kColumns * size.width(), place / kColumns * size.height(),
                      surface.image());
    ++place;
  }
  return sheet;
}

/// Each theme that we ship, as its source folder, and each picture folder has its case.
TEST(ReferenceTest, Themes) {
  const auto foldersIn = [](const QString& path) {
    return QDir(path).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
  };
  const QDir themes(QStringLiteral(THEMES_FOLDER));
  QStringList cases{QStringLiteral("typefaces")};
  for (const QString& name : foldersIn(themes.path())) {
    ImageStates states{};
    const auto theme = loadTheme(themes.filePath(name), states, [&](const Fault& fault) {
      ADD_FAILURE() << name.toStdString() << ": " << fault.what();
    });
    ASSERT_TRUE(theme) << name.toStdString();
    EXPECT_EQ(theme->warnings, QStringList()) << name.toStdString();
    const QImage sheet = theme->values.schema().generation == Generation::Two
                             ? contactSheet(screensOfGeneration2(), Surface::kSize2, theme->values)
                             : contactSheet(screensOf3G(), Surface::kSize3G, theme->values);
    test::expectReference(name + QStringLiteral("/sheet.png"), sheet);
    cases.append(name);
  }
  for (const QString& name : foldersIn(QStringLiteral(REFERENCE_FOLDER)))
    EXPECT_TRUE(cases.contains(name)) << name.toStdString() << " is a reference of nothing";
}

}  // namespace
}  // namespace quillane

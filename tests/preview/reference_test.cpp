// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview/modapigraphics.h"
#include "preview/screens.h"
#include "support/probes.h"
#include "theme/load.h"

#include <QDir>
#include <QFileInfo>
#include <QPainter>

#include <tuple>

namespace quillane {

namespace {

/// Compares a picture with `reference/<name>/sheet.png` pixel by pixel. What differs is left in the
/// build tree: the picture and its difference.
///
/// With $QUILLANE_RENEW_REFERENCES set the reference is written anew instead.
void expectReference(const QString& name, const QImage& actual) {
  const auto save = [](const QImage& image, const QString& path) {
    QDir().mkpath(QFileInfo(path).path());
    EXPECT_TRUE(image.save(path)) << path.toStdString();
  };
  const QString path = REFERENCE_FOLDER "/" + name + "/sheet.png";
  if (qEnvironmentVariableIsSet("QUILLANE_RENEW_REFERENCES")) return save(actual, path);

  const QImage expected = QImage(path).convertToFormat(QImage::Format_RGB32);
  if (expected == actual) return;
  QImage mask = actual;
  QPainter painter(&mask);
  painter.setCompositionMode(QPainter::CompositionMode_Difference);
  painter.drawImage(0, 0, expected);
  painter.end();
  const QString leftovers = DIFFERENCE_FOLDER "/" + name;
  save(actual, leftovers + "-actual.png");
  save(mask, leftovers + "-difference.png");
  ADD_FAILURE() << name.toStdString() << " differs from its reference; see "
                << leftovers.toStdString() << "-*.png";
}

/// Every face and size of the screens with all the characters of Latin-1 and the ampersand's uses.
TEST(ReferenceTest, Typefaces) {
  const std::tuple<const char*, bool, int> fonts[] = {
      {"Tahoma", false, 7},       {"Tahoma", true, 7},      {"Tahoma", false, 8},
      {"Tahoma", true, 8},        {"Tahoma", true, 9},      {"MS Sans Serif", false, 8},
      {"MS Sans Serif", true, 8}, {"Small Fonts", false, 5}};
  Surface sheet(QSize(360, 8 * 94), 0xFFFFFF);
  int top = 2;
  for (const auto& [name, bold, points] : fonts) {
    QString text = "&Fun && &Games &gjpqy&&\n";
    for (char16_t character = 0x21; character < 0x100; ++character) {
      if (character >= 0x7F && character < 0xA0) continue;
      text += QChar(character == u'&' ? u'+' : character);
      if (character == 0x4A || character == 0x6F || character == 0xBF || character == 0xDF)
        text += '\n';
    }
    DrawTextRect(sheet, text, 3, top, 92, 354, {name, AlignLeft, bold, points, 0});
    top += 94;
  }
  expectReference("typefaces", sheet.image());
}

/// All screens of a theme side by side, four in a row.
template <class Engine>
QImage contactSheet(std::span<const Screen<Engine>> screens, QSize size, const ThemeValues& theme,
                    bool images) {
  constexpr int kColumns = 4;
  const int rows = (static_cast<int>(screens.size()) + kColumns - 1) / kColumns;
  QImage sheet(kColumns * size.width(), rows * size.height(), QImage::Format_RGB32);
  sheet.fill(Qt::white);
  QPainter painter(&sheet);

  StillWorld world;
  world.nextRandom = -1;
  Engine engine(world);
  engine.takeTheme(theme);
  fillPhone(engine);
  if constexpr (requires { engine.DrawImages; }) engine.DrawImages = images;
  for (int place = 0; const Screen<Engine>& screen : screens) {
    Surface surface(size);
    engine.setSurface(surface);
    screen.paint(engine);
    painter.drawImage(place % kColumns * size.width(), place / kColumns * size.height(),
                      surface.image());
    ++place;
  }
  return sheet;
}

QImage contactSheet(const ThemeValues& theme, bool images = true) {
  return theme.schema().generation == Generation::Two
             ? contactSheet(screensOfGeneration2(), Surface::kSize2, theme, images)
             : contactSheet(screensOf3G(), Surface::kSize3G, theme, images);
}

/// Each theme that we ship, as its source folder, and each picture folder has its case.
TEST(ReferenceTest, Themes) {
  const auto foldersIn = [](const QString& path) {
    return QDir(path).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
  };
  const QDir themes(QString(THEMES_FOLDER));
  QStringList cases{"typefaces"};
  const auto expectSheet = [&](const QString& name, const QImage& sheet) {
    expectReference(name, sheet);
    cases.append(name);
  };
  expectSheet("defaults 2", contactSheet(ThemeValues(Generation::Two)));
  expectSheet("defaults 3g", contactSheet(ThemeValues(Generation::ThreeG)));

  for (const QString& name : foldersIn(themes.path())) {
    ImageStates states{};
    auto theme = loadTheme(themes.filePath(name), states, [&](const Fault& fault) {
      ADD_FAILURE() << name.toStdString() << ": " << fault.what();
    });
    ASSERT_TRUE(theme) << name.toStdString();
    EXPECT_EQ(theme->warnings, QStringList()) << name.toStdString();
    ThemeValues& values = theme->values;
    expectSheet(name, contactSheet(values));
    if (values.schema().generation == Generation::Two) continue;

    const QImage imagesOff = contactSheet(values, false);
    if (name == "Polar Night") expectSheet("Polar Night, images off", imagesOff);
    for (int slot = 0; slot < static_cast<int>(values.schema().images.size()); ++slot)
      values.setImage(slot, QString());
    EXPECT_EQ(contactSheet(values), imagesOff) << name.toStdString();
  }
  for (const QString& name : foldersIn(REFERENCE_FOLDER))
    EXPECT_TRUE(cases.contains(name)) << name.toStdString() << " is a reference of nothing";
}

}  // namespace

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview/modapigraphics.h"
#include "preview/screens.h"
#include "support/probes.h"
#include "support/text.h"
#include "support/tinygif.h"
#include "theme/load.h"

#include <QDir>
#include <QFileInfo>
#include <QPainter>
#include <QRegularExpression>

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

/// What a sheet shows: a theme on a phone at a moment.
struct Scene {
  ThemeValues theme;
  bool images = true;
  QString languageFile{};
  QDateTime time = StillWorld().time;
};

/// Adds the pictures of the screens whose id begins like `ids`, each on a surface of its own. Where
/// a screen ends in a fault, what it had painted counts.
template <class Engine>
void addScreens(std::vector<QImage>& pictures, std::span<const Screen<Engine>> screens, QSize size,
                const Scene& scene, const QRegularExpression& ids) {
  StillWorld world;
  world.nextRandom = -1;
  world.time = scene.time;
  Engine engine(world);
  engine.takeTheme(scene.theme);
  fillPhone(engine, scene.languageFile);
  if constexpr (requires { engine.DrawImages; }) engine.DrawImages = scene.images;
  for (const Screen<Engine>& screen : screens) {
    if (!ids.match(screen.id).hasMatch()) continue;
    Surface surface(size);
    engine.setSurface(surface);
    const int fault = faultNumberOf([&] { screen.paint(engine); });
    EXPECT_TRUE(fault == 0 || !scene.languageFile.isEmpty()) << screen.id.data() << ' ' << fault;
    pictures.push_back(surface.image());
  }
}

/// The scenes' screens in rows of seven.
QImage contactSheet(const std::vector<Scene>& scenes, const QString& ids = {}) {
  std::vector<QImage> pictures;
  for (const Scene& scene : scenes)
    if (scene.theme.schema().generation == Generation::Two)
      addScreens(pictures, screensOfGeneration2(), Surface::kSize2, scene, QRegularExpression(ids));
    else
      addScreens(pictures, screensOf3G(), Surface::kSize3G, scene, QRegularExpression(ids));

  constexpr int kColumns = 7;
  const QSize size = pictures.front().size();
  const int count = static_cast<int>(pictures.size());
  QImage sheet(std::min(count, kColumns) * size.width(),
               (count + kColumns - 1) / kColumns * size.height(), QImage::Format_RGB32);
  sheet.fill(Qt::white);
  QPainter painter(&sheet);
  for (int place = 0; place < count; ++place)
    painter.drawImage(place % kColumns * size.width(), place / kColumns * size.height(),
                      pictures[static_cast<std::size_t>(place)]);
  return sheet;
}

ThemeValues withEveryImage(Generation generation, const QString& file) {
  ThemeValues theme(generation);
  for (int slot = 0; slot < static_cast<int>(theme.schema().images.size()); ++slot)
    theme.setImage(slot, file);
  return theme;
}

/// Every reference is somebody's: each theme that we ship, as its source folder, and the cases
/// below.
class ReferenceSheets : public TempFolder {
 protected:
  void expectSheet(const QString& name, const QImage& sheet) {
    expectReference(name, sheet);
    cases_.append(name);
  }
  static QStringList foldersIn(const QString& path) {
    return QDir(path).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
  }
  QString shadedPicture(QSize size) const;
  void sampleThemes();
  void pictures();
  void months();
  void shortLists();
  void nothingElse() const {
    for (const QString& name : foldersIn(REFERENCE_FOLDER))
      EXPECT_TRUE(cases_.contains(name)) << name.toStdString() << " is a reference of nothing";
  }

 private:
  QStringList cases_{"typefaces"};
};

/// A picture file whose colours run from corner to corner.
QString ReferenceSheets::shadedPicture(QSize size) const {
  QImage image(size, QImage::Format_RGB32);
  for (int y = 0; y < size.height(); ++y)
    for (int x = 0; x < size.width(); ++x)
      image.setPixel(x, y, qRgb(255 * x / size.width(), 160, 255 * y / size.height()));
  const QString file = path(QString("%1.bmp").arg(size.width()));
  EXPECT_TRUE(image.save(file));
  return file;
}

void ReferenceSheets::sampleThemes() {
  const QDir themes(QString(THEMES_FOLDER));
  for (const QString& name : foldersIn(themes.path())) {
    ImageStates states{};
    const auto theme = loadTheme(themes.filePath(name), states, [&](const Fault& fault) {
      ADD_FAILURE() << name.toStdString() << ": " << fault.what();
    });
    ASSERT_TRUE(theme) << name.toStdString();
    EXPECT_EQ(theme->warnings, QStringList()) << name.toStdString();
    ThemeValues values = theme->values;
    expectSheet(name, contactSheet({{values}}));
    if (values.schema().generation == Generation::Two) continue;

    const QImage imagesOff = contactSheet({{values, false}});
    if (name == "Polar Night") expectSheet("Polar Night, images off", imagesOff);
    for (int slot = 0; slot < static_cast<int>(values.schema().images.size()); ++slot)
      values.setImage(slot, QString());
    EXPECT_EQ(contactSheet({{values}}), imagesOff) << name.toStdString();
  }
}

/// One picture in all slots: smaller and larger than each, and one that is clear but for a block.
void ReferenceSheets::pictures() {
  const QString small = shadedPicture({60, 12});
  const QString large = shadedPicture({210, 190});
  const QString clear = write("clear.gif", tinyGif({110, 90}, {30, 8, 40, 60}, 2, 1));
  for (const auto& [name, generation] :
       {std::pair{"2", Generation::Two}, {"3g", Generation::ThreeG}}) {
    expectSheet(QString("defaults ") + name, contactSheet({{ThemeValues(generation)}}));
    const auto sheetWith = [&, generation = generation](const QString& file) {
      return contactSheet({{withEveryImage(generation, file)}});
    };
    expectSheet(QString("small images ") + name, sheetWith(small));
    expectSheet(QString("large images ") + name, sheetWith(large));
    expectSheet(QString("clear images ") + name, sheetWith(clear));
  }
}

/// Months of 31 days from a Monday, of 31 from a Sunday and of 28 from a Monday, at their ends.
void ReferenceSheets::months() {
  const QDate days[] = {{2003, 12, 1}, {2002, 12, 31}, {2010, 2, 28}, {2004, 3, 31}};
  for (const auto& [name, generation] :
       {std::pair{"2", Generation::Two}, {"3g", Generation::ThreeG}}) {
    std::vector<Scene> scenes;
    for (const QDate& day : days)
      scenes.push_back({ThemeValues(generation), true, {}, day.startOfDay()});
    expectSheet(QString("months ") + name, contactSheet(scenes, "calendar"));
  }
}

void ReferenceSheets::shortLists() {
  const QString file = write("short.lng",
                             "[Desktop]\nTitles=One|Two\n"
                             "[Menu]\nTitles=First|Second\nMenuListS=--1Up|H-2Down\n"
                             "MenuListM=HD1Only\nMenuListL=-D1Weak\n"
                             "MenuList1=--Up|H-Down\nMenuList2=HDOnly\n"
                             "[PopupMenu]\nTitles=Menu\nMenuList1=--Up|H-Down\nMenuList2=-DWeak\n"
                             "[PopupWindow]\nText=One|Two|Three|Four|Five\n"
                             "[Notes]\nNote=One|Two|Three|Four|Five|Six|Seven\n"
                             "[Calendar]\nDaysOfWeek=M|T|W\n"
                             "[Softkeys]\nMenuList1=Monday\nSoftkeysText=Ok\n");
  expectSheet("short lists 2", contactSheet({{ThemeValues(Generation::Two), true, file}}));
  expectSheet("short lists 3g", contactSheet({{ThemeValues(Generation::ThreeG), true, file}}));
}

TEST_F(ReferenceSheets, Sheets) {
  sampleThemes();
  pictures();
  months();
  shortLists();
  nothingElse();
}

}  // namespace

}  // namespace quillane

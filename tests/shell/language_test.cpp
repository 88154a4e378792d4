// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/language.h"

#include "preview/faces.h"
#include "preview/pipelist.h"
#include "preview/screens.h"
#include "shell/ini.h"
#include "support/probes.h"
#include "theme/codepage.h"

#include <QDir>
#include <QFile>
#include <QStringDecoder>
#include <gmock/gmock.h>

#include <algorithm>
#include <vector>

namespace quillane {

namespace {

class Language : public TempFolder {
 protected:
  StillWorld world;
  PublicState state;
  MemorySettings settings;
  FaultLog log;
};

QByteArray shippedFile(const QString& folder, const QString& name) {
  QFile file(LANGUAGE_FOLDER "/" + folder + '/' + name);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  return file.readAll();
}

TEST_F(Language, ReportsASettingThatIsNoNumberAndGoesOn) {
  settings.write(setting::BatteryLevel, "full");
  clsVistrel engine(world);
  InitPreview2(engine, state, settings, log.reporter());
  EXPECT_EQ(engine.BatteryLevel, 10);
  EXPECT_EQ(engine.NotesText, "Do not forget|this...");
  ASSERT_EQ(log.texts().size(), 1);
  EXPECT_TRUE(log.texts().first().contains("BatteryLevel"));
}

/// Where a text of the screens stands: the letters before each label that tell how its row looks,
/// and the points, weight and width in pixels that its labels have.
struct Row {
  const char* section;
  const char* key;
  int flags;
  std::vector<int> points;  ///< One for each label; the last one serves the rest.
  bool bold;
  int width;
};

const std::vector<Row> kRows2{
    {"Desktop", "Titles", 0, {8}, true, 99},      {"Menu", "Titles", 0, {7, 8, 9, 8}, true, 99},
    {"Menu", "MenuListS", 3, {7}, false, 93},     {"Menu", "MenuListM", 3, {8}, true, 93},
    {"Menu", "MenuListL", 3, {9}, true, 93},      {"Menu", "Prompt", 0, {8}, true, 100},
    {"PopupMenu", "Titles", 0, {8}, true, 91},    {"PopupMenu", "MenuList1", 3, {8}, true, 82},
    {"PopupMenu", "MenuList2", 3, {8}, true, 82}, {"PopupMenu", "Prompt", 0, {8}, false, 86},
    {"PopupWindow", "Text", 0, {8}, true, 91},    {"Notes", "Note", 0, {8}, false, 69}};

const std::vector<Row> kRows3G{{"Standby", "SoftkeysText", 0, {8}, true, 50},
                               {"Desktop", "Titles", 0, {8}, true, 125},
                               {"Desktop", "SoftkeysText", 0, {8}, true, 58},
                               {"Menu", "Titles", 0, {8}, true, 125},
                               {"Menu", "MenuList1", 2, {8}, true, 118},
                               {"Menu", "MenuList2", 2, {8}, true, 118},
                               {"Menu", "SoftkeysText", 0, {8}, true, 58},
                               {"PopupMenu", "Titles", 0, {8}, true, 117},
                               {"PopupMenu", "MenuList1", 2, {8}, true, 109},
                               {"PopupMenu", "MenuList2", 2, {8}, true, 109},
                               {"PopupMenu", "SoftkeysText", 0, {8}, true, 58},
                               {"Softkeys", "Titles", 0, {8}, true, 125},
                               {"Softkeys", "MenuList1", 0, {8}, true, 106},
                               {"Softkeys", "MenuList2", 0, {8}, true, 106},
                               {"Softkeys", "SoftkeysText", 0, {8}, true, 58},
                               {"Calendar", "DaysOfWeek", 0, {8}, false, 13},
                               {"Calendar", "SoftkeysText", 0, {8}, true, 58},
                               {"Notes", "Note", 0, {8}, false, 110},
                               {"WAPBrowser", "Title", 0, {8}, true, 125},
                               {"WAPBrowser", "SoftkeysText", 0, {8}, true, 58},
                               {"ProgressWindow", "Text", 0, {8}, true, 106},
                               {"AcceptWindow", "Text", 0, {8}, true, 115},
                               {"AcceptWindow", "SoftkeysText", 0, {8}, true, 58}};

/// All screens with the texts of a file.
template <class Engine>
QList<QImage> paintedWith(const QString& file, std::span<const Screen<Engine>> screens,
                          QSize size) {
  StillWorld world;
  Engine engine(world);
  fillPhone(engine, file);
  QList<QImage> pictures;
  for (const Screen<Engine>& screen : screens) {
    Surface surface(size);
    engine.setSurface(surface);
    faultNumberOf([&] { screen.paint(engine); });  // A list may be too short.
    pictures += surface.image();
  }
  return pictures;
}

TEST_F(Language, EveryTextOfTheFileReachesAScreen) {
  const auto expectShown = [this](const QString& folder, const std::vector<Row>& rows, auto screens,
                                  QSize size) {
    const QList<QImage> standard = paintedWith({}, screens, size);
    EXPECT_EQ(paintedWith(LANGUAGE_FOLDER "/" + folder + "/english.lng", screens, size), standard);
    for (const Row& row : rows) {
      const QString text = QString("[%1]\n%2=--X\n").arg(row.section, row.key);
      EXPECT_NE(paintedWith(write("one.lng", text.toLatin1()), screens, size), standard)
          << text.toStdString();
    }
  };
  expectShown("2", kRows2, screensOfGeneration2(), Surface::kSize2);
  expectShown("3G", kRows3G, screensOf3G(), Surface::kSize3G);
}

QString shippedValue(const QString& ini, const char* section, const char* key) {
  QString value = iniValue(ini, section, key, "");
  EXPECT_FALSE(value.isEmpty()) << section << ' ' << key;
  EXPECT_LT(value.size(), 254) << section << ' ' << key;  // Where longer ones are cut.
  return value;
}

bool isControl(QChar letter) {
  return letter.category() == QChar::Other_Control && letter != u'\r' && letter != u'\n';
}

void expectWindowsText(const QByteArray& bytes) {
  EXPECT_TRUE(bytes.endsWith("\r\n"));
  EXPECT_EQ(bytes.count('\n'), bytes.count("\r\n"));
  EXPECT_EQ(bytes.count('\r'), bytes.count("\r\n"));
  const QString text = fromCodePage(bytes);
  EXPECT_TRUE(std::none_of(text.begin(), text.end(), isControl));
  QStringDecoder utf8(QStringDecoder::Utf8);
  const QString misread = utf8(bytes);
  EXPECT_TRUE(misread == text || utf8.hasError()) << "in UTF-8, not in the code page";
}

/// Compares the labels of a row with the default ones, which a few of them may be wider than.
void expectSameShape(const Row& row, const QString& face, const QString& value,
                     const QString& standard) {
  const QStringList labels = splitList(value);
  const QStringList standards = splitList(standard);
  ASSERT_EQ(labels.size(), standards.size()) << row.section << ' ' << row.key;
  for (int i = 0; i < labels.size(); ++i) {
    EXPECT_EQ(labels[i].left(row.flags), standards[i].left(row.flags)) << qPrintable(labels[i]);
    const int points = row.points[std::min(static_cast<std::size_t>(i), row.points.size() - 1)];
    const auto width = [&](const QString& label) {
      SizedFace& sized = Faces::shared().face(face, points, row.bold);
      return sized.widthOf(label.mid(row.flags).replace("&&", "&"));
    };
    EXPECT_GT(width(labels[i]), 0) << row.section << ' ' << row.key << ' ' << i;
    EXPECT_LE(width(labels[i]), std::max(row.width, width(standards[i]))) << qPrintable(labels[i]);
  }
}

void expectLanguages(const QString& folder, const QString& face, const std::vector<Row>& rows) {
  const QString standard = fromCodePage(shippedFile(folder, "english.lng"));
  ASSERT_EQ(standard.count('='), rows.size() + 3) << "a text without a row; FileInfo has three";
  const QStringList names =
      QDir(LANGUAGE_FOLDER "/" + folder).entryList({"*.ini"}, QDir::Files, QDir::Name);
  EXPECT_THAT(names,
              testing::ElementsAre("dutch.ini", "english.ini", "french.ini", "german.ini",
                                   "italian.ini", "portuguese.ini", "spanish.ini", "swedish.ini"));
  for (const QString& name : names) {
    SCOPED_TRACE(qPrintable(folder + '/' + name));
    const QByteArray bytes = shippedFile(folder, name);
    expectWindowsText(bytes);
    const QString ini = fromCodePage(bytes);
    for (const char* key : {"Language", "Version", "Author", "Comment"})
      shippedValue(ini, "FileInfo", key);
    for (const Row& row : rows)
      expectSameShape(row, face, shippedValue(ini, row.section, row.key),
                      iniValue(standard, row.section, row.key, ""));
  }
}

TEST(LanguageFiles, HaveEveryTextAndFitTheirRows) {
  expectLanguages("2", "Tahoma", kRows2);
  expectLanguages("3G", "MS Sans Serif", kRows3G);
}

TEST_F(Language, FilesHaveAtMostAMebibyte) {
  const QByteArray text = "[Notes]\nNote=Mine\n";
  state.ConfigFolder2 = path() + '/';
  state.LanguageFile2 = "my.lng";
  clsVistrel engine(world);
  for (const auto& [size, note] :
       {std::pair{1 << 20, "Mine"}, {(1 << 20) + 1, "Do not forget|this..."}}) {
    write("my.lng", text + QByteArray(size - text.size(), ' '));
    InitPreview2(engine, state, settings, log.reporter());
    EXPECT_EQ(engine.NotesText, note);
  }
  EXPECT_EQ(log.texts().size(), 1);
}

}  // namespace

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/language.h"

#include "preview/faces.h"
#include "preview/pipelist.h"
#include "shell/ini.h"
#include "shell/settings.h"
#include "shell/state.h"
#include "support/stillworld.h"
#include "support/tempfolder.h"
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

/// The shipped file of a generation with "!" behind each value.
QByteArray markedFile(const QString& folder) {
  return shippedFile(folder, "english.lng").replace("\r\n", "!\r\n").replace("]!", "]");
}

/// Every text of an engine, as the shipped file has it when nothing else is said.
template <class Engine, std::size_t Count>
void expectMarked(const Engine& engine, const Engine& standard,
                  QString Engine::*const (&texts)[Count]) {
  for (const auto text : texts)
    EXPECT_EQ(engine.*text, standard.*text + '!');
}

TEST_F(Language, TakesEveryTextOfTheFile) {
  write("2/own.lng", markedFile("2"));
  write("3G/own.lng", markedFile("3G"));
  clsVistrel standard2(world), engine2(world);
  clsVistrel3G standard3G(world), engine3G(world);
  InitPreview2(standard2, state, settings, log.reporter());
  InitPreview3G(standard3G, state, settings, log.reporter());
  state.ConfigFolder2 = path("2/");
  state.ConfigFolder3G = path("3G/");
  state.LanguageFile2 = state.LanguageFile3G = "own.lng";
  InitPreview2(engine2, state, settings, log.reporter());
  InitPreview3G(engine3G, state, settings, log.reporter());

  using T = clsVistrel;
  expectMarked(engine2, standard2,
               {&T::DesktopTitle, &T::TitleText, &T::MenuSmallText, &T::MenuMediumText,
                &T::MenuLargeText, &T::PromptText, &T::PopupTitleText, &T::PopupMenuList1,
                &T::PopupMenuList2, &T::PopupPromptText, &T::PopupWindowText, &T::NotesText});
  EXPECT_EQ(engine2.PopupMenuText, engine2.PopupMenuList1);
  EXPECT_TRUE(log.texts().isEmpty());
  using G = clsVistrel3G;
  expectMarked(engine3G, standard3G,
               {&G::StandbySoftkeyText, &G::DesktopTitles, &G::DesktopSoftkeyText, &G::TitleText,
                &G::MenuText1, &G::MenuText2, &G::MenuSoftkeyText, &G::MoreListTitleText,
                &G::MoreListMenuText1, &G::MoreListMenuText2, &G::MoreListSoftkeyText,
                &G::SoftkeysMenuTitleText});
  expectMarked(engine3G, standard3G,
               {&G::SoftkeysMenuText1, &G::SoftkeysMenuText2, &G::SoftkeysSoftkeyText,
                &G::CalendarDaysOfWeek, &G::CalendarSoftkeyText, &G::NotesText,
                &G::WapbrowserTitleText, &G::WapbrowserSoftkeyText, &G::ProgressWindowText,
                &G::AcceptWindowText, &G::AcceptWindowSoftkeyText});
}

TEST_F(Language, Fills3GAndSwitchesImagesOn) {
  settings.write(setting::DesktopIcon3G, "12");
  settings.write(setting::DateFormat3G, "yymmdd");
  clsVistrel3G engine(world);
  InitPreview3G(engine, state, settings, log.reporter());
  EXPECT_TRUE(engine.DrawImages);
  EXPECT_EQ(engine.DesktopIcon, 12);
  EXPECT_EQ(engine.DateFormat, "yymmdd");
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

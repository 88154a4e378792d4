// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/language.h"

#include "shell/settings.h"
#include "shell/state.h"
#include "support/stillworld.h"
#include "support/tempfolder.h"

#include <QFile>

namespace quillane {

namespace {

class Language : public TempFolder {
 protected:
  StillWorld world;
  PublicState state;
  MemorySettings settings;
  FaultLog log;
};

/// The shipped file of a generation with "!" behind each value.
QByteArray markedFile(const QString& folder) {
  QFile file(LANGUAGE_FOLDER "/" + folder + "/english.lng");
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  return file.readAll().replace("\r\n", "!\r\n").replace("]!", "]");
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

}  // namespace

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/language.h"

#include "shell/settings.h"
#include "shell/state.h"
#include "support/stillworld.h"
#include "support/temp_folder.h"
#include "support/text.h"

namespace quillane {

namespace {

class Language : public TempFolder {
 protected:
  StillWorld world;
  PublicState state;
  MemorySettings settings;
  FaultLog log;
};

TEST_F(Language, FillsGeneration2FromDefaults) {
  clsVistrel engine(world);
  InitPreview2(engine, state, settings, log.reporter());
  EXPECT_EQ(engine.OperatorName, "World");
  EXPECT_EQ(engine.SignalStrength, 5);
  EXPECT_EQ(engine.BatteryLevel, 10);
  EXPECT_EQ(engine.DesktopIcon, 5);
  EXPECT_TRUE(engine.ShowGPRSIcon);
  EXPECT_EQ(engine.MenuMediumText,
            "--1Write new|HD2Inbox|-D3Unsent|--4Templates|--5Sent items (2)");
  EXPECT_EQ(engine.PopupMenuText, "--2Rel. caps lock|H-3Language|-D4Input method|--5Help");
  EXPECT_EQ(state.PopupMenuList1, engine.PopupMenuText);
  EXPECT_EQ(state.PopupMenuList2, "--6Language|--7Input method|HD8Candidates|-D9Accept word");
  EXPECT_EQ(static_cast<const QString&>(engine.CalendarDateFormat), "mmm yyyy");
  EXPECT_TRUE(log.texts().isEmpty());
}

TEST_F(Language, TakesTheTextsOfTheFile) {
  write("2/own.lng",
        "[PopupMenu]\r\nMenuList1=--1Uno\r\nMenuList2=--2Due\r\n[Notes]\r\nNote=Ciao\r\n");
  state.ConfigFolder2 = path("2/");
  state.LanguageFile2 = "own.lng";
  clsVistrel engine(world);
  InitPreview2(engine, state, settings, log.reporter());
  EXPECT_EQ(engine.PopupMenuText, "--1Uno");
  EXPECT_EQ(state.PopupMenuList2, "--2Due");
  EXPECT_EQ(engine.NotesText, "Ciao");
  EXPECT_EQ(engine.PromptText, "Text:");
}

TEST_F(Language, Fills3GAndSwitchesImagesOn) {
  settings.write(setting::DesktopIcon3G, "12");
  settings.write(setting::DateFormat3G, "yymmdd");
  clsVistrel3G engine(world);
  InitPreview3G(engine, state, settings, log.reporter());
  EXPECT_TRUE(engine.DrawImages);
  EXPECT_EQ(engine.DesktopIcon, 12);
  EXPECT_EQ(engine.DateFormat, "yymmdd");
  EXPECT_EQ(engine.DesktopTitles.count('|'), 11);
  EXPECT_EQ(engine.SoftkeysMenuTitleText, "Reccurence rule|Contact information");
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

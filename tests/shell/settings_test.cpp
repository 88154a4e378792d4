// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/settings.h"

#include "support/temp_folder.h"
#include "support/text.h"

namespace quillane {

namespace {

class Settings : public TempFolder {};

TEST_F(Settings, ReadsFlagsAndNumbersAsTexts) {
  struct Case {
    const char* stored;
    bool flag;
    int faults;
  };
  const Case cases[] = {{"0", false, 0}, {"-1", true, 0},  {"1", true, 0},    {" 7 ", true, 0},
                        {"", true, 1},   {"yes", true, 1}, {"99999", true, 1}};
  for (const Case& row : cases) {
    MemorySettings store;
    FaultLog log;
    store.write(setting::ActiveSignal, row.stored);
    EXPECT_EQ(flagSetting(store, setting::ActiveSignal, log.reporter()), row.flag) << row.stored;
    EXPECT_EQ(log.texts().size(), row.faults) << row.stored;
  }
}

TEST_F(Settings, KeepsTextsInAFile) {
  FaultLog log;
  const QString file = path("config/Quillane 3G.ini");
  IniSettings(file, log.reporter()).write(setting::OperatorName, "a, b; \"c\"");
  const IniSettings again(file, log.reporter());
  EXPECT_EQ(again.read(setting::OperatorName), "a, b; \"c\"");
  EXPECT_EQ(again.read(setting::TimeFormat), "hh:mm");
  EXPECT_TRUE(log.texts().isEmpty());
}

TEST_F(Settings, JoinsAValueWithABareComma) {
  FaultLog log;
  const QString file = write("x.ini", "[%General]\nOperatorName=Here, there\n");
  EXPECT_EQ(IniSettings(file, log.reporter()).read(setting::OperatorName), "Here, there");
}

TEST_F(Settings, KeepsABrokenFileBesideANewOne) {
  const QByteArray broken = "[General\nthis is no settings file\n";
  const QString file = write("x.ini", broken);
  FaultLog log;
  {
    IniSettings store(file, log.reporter());
    EXPECT_EQ(store.read(setting::BatteryLevel), "10");
    store.write(setting::BatteryLevel, "3");
  }
  ASSERT_EQ(log.texts().size(), 1);
  EXPECT_TRUE(log.texts().first().contains(file)) << log.texts().first().toStdString();
  EXPECT_EQ(read("x.ini.broken"), broken);
  EXPECT_TRUE(read("x.ini").contains("BatteryLevel=3"));
}

}  // namespace

}  // namespace quillane

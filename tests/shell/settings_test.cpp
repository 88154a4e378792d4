// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/settings.h"

#include "support/tempfolder.h"

namespace quillane {

namespace {

class Settings : public TempFolder {};

TEST_F(Settings, ReadsFlagsAndNumbersFromTexts) {
  // The faults are those of both readings.
  const std::tuple<const char*, bool, int, int> cases[] = {
      {"0", false, 0, 0},  {"-1", true, -1, 0},   {" 7 ", true, 7, 0}, {"0.5", true, 0, 0},
      {"2.5", true, 2, 0}, {"70000", true, 3, 1}, {"", true, 3, 2},    {"yes", true, 3, 2}};
  const Setting number{"General", "Number", "3"};
  for (const auto& [stored, flag, value, faults] : cases) {
    MemorySettings store;
    FaultLog log;
    store.write(number, stored);
    EXPECT_EQ(flagSetting(store, number, log.reporter()), flag) << stored;
    EXPECT_EQ(numberSetting(store, number, log.reporter()), value) << stored;
    EXPECT_EQ(log.texts().size(), faults) << stored;
  }
}

TEST_F(Settings, KeepsTextsInAFile) {
  FaultLog log;
  int count = 0;
  for (const char* text :
       {"a, b; \"c\"", "@Invalid()", "@@", " blanks ", "a\tb\r\nc", "C:\\x\\", "\\x41",
        "\u00e9\u7fe0", "50%20=[x]", "#", ";", "", "\"", "/home/ann/My Themes/"}) {
    const QString file = path("config/Quillane %1.ini").arg(++count);
    IniSettings(file, log.reporter()).write(setting::OperatorName, text);
    const IniSettings again(file, log.reporter());
    EXPECT_EQ(again.read(setting::OperatorName), text);
    EXPECT_EQ(again.read(setting::TimeFormat), "hh:mm");
  }
  const QString commas = write("x.ini", "[%General]\nOperatorName=Here, there\n");
  EXPECT_EQ(IniSettings(commas, log.reporter()).read(setting::OperatorName), "Here, there");
  EXPECT_TRUE(log.texts().isEmpty());
}

TEST_F(Settings, KeepsABrokenFileBesideANewOne) {
  const QByteArray good = "[%General]\nOperatorName=Mine\n";
  const QByteArray cases[] = {QByteArray(300, '\0'), "this is no settings file\nat all",
                              good + "half a li", "[Vistrel2Dynamics\nDesktopIcon=4\n"};
  for (const QByteArray& broken : cases) {
    const QString file = write("x.ini", broken);
    FaultLog log;
    {
      IniSettings store(file, log.reporter());
      EXPECT_EQ(store.read(setting::OperatorName), broken.startsWith(good) ? "Mine" : "World");
      store.write(setting::BatteryLevel, "3");
      store.flush();
    }
    ASSERT_EQ(log.texts().size(), 1) << broken.toStdString();
    EXPECT_TRUE(log.texts().first().contains(file + ".broken"));
    EXPECT_EQ(read("x.ini.broken"), broken);
    EXPECT_TRUE(read("x.ini").contains("BatteryLevel=3"));
  }
}

TEST_F(Settings, SayWhenTheyCannotBeKept) {
  write("config", "a file in the way");
  FaultLog log;
  IniSettings store(path("config/x.ini"), log.reporter());
  store.write(setting::BatteryLevel, "3");
  EXPECT_NE(faultNumberOf([&] { store.flush(); }), 0);
  ASSERT_TRUE(QFile::remove(path("config")));
  makeFolder("config");
  store.write(setting::SignalStrength, "2");
  EXPECT_EQ(faultNumberOf([&] { store.flush(); }), 0) << "the way is free";
  EXPECT_TRUE(read("config/x.ini").contains("BatteryLevel=3\nSignalStrength=2"));
}

TEST_F(Settings, AreReadFromASectionThatAPersonWrote) {
  FaultLog log;
  IniSettings store(write("x.ini", "[General]\nOperatorName=Ann\nBatteryLevel=3\n"),
                    log.reporter());
  store.write(setting::BatteryLevel, "4");
  EXPECT_EQ(store.read(setting::OperatorName) + store.read(setting::BatteryLevel), "Ann4");
}

}  // namespace

}  // namespace quillane

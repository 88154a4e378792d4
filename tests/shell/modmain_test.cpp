// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/modmain.h"

#include "shell/places.h"
#include "shell/settings.h"
#include "shell/state.h"
#include "support/stillworld.h"
#include "support/tempfolder.h"

namespace quillane {

namespace {

/// Notes what the start does on the screen.
class NotedScreen : public StartScreen {
 public:
  QSize size{1024, 768};
  QStringList notes;

  QSize screenSize() override { return size; }
  void stop(const QString& text) override { notes << text; }
  void showSplash() override { notes << "splash"; }
  void setStatus(const QString& text) override { notes << text; }
  void loadBrowser() override { notes << "browser"; }
  void unloadSplash() override { notes << "no splash"; }
};

class Start : public TempFolder {
 protected:
  bool start() {
    const Places places{path("home"), path("shipped"), path("system"), {}};
    return Main(state, settings, places, world, screen, log.reporter());
  }
  QString home(const QString& name = {}) const { return path("home") + '/' + name; }

  PublicState state;
  MemorySettings settings;
  StillWorld world;
  NotedScreen screen;
  FaultLog log;
};

TEST_F(Start, RefusesAScreenThatIsTooSmallInBothDirections) {
  const std::pair<QSize, bool> cases[] = {{{1024, 500}, true}, {{640, 900}, true},
                                          {{640, 480}, false}, {{800, 599}, true},
                                          {{799, 600}, true},  {{799, 599}, false}};
  for (const auto& [size, starts] : cases) {
    screen.size = size;
    screen.notes.clear();
    EXPECT_EQ(start(), starts) << size.width() << 'x' << size.height();
    if (starts) continue;
    EXPECT_EQ(screen.notes, QStringList{"Quillane was not designed to run\r\n"
                                        "on screen resolution lower then 800x600."});
  }
}

TEST_F(Start, RunsItsStepsInOrder) {
  ASSERT_TRUE(start());
  EXPECT_EQ(screen.notes, (QStringList{"splash", "Status: Initializing preview engines...",
                                       "Status: Loading browser...", "browser", "no splash"}));
  EXPECT_EQ(state.AppTempFolder, home("temp/"));
  EXPECT_EQ(state.ConfigFolder2, home("Vistrel Config/2/"));
  EXPECT_EQ(state.PalettesFolder, home("Palettes/"));
  EXPECT_EQ(state.LanguageFile3G, "english.lng");
  EXPECT_TRUE(state.IncludeIndexFile && state.CompressXMLCode && state.SmartLAImage);
  EXPECT_FALSE(state.DisableETT);
  EXPECT_TRUE(log.texts().isEmpty());
}

TEST_F(Start, EmptiesTheWorkFolder) {
  write("home/temp/left.gif", "x");
  write("home/temp/new/left.xml", "x");
  start();
  EXPECT_TRUE(listOf("home/temp").isEmpty());

  write("theirs/kept.xml", "x");
  QFile::link(path("theirs"), home("temp/new"));
  start();
  EXPECT_EQ(read("theirs/kept.xml"), "x") << "a link leads nowhere";
}

TEST_F(Start, SettlesTheFolders) {
  const std::tuple<const Setting&, QString PublicState::*, const char*> rows[] = {
      {setting::ThemesFolder, &PublicState::ThemesFolder, "My Themes/"},
      {setting::BrowseFolder, &PublicState::BrowseFolder, "My Themes/"},
      {setting::ImageFolder, &PublicState::ImageFolder, ""},
      {setting::ExportFolder, &PublicState::ExportFolder, ""},
      {setting::ImageWizSaveFolder, &PublicState::ImageWizSaveFolder, ""}};
  makeFolder("home/My Themes");
  start();
  for (const auto& [setting, folder, standard] : rows)
    EXPECT_EQ(state.*folder, home(standard)) << setting.key;
  for (const auto& [setting, folder, standard] : rows)
    settings.write(setting, makeFolder(setting.key));
  start();
  for (const auto& [setting, folder, standard] : rows)
    EXPECT_EQ(state.*folder, path(setting.key) + '/') << setting.key;
  settings.write(setting::ExportFolder, path("vanished"));
  settings.write(setting::ThemesFolder, path("vanished"));
  settings.write(setting::BrowseFolder, "");
  start();
  EXPECT_EQ(state.ExportFolder, home());
  EXPECT_EQ(state.ThemesFolder, home());
  EXPECT_EQ(state.BrowseFolder, home()) << "follows the themes' folder";
}

TEST_F(Start, TakesTheSwitchesAndFilesFromTheSettings) {
  write("shipped/Vistrel Config/3G/own.lng", "[Notes]\nNote=Mine\n");
  for (const Setting& off :
       {setting::IncludeIndexFile, setting::CompressXMLCode, setting::SmartLAImage,
        setting::ActiveSignal, setting::ActiveDesktop, setting::ActiveBattery})
    settings.write(off, "0");
  settings.write(setting::DisableETT, "-1");
  settings.write(setting::UserPalette, "my.pal");
  settings.write(setting::LanguageFile2, "two.lng");
  settings.write(setting::LanguageFile3G, "own.lng");
  settings.write(setting::TimeFormat, "hh");
  settings.write(setting::GPRSRange, "0");
  start();
  EXPECT_FALSE(state.IncludeIndexFile || state.CompressXMLCode || state.SmartLAImage);
  EXPECT_FALSE(state.ActiveSignal || state.ActiveDesktop || state.ActiveBattery);
  EXPECT_TRUE(state.DisableETT && state.IViewPresent);
  EXPECT_EQ(state.UserPalette, "my.pal");
  EXPECT_EQ(state.LanguageFile2, "two.lng");
  for (const auto* engine : {state.PreviewEngine3G.get(), state.EditorEngine3G.get()}) {
    EXPECT_EQ(engine->NotesText, "Mine") << "a shipped file is there before it is read";
    EXPECT_EQ(engine->TimeFormat, "hh");
    EXPECT_TRUE(engine->DrawImages);
  }
  for (const auto* engine : {state.PreviewEngine2.get(), state.EditorEngine2.get()}) {
    EXPECT_EQ(engine->GPRSRange, 0);
    EXPECT_EQ(engine->OperatorName, "World");
  }
}

TEST_F(Start, ShowsTheInfraredIconOfGeneration2WithASender) {
  start();
  EXPECT_FALSE(state.PreviewEngine2->ShowIRIcon);
  const QString sender = write("system/bluetooth-sendto", "#!/bin/sh\n");
  QFile::setPermissions(sender, QFile::permissions(sender) | QFile::ExeUser);
  start();
  EXPECT_TRUE(state.PreviewEngine2->ShowIRIcon && state.EditorEngine2->ShowIRIcon);
  settings.write(setting::ShowIRIcon, "0");
  start();
  EXPECT_FALSE(state.PreviewEngine2->ShowIRIcon);
}

TEST_F(Start, SaysWhichFolderCannotBeMade) {
  write("home", "a file in the way");
  EXPECT_EQ(faultNumberOf([this] { start(); }), static_cast<int>(FaultNumber::NoPermission));
}

}  // namespace

}  // namespace quillane

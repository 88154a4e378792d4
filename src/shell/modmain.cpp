// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/modmain.h"

#include "shell/converter.h"
#include "shell/files.h"
#include "shell/language.h"
#include "shell/places.h"
#include "shell/seed.h"
#include "shell/settings.h"
#include "shell/state.h"

#include <QDir>
#include <QFile>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

bool isTooSmall(QSize screen) {
  return screen.height() < 600 && screen.width() < 800;
}

void prepareWorkFolder(PublicState& state, const QString& programFolder) {
  state.AppTempFolder = programFolder + "temp/"_L1;
  if (!QDir().mkpath(state.AppTempFolder))
    throw Fault(
        FaultNumber::NoPermission,
        u"The folder \"%1\" cannot be made. Themes cannot be shown without it; "
        "allow writing to \"%2\" and start again."_s.arg(state.AppTempFolder, programFolder));
  DeleteFiles(state.AppTempFolder + "*.*"_L1);
  const QString left = state.AppTempFolder + "new"_L1;
  // A link must not lead the emptying into somebody else's folder.
  if (QFile::remove(left) || !FolderExists(left)) return;
  DeleteFiles(left + "/*.*"_L1);
  QDir().rmdir(left);
}

/// A folder setting, the variable it fills, and the folder it defaults to.
struct FolderSetting {
  const Setting& setting;
  QString PublicState::*variable;
  enum class Default { MyThemes, ThemesFolder, ProgramFolder } standard;
};

using Default = FolderSetting::Default;
constexpr FolderSetting kFolders[] = {
    {setting::ThemesFolder, &PublicState::ThemesFolder, Default::MyThemes},
    {setting::CopyMoveFolder, &PublicState::CopyMoveFolder, Default::ThemesFolder},
    {setting::BrowseFolder, &PublicState::BrowseFolder, Default::ThemesFolder},
    {setting::ImageFolder, &PublicState::ImageFolder, Default::ProgramFolder},
    {setting::CaptureFolder, &PublicState::CaptureFolder, Default::ProgramFolder},
    {setting::ExtractFolder, &PublicState::ExtractFolder, Default::ProgramFolder},
    {setting::ExportFolder, &PublicState::ExportFolder, Default::ProgramFolder},
    {setting::ImportFolder, &PublicState::ImportFolder, Default::ProgramFolder},
    {setting::TARWizFilesFolder, &PublicState::TARWizFilesFolder, Default::ProgramFolder},
    {setting::ImageWizOpenFolder, &PublicState::ImageWizOpenFolder, Default::ProgramFolder},
    {setting::ImageWizSaveFolder, &PublicState::ImageWizSaveFolder, Default::ProgramFolder},
};

QString standardFolder(Default standard, const PublicState& state, const QString& programFolder) {
  switch (standard) {
    case Default::MyThemes:
      return state.MyThemesFolder;
    case Default::ThemesFolder:
      return state.ThemesFolder;
    case Default::ProgramFolder:
      break;
  }
  return programFolder;
}

void readFolders(PublicState& state, const SettingsStore& settings, const QString& programFolder) {
  state.MyThemesFolder = programFolder + "My Themes/"_L1;
  for (const FolderSetting& row : kFolders) {
    QString folder = settings.read(row.setting);
    if (folder.isEmpty()) folder = standardFolder(row.standard, state, programFolder);
    state.*row.variable = FolderExists(folder) ? withSeparator(folder) : programFolder;
  }
}

void readSwitches(PublicState& state, const SettingsStore& settings, const FaultReporter& report) {
  state.UserPalette = settings.read(setting::UserPalette);
  state.DisableETT = flagSetting(settings, setting::DisableETT, report);
  state.IncludeIndexFile = flagSetting(settings, setting::IncludeIndexFile, report);
  state.CompressXMLCode = flagSetting(settings, setting::CompressXMLCode, report);
  state.SmartLAImage = flagSetting(settings, setting::SmartLAImage, report);
}

void readActive(PublicState& state, const SettingsStore& settings, const FaultReporter& report) {
  state.ActiveSignal = flagSetting(settings, setting::ActiveSignal, report);
  state.ActiveDesktop = flagSetting(settings, setting::ActiveDesktop, report);
  state.ActiveBattery = flagSetting(settings, setting::ActiveBattery, report);
}

void setLanguageFiles(PublicState& state, const SettingsStore& settings,
                      const QString& programFolder) {
  state.ConfigFolder2 = programFolder + "Vistrel Config/2/"_L1;
  state.LanguageFile2 = settings.read(setting::LanguageFile2);
  state.ConfigFolder3G = programFolder + "Vistrel Config/3G/"_L1;
  state.LanguageFile3G = settings.read(setting::LanguageFile3G);
}

void makeEngines(PublicState& state, const SettingsStore& settings, PreviewWorld& world,
                 const FaultReporter& report) {
  state.PreviewEngine2 = std::make_unique<clsVistrel>(world);
  state.EditorEngine2 = std::make_unique<clsVistrel>(world);
  state.PreviewEngine3G = std::make_unique<clsVistrel3G>(world);
  state.EditorEngine3G = std::make_unique<clsVistrel3G>(world);
  // The second engine of a generation reads the same settings; its faults would say the same again.
  const FaultReporter quiet = [](const Fault&) {};
  InitPreview2(*state.PreviewEngine2, state, settings, report);
  InitPreview2(*state.EditorEngine2, state, settings, quiet);
  InitPreview3G(*state.PreviewEngine3G, state, settings, report);
  InitPreview3G(*state.EditorEngine3G, state, settings, quiet);
}

void showSenderIcon(PublicState& state, const SettingsStore& settings, const QString& systemFolder,
                    const FaultReporter& report) {
  if (findSender(systemFolder).isEmpty()) return;
  if (!flagSetting(settings, setting::ShowIRIcon, report)) return;
  state.PreviewEngine2->ShowIRIcon = true;
  state.EditorEngine2->ShowIRIcon = true;
}

}  // namespace

bool Main(PublicState& state, const SettingsStore& settings, const Places& places,
          PreviewWorld& world, StartScreen& screen, const FaultReporter& report) {
  if (isTooSmall(screen.screenSize())) {
    screen.stop(
        u"Quillane was not designed to run\r\n"
        "on screen resolution lower then 800x600."_s);
    return false;
  }
  screen.showSplash();
  const QString programFolder = withSeparator(places.programFolder);
  prepareWorkFolder(state, programFolder);
  seedProgramFolder(places, report);
  readFolders(state, settings, programFolder);
  readSwitches(state, settings, report);
  state.IViewPresent = canConvert();
  setLanguageFiles(state, settings, programFolder);
  state.PalettesFolder = programFolder + "Palettes/"_L1;
  state.QualitiesFile = programFolder + "add-in/i_view32.ini"_L1;
  state.HelpFolder = withSeparator(places.shippedFolder) + kHelpFolder;
  state.SystemFolder = places.systemFolder;
  screen.setStatus(u"Status: Initializing preview engines..."_s);
  makeEngines(state, settings, world, report);
  showSenderIcon(state, settings, places.systemFolder, report);
  readActive(state, settings, report);
  screen.setStatus(u"Status: Loading browser..."_s);
  screen.loadBrowser();
  screen.unloadSplash();
  return true;
}

}  // namespace quillane

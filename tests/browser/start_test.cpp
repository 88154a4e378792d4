// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browserfixture.h"

#include <QCloseEvent>
#include <QToolButton>

namespace quillane {

namespace {

class BrowserStart : public BrowserTest {};

TEST_F(BrowserStart, SelectsTheThemeOfTheCommandLine) {
  addTheme("a.thm");
  addTheme("Blue Sky.thm");
  state.BrowseFolder = path("home/");
  open(path("themes/Blue Sky.thm"));
  EXPECT_EQ(state.BrowseFolder, path("themes/"));
  EXPECT_EQ(state.ThemeFilePath, path("themes/Blue Sky.thm"));
}

TEST_F(BrowserStart, AQuotedPathWithCapitalsOpensItsFolderOnly) {
  addTheme("Blue.thm");
  addTheme("red.thm");
  state.BrowseFolder = path("home/");
  open('"' + path("themes/Blue.thm") + '"');
  EXPECT_EQ(state.BrowseFolder, path("themes/"));
  EXPECT_TRUE(list().selectedItems().isEmpty());
  open('"' + path("themes/red.thm") + '"');
  EXPECT_EQ(state.ThemeFilePath, path("themes/red.thm"));
}

TEST_F(BrowserStart, SaysThatAThemeIsMissing) {
  const QString missing = path("home/none.thm");
  dialogs.expectMessage("Theme " + missing + " could not been found.");
  open(missing);
  EXPECT_EQ(state.BrowseFolder, path("home/"));
}

TEST_F(BrowserStart, StaysWhereItWasForAMissingFolder) {
  dialogs.expectMessage("Theme *");
  open(path("nowhere/none.thm"));
  EXPECT_EQ(state.BrowseFolder, path("themes/"));
}

TEST_F(BrowserStart, EndsWithAnEmptyWorkFolderAndKeptFolders) {
  addTheme("a.thm");
  const std::pair<const Setting&, QString PublicState::*> kept[] = {
      {setting::CaptureFolder, &PublicState::CaptureFolder},
      {setting::ExtractFolder, &PublicState::ExtractFolder},
      {setting::ExportFolder, &PublicState::ExportFolder},
      {setting::ImageFolder, &PublicState::ImageFolder},
      {setting::TARWizFilesFolder, &PublicState::TARWizFilesFolder},
      {setting::ImageWizOpenFolder, &PublicState::ImageWizOpenFolder},
      {setting::ImageWizSaveFolder, &PublicState::ImageWizSaveFolder}};
  for (const auto& [setting, folder] : kept)
    state.*folder = path(setting.key);
  open();
  list().setSelected(0, true);
  ASSERT_FALSE(listOf("temp").isEmpty());
  browser->close();
  EXPECT_TRUE(listOf("temp").isEmpty());
  EXPECT_EQ(settings.read(setting::BrowseFolder), path("themes/"));
  for (const auto& [setting, folder] : kept)
    EXPECT_EQ(settings.read(setting), path(setting.key));
  for (const Setting& unkept :
       {setting::ThemesFolder, setting::CopyMoveFolder, setting::ImportFolder})
    EXPECT_EQ(settings.read(unkept), "") << unkept.key;
  EXPECT_FALSE(state.PreviewEngine2);
}

TEST_F(BrowserStart, LaysTheWindowOutAsDesigned) {
  open();
  struct Place {
    const char* control;
    QRect place;
  };
  const Place places[] = {
      {"btnBrowse", {10, 3, 27, 26}},         {"btnDropDown", {37, 3, 10, 26}},
      {"btnIRSend", {418, 3, 27, 26}},        {"filFiles", {10, 42, 160, 405}},
      {"picPreview_1", {180, 42, 491, 409}},  {"picMenu_3", {125, 314, 115, 95}},
      {"picWapbrowser", {375, 257, 115, 95}}, {"picNotes2", {326, 195, 142, 175}},
      {"txtXML", {180, 42, 491, 409}},        {"lblSize", {430, 464, 222, 13}},
      {"picToolTip", {660, 463, 16, 16}},
  };
  for (const Place& row : places)
    EXPECT_EQ(control<QWidget>(row.control).geometry(), row.place) << row.control;
  for (const QToolButton* button : browser->findChildren<QToolButton*>()) {
    if (!button->objectName().startsWith("btn")) continue;
    EXPECT_FALSE(button->icon().isNull()) << button->objectName().toStdString();
    EXPECT_FALSE(button->accessibleName().isEmpty()) << button->objectName().toStdString();
  }
}

}  // namespace

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/themefiles.h"

#include "shell/files.h"
#include "shell/state.h"

namespace quillane {

namespace {

using Names = ThemeFileNames;

constexpr ImageRow kRows2[] = {
    {"Background", 1, gen2::BackgroundImage, &Names::BackgroundName},
    {"Desktop", 2, gen2::DesktopBackgroundImage, &Names::DesktopName},
    {"Title small", 2, gen2::TitleImageSmall, &Names::TitleSmallName},
    {"Title medium", 1, gen2::TitleImageMedium, &Names::TitleMediumName},
    {"Title large", 2, gen2::TitleImageLarge, &Names::TitleLargeName},
    {"Title asian", 1, gen2::TitleImageAsian, &Names::TitleAsianName},
};

constexpr ImageRow kRows3G[] = {
    {"Statusbar", 2, gen3g::StatusbarBackgroundImage, &Names::StatusbarName},
    {"Wallpaper", 1, gen3g::WallpaperImage, &Names::WallpaperName},
    {"Softkeys", 2, gen3g::SoftkeysBackgroundImage, &Names::SoftkeysName},
    {"Desktop", 2, gen3g::DesktopBackgroundImage, &Names::DesktopName},
    {"Title", 2, gen3g::TitleImage, &Names::TitleName},
    {"Highlight", 2, gen3g::HighlightImage, &Names::HighlightName},
    {"Menu", 2, gen3g::GeneralBackgroundImage, &Names::BackgroundName},
    {"Popup title", 1, gen3g::MoreListPopupTitleImage, &Names::PopupTitleName},
    {"Popup highlight", 1, gen3g::MoreListPopupHighlightImage, &Names::PopupHighlightName},
};

/// What a file is called that serves as `name`, and where it serves as `twin` as well.
struct RoleRow {
  ThemeFileName name;
  FilePreview preview;
  const char* description;
  ThemeFileName twin = nullptr;
  const char* twinDescription = "";
};

constexpr RoleRow kRoles[] = {
    {&Names::XmlName, FilePreview::Text, "Source XML Code"},
    {&Names::BackgroundName, FilePreview::Picture, "Background image", &Names::DesktopName,
     "Background/desktop image"},
    {&Names::DesktopName, FilePreview::Picture, "Desktop image", &Names::BackgroundName,
     "Desktop/background image"},
    {&Names::TitleSmallName, FilePreview::Picture, "Title small image"},
    {&Names::TitleMediumName, FilePreview::Picture, "Title medium image"},
    {&Names::TitleLargeName, FilePreview::Picture, "Title large image", &Names::TitleAsianName,
     "Title large/asian image"},
    {&Names::TitleAsianName, FilePreview::Picture, "Title asian image", &Names::TitleLargeName,
     "Title asian/large image"},
    {&Names::StatusbarName, FilePreview::Picture, "Statusbar image"},
    {&Names::WallpaperName, FilePreview::Picture, "Wallpaper image"},
    {&Names::SoftkeysName, FilePreview::Picture, "Softkeys image"},
    {&Names::TitleName, FilePreview::Picture, "Title image"},
    {&Names::HighlightName, FilePreview::Picture, "Highlight image"},
    {&Names::PopupTitleName, FilePreview::Picture, "Popup title image"},
    {&Names::PopupHighlightName, FilePreview::Picture, "Popup highlight image"},
    {&Names::indexName, FilePreview::Text, "Theme index file"},
};

bool isSameFile(const QString& left, const QString& right) {
  return left.compare(right, Qt::CaseInsensitive) == 0;
}

const PreviewEngine& engineOnShow(const PublicState& state) {
  if (state.ThemeGeneration == Generation::ThreeG) return *state.PreviewEngine3G;
  return *state.PreviewEngine2;
}

}  // namespace

std::span<const ImageRow> imageRows(Generation generation) {
  if (generation == Generation::ThreeG) return kRows3G;
  return kRows2;
}

SlotState imageStateOf(const ImageRow& row, const PublicState& state) {
  const ImageElement& element =
      schemaOf(state.ThemeGeneration).images[static_cast<std::size_t>(row.image)];
  return state.ImageState.at(static_cast<std::size_t>(element.state));
}

ThemeFileNames namesOf(const PublicState& state) {
  ThemeFileNames names;
  names.XmlName = SplitPath(state.ThemeXmlPath, PathPart::Name);
  for (const ImageRow& row : imageRows(state.ThemeGeneration))
    if (imageStateOf(row, state) == SlotState::Found)
      names.*row.name = SplitPath(engineOnShow(state).image(row.image), PathPart::Name);
  return names;
}

std::optional<FileRole> roleOf(const QString& file, const ThemeFileNames& names) {
  for (const RoleRow& row : kRoles) {
    if (!isSameFile(file, names.*row.name)) continue;
    const bool isShared = row.twin && isSameFile(file, names.*row.twin);
    return FileRole{QLatin1String(isShared ? row.twinDescription : row.description), row.preview};
  }
  return {};
}

}  // namespace quillane

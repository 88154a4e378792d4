// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/panemenus.h"

#include <algorithm>

namespace quillane {

namespace {

constexpr PaneMenu2 kPanes2[] = {
    {"picStandby", gen2::BackgroundImage, "E&xtract Background Image..."},
    {"picDesktop", gen2::DesktopBackgroundImage, "E&xtract Desktop Image..."},
    {"picMenu_0", gen2::TitleImageSmall, "E&xtract Title Small Image..."},
    {"picMenu_1", gen2::TitleImageMedium, "E&xtract Title Medium Image..."},
    {"picMenu_2", gen2::TitleImageLarge, "E&xtract Title Large Image..."},
    {"picMenu_3", {}, ""},
    {"picPopupMenu_0", {}, ""},
    {"picPopupMenu_1", {}, ""},
    {"picPopupMenu_2", {}, ""},
    {"picPopupMenu_3", {}, ""},
    {"picNotes", gen2::BackgroundImage, "E&xtract Background Image..."},
    {"picCalendar", {}, ""},
    {"picWapbrowser", {}, ""},
};

constexpr ExtractItem3G kItems3G[] = {
    {"Extract Statusbar Image...", gen3g::StatusbarBackgroundImage},
    {"Extract Wallpaper Image...", gen3g::WallpaperImage},
    {"Extract Desktop Image...", gen3g::DesktopBackgroundImage},
    {"Extract Title Image...", gen3g::TitleImage},
    {"Extract Highlight Image...", gen3g::HighlightImage},
    {"Extract General Background Image...", gen3g::GeneralBackgroundImage},
    {"Extract Popup Title Image...", gen3g::MoreListPopupTitleImage},
    {"Extract Popup Highlight Image...", gen3g::MoreListPopupHighlightImage},
    {"Extract Softkeys Image...", gen3g::SoftkeysBackgroundImage},
};

constexpr gen3g::Image kBars[] = {gen3g::StatusbarBackgroundImage, gen3g::SoftkeysBackgroundImage};
constexpr gen3g::Image kWallpaper[] = {gen3g::WallpaperImage};
constexpr gen3g::Image kDesktop[] = {gen3g::DesktopBackgroundImage};
constexpr gen3g::Image kList[] = {gen3g::TitleImage, gen3g::GeneralBackgroundImage};
constexpr gen3g::Image kMoreList[] = {gen3g::TitleImage, gen3g::GeneralBackgroundImage,
                                      gen3g::MoreListPopupTitleImage,
                                      gen3g::MoreListPopupHighlightImage};

constexpr PaneMenu3G kPanes3G[] = {
    {"picStandby2", {}, kWallpaper},
    {"picDesktop2", {}, kDesktop},
    {"picMenu2", gen3g::HighlightImage, kList},
    {"picPopupMenu2", {}, kMoreList},
    {"picCalendar2", {}, kList},
    {"picNotes2", {}, kWallpaper},
};

bool holds(std::span<const gen3g::Image> images, gen3g::Image image) {
  return std::find(images.begin(), images.end(), image) != images.end();
}

}  // namespace

std::span<const PaneMenu2> paneMenus2() {
  return kPanes2;
}

std::span<const ExtractItem3G> extractItems3G() {
  return kItems3G;
}

std::span<const PaneMenu3G> paneMenus3G() {
  return kPanes3G;
}

bool offersImage(const PaneMenu3G& menu, gen3g::Image image, bool isSet) {
  return holds(menu.always, image) || (isSet && (holds(kBars, image) || menu.whenSet == image));
}

}  // namespace quillane

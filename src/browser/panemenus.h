// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "theme/elements.h"

#include <optional>
#include <span>

namespace quillane {

/// A drawing box of generation 2 and the image that its context menu extracts, if any. Its place in
/// the table, from 1, is its `CapturePane`.
struct PaneMenu2 {
  const char* pane;
  std::optional<gen2::Image> image;
  const char* caption;
};

/// An extracting item of the context menu of the 3G boxes: `mnuPopup3Item` 2 and on.
struct ExtractItem3G {
  const char* caption;
  gen3g::Image image;
};

/// A drawing box of 3G and the images that its context menu offers beside those of the two bars,
/// which are offered everywhere when the theme has them. Its place, from 1, is its `CapturePane`.
struct PaneMenu3G {
  const char* pane;
  /// Offered when the theme has it.
  std::optional<gen3g::Image> whenSet;
  /// Offered whatever the theme has.
  std::span<const gen3g::Image> always;
};

std::span<const PaneMenu2> paneMenus2();
std::span<const ExtractItem3G> extractItems3G();
std::span<const PaneMenu3G> paneMenus3G();

/// Whether the menu of a 3G box offers an image, given whether the theme has it.
bool offersImage(const PaneMenu3G& menu, gen3g::Image image, bool isSet);

}  // namespace quillane

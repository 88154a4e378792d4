// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "theme/elements.h"

#include <QString>

#include <array>
#include <vector>

namespace quillane {

/// State of an image slot after a load, as kept in `ImageState`.
enum class SlotState : std::uint8_t { None = 0, Found = 1, Missing = 2 };

/// The 13 slot states of both generations; `ImageElement::state` is the index.
using ImageStates = std::array<SlotState, 13>;

/// What a theme sets: a text for each colour, a path for each image slot of one generation.
///
/// Colours are RRGGBB texts kept as they came. Images are full paths, empty for none.
class ThemeValues {
 public:
  /// Values of a new theme: the default colours and no images.
  explicit ThemeValues(Generation generation);

  const ThemeSchema& schema() const { return *schema_; }

  const QString& color(int index) const { return colors_.at(static_cast<std::size_t>(index)); }
  /// Stores a colour; an empty one becomes its default where the generation says so.
  void setColor(int index, const QString& rgb);

  const QString& image(int index) const { return images_.at(static_cast<std::size_t>(index)); }
  void setImage(int index, const QString& path) {
    images_.at(static_cast<std::size_t>(index)) = path;
  }

  /// Sets every colour to its default and empties every image slot.
  void reset();

 private:
  const ThemeSchema* schema_;
  std::vector<QString> colors_;
  std::vector<QString> images_;
};

}  // namespace quillane

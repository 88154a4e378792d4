// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "theme/values.h"

namespace quillane {

ThemeValues::ThemeValues(Generation generation) : schema_(&schemaOf(generation)) {
  reset();
}

void ThemeValues::setColor(int index, const QString& rgb) {
  const auto at = static_cast<std::size_t>(index);
  colors_.at(at) = rgb.isEmpty() && schema_->emptyColorTakesDefault
                       ? QString(schema_->colors[at].standard)
                       : rgb;
}

void ThemeValues::reset() {
  colors_.clear();
  for (const ColorElement& color : schema_->colors)
    colors_.emplace_back(color.standard);
  images_.assign(schema_->images.size(), QString());
}

}  // namespace quillane

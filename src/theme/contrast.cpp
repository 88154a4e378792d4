// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "theme/contrast.h"

#include "theme/color.h"
#include "theme/fault.h"

#include <algorithm>
#include <cstdlib>
#include <optional>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

/// When the colours of a group are marked.
enum class Marks {
  All,   ///< The base is close to every other: all of them.
  Each,  ///< The base is close to another: the two.
};

/// A ground or text and the colours that are seen beside it, as engine properties without "Color".
struct Group {
  Marks marks;
  QLatin1String base;
  QLatin1String others[2];
};

/// In 3G the popups' colours are those of the more-list.
constexpr Group kGroups[] = {
    {Marks::All, "StandbyOperatorName"_L1, {"StandbyOperatorNameOutline"_L1}},
    {Marks::All, "DesktopTitle"_L1, {"DesktopTitleOutline"_L1, "DesktopBackground"_L1}},
    {Marks::All, "Title"_L1, {"TitleText"_L1, "TitleTextShadow"_L1}},
    {Marks::Each, "Background"_L1, {"Text"_L1, "Prompt"_L1}},
    {Marks::All, "Highlight"_L1, {"HighlightText"_L1}},
    {Marks::All, "PopupTitle"_L1, {"PopupTitleText"_L1, "PopupTitleTextShadow"_L1}},
    {Marks::Each, "PopupBackground"_L1, {"PopupText"_L1, "PopupPrompt"_L1}},
};

int limitOf(Generation generation) {
  return generation == Generation::Two ? 32 : 20;
}

int colorIndex(const ThemeSchema& schema, QLatin1String stem) {
  QString property = stem + "Color"_L1;
  if (schema.generation == Generation::ThreeG && property.startsWith("Popup"_L1))
    property.replace(0, 5, u"MoreList"_s);
  const auto row =
      std::find_if(schema.colors.begin(), schema.colors.end(),
                   [&](const ColorElement& color) { return color.property == property; });
  return static_cast<int>(row - schema.colors.begin());
}

/// Sum of a colour's parts; nothing for a text that is no colour.
std::optional<int> brightness(const QString& rgb) {
  std::optional<int> sum;
  skipOnFault([&] {
    const ColorValue value = colorValueOf(rgb);
    sum = RedOf(value) + GreenOf(value) + BlueOf(value);
  });
  return sum;
}

bool areClose(const ThemeValues& values, int left, int right) {
  const std::optional<int> one = brightness(values.color(left));
  const std::optional<int> other = brightness(values.color(right));
  return one && other && std::abs(*one - *other) < limitOf(values.schema().generation);
}

QList<int> marked(const ThemeValues& values, const Group& group) {
  const int base = colorIndex(values.schema(), group.base);
  QList<int> marks{base};
  qsizetype all = 1;
  for (const QLatin1String stem : group.others) {
    if (stem.isEmpty()) continue;
    ++all;
    const int other = colorIndex(values.schema(), stem);
    if (areClose(values, base, other)) marks += other;
  }
  const qsizetype least = group.marks == Marks::All ? all : 2;
  return marks.size() >= least ? marks : QList<int>();
}

}  // namespace

QList<int> closeColors(const ThemeValues& values) {
  QList<int> marks;
  for (const Group& group : kGroups)
    marks += marked(values, group);
  return marks;
}

}  // namespace quillane

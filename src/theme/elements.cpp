// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "theme/elements.h"

namespace quillane {

namespace {

constexpr ColorElement kColors2[] = {
#define QUILLANE_COLOR(property, element, standard) \
  {QLatin1String(element), QLatin1String(#property), QLatin1String(standard)},
#define QUILLANE_IMAGE(...)
#include "theme/generation2.def"
};

constexpr ImageElement kImages2[] = {
#define QUILLANE_COLOR(...)
#define QUILLANE_IMAGE(property, element, state, loadRank, readAfter, words, width, height, rule, \
                       word)                                                                      \
  {QLatin1String(element),                                                                        \
   QLatin1String(#property),                                                                      \
   state,                                                                                         \
   loadRank,                                                                                      \
   gen2::readAfter,                                                                               \
   SizeRule::rule,                                                                                \
   QLatin1String(words),                                                                          \
   QSize(width, height),                                                                          \
   QLatin1String(word)},
#include "theme/generation2.def"
};

constexpr ColorElement kColors3G[] = {
#define QUILLANE_COLOR(property, element, standard) \
  {QLatin1String(element), QLatin1String(#property), QLatin1String(standard)},
#define QUILLANE_IMAGE(...)
#include "theme/generation3g.def"
};

constexpr ImageElement kImages3G[] = {
#define QUILLANE_COLOR(...)
#define QUILLANE_IMAGE(property, element, state, loadRank, readAfter, words, width, height, rule, \
                       word)                                                                      \
  {QLatin1String(element),                                                                        \
   QLatin1String(#property),                                                                      \
   state,                                                                                         \
   loadRank,                                                                                      \
   gen3g::readAfter,                                                                              \
   SizeRule::rule,                                                                                \
   QLatin1String(words),                                                                          \
   QSize(width, height),                                                                          \
   QLatin1String(word)},
#include "theme/generation3g.def"
};

constexpr ThemeSchema kSchema2{
    Generation::Two, QLatin1String("Ericsson_theme"), kColors2, kImages2, true, false};
constexpr ThemeSchema kSchema3G{
    Generation::ThreeG, QLatin1String("Sony_Ericsson_theme"), kColors3G, kImages3G, false, true};

}  // namespace

const ThemeSchema& schemaOf(Generation generation) {
  return generation == Generation::ThreeG ? kSchema3G : kSchema2;
}

Generation generationOf(QStringView themeXml) {
  return themeXml.contains(kSchema3G.root) ? Generation::ThreeG : Generation::Two;
}

}  // namespace quillane

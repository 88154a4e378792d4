// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "theme/contrast.h"

#include "support/text.h"

namespace quillane {

namespace {

/// The marked colours of a theme with colours like "Title=FF0000", else its defaults. Colours are
/// named after their properties, those of the more-list as the popups' of generation 2.
QString closeWith(Generation generation, const QString& words) {
  ThemeValues values(generation);
  QStringList names;
  for (const ColorElement& color : values.schema().colors)
    names += QString(color.property).replace("MoreList", "Popup").chopped(5);
  for (const QString& word : words.split(' ', Qt::SkipEmptyParts))
    values.setColor(static_cast<int>(names.indexOf(word.section('=', 0, 0))), word.section('=', 1));
  QStringList marked;
  for (const int index : closeColors(values))
    marked += names[index];
  return marked.join(' ');
}

TEST(CloseColors, MarkTheirGroups) {
  const std::tuple<const char*, const char*, const char*> rows[] = {
      {"operator", "StandbyOperatorName=FF0000 StandbyOperatorNameOutline=0000FF",
       "StandbyOperatorName StandbyOperatorNameOutline"},
      {"operator apart", "StandbyOperatorName=FFFFFF StandbyOperatorNameOutline=000000", ""},
      {"desktop title close to one", "DesktopTitle=101010 DesktopTitleOutline=101010", ""},
      {"desktop title close to both",
       "DesktopTitle=101010 DesktopTitleOutline=101010 DesktopBackground=0F0F0F",
       "DesktopTitle DesktopTitleOutline DesktopBackground"},
      {"others close to each other alone", "Title=000000 TitleText=FFFFFF TitleTextShadow=FFFFFF",
       ""},
      {"title", "Title=000000 TitleText=000001 TitleTextShadow=010000",
       "Title TitleText TitleTextShadow"},
      {"list, text", "Background=FFFFFF Text=FFFFFF Prompt=000000", "Background Text"},
      {"list, prompt", "Background=FFFFFF Text=000000 Prompt=FFFFFF", "Background Prompt"},
      {"list, both", "Background=FFFFFF Text=FFFFFF Prompt=FFFFFF", "Background Text Prompt"},
      {"list, text and prompt alone", "Background=FFFFFF Text=000000 Prompt=000000", ""},
      {"highlight", "Highlight=808080 HighlightText=7F8081", "Highlight HighlightText"},
      {"popup title", "PopupTitle=0 PopupTitleText=0 PopupTitleTextShadow=0",
       "PopupTitle PopupTitleText PopupTitleTextShadow"},
      {"popup", "PopupBackground=FF PopupText=00FF PopupPrompt=FFFFFF",
       "PopupBackground PopupText"},
      {"no group", "PopupHighlight=FF PopupHighlightText=FF NotesText=34D2CC", ""},
      {"two groups", "Title=0 TitleText=0 TitleTextShadow=0 Highlight=FF HighlightText=FF",
       "Title TitleText TitleTextShadow Highlight HighlightText"},
      {"no colours", "Highlight=red HighlightText=red", ""},
      {"defaults", "", ""}};
  for (const auto& [what, words, marked] : rows)
    for (const Generation generation : {Generation::Two, Generation::ThreeG})
      EXPECT_EQ(closeWith(generation, words), marked) << what;
}

TEST(CloseColors, AreCloseBelowTheLimit) {
  const std::tuple<const char*, bool, bool> rows[] = {
      {"Highlight=000000 HighlightText=000013", true, true},
      {"Highlight=000014 HighlightText=000000", true, false},
      {"Highlight=00000F HighlightText=101010", false, false},
      {"Highlight=000000 HighlightText=0A0B0A", true, false},
      {"Highlight=000000 HighlightText=0A0B0B", false, false},
      {"Highlight= HighlightText=000001", true, true}};
  for (const auto& [words, two, threeG] : rows) {
    EXPECT_EQ(!closeWith(Generation::Two, words).isEmpty(), two) << words;
    EXPECT_EQ(!closeWith(Generation::ThreeG, words).isEmpty(), threeG) << words;
  }
}

}  // namespace

}  // namespace quillane

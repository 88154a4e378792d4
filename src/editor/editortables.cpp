// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/editortables.h"

#include <algorithm>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

constexpr int kNone = -1;

/// A colour slot of either generation; the group belongs to its tab.
struct SlotRow {
  const char* tab;
  const char* group;
  const char* caption;
  const char* stem;
  int color2;
  int color3G;
};

constexpr SlotRow kSlots[] = {
    {"Standby", "Operator colors", "Name:", "OperatorName", gen2::StandbyOperatorNameColor,
     gen3g::StandbyOperatorNameColor},
    {"Standby", "Operator colors", "Outline:", "OperatorNameOut",
     gen2::StandbyOperatorNameOutlineColor, gen3g::StandbyOperatorNameOutlineColor},
    {"Standby", "Time colors", "Time:", "Time", gen2::StandbyTimeColor, gen3g::StandbyTimeColor},
    {"Standby", "Time colors", "Outline:", "TimeOut", gen2::StandbyTimeOutlineColor,
     gen3g::StandbyTimeOutlineColor},
    {"Desktop", "Background color", "Background:", "DesktopBack", gen2::DesktopBackgroundColor,
     gen3g::DesktopBackgroundColor},
    {"Desktop", "Title colors", "Text:", "DesktopTitle", gen2::DesktopTitleColor,
     gen3g::DesktopTitleColor},
    {"Desktop", "Title colors", "Outline:", "DesktopTitleOut", gen2::DesktopTitleOutlineColor,
     gen3g::DesktopTitleOutlineColor},
    {"Menus", "Title colors", "Background:", "Title", gen2::TitleColor, gen3g::TitleColor},
    {"Menus", "Title colors", "Text:", "TitleText", gen2::TitleTextColor, gen3g::TitleTextColor},
    {"Menus", "Title colors", "Shadow:", "TitleTextShadow", gen2::TitleTextShadowColor,
     gen3g::TitleTextShadowColor},
    {"Menus", "Miscellaneous colors", "Background:", "Background", gen2::BackgroundColor,
     gen3g::BackgroundColor},
    {"Menus", "Miscellaneous colors", "Text:", "Text", gen2::TextColor, gen3g::TextColor},
    {"Menus", "Miscellaneous colors", "Disabled text:", "DisabledText", gen2::DisabledTextColor,
     gen3g::DisabledTextColor},
    {"Menus", "Miscellaneous colors", "Prompt:", "Prompt", gen2::PromptColor, gen3g::PromptColor},
    {"Menus", "Miscellaneous colors", "Cursor:", "Cursor", gen2::CursorColor, gen3g::CursorColor},
    {"Menus", "Highlight colors", "Highlight:", "Highlight", gen2::HighlightColor,
     gen3g::HighlightColor},
    {"Menus", "Highlight colors", "Text:", "HighlightText", gen2::HighlightTextColor,
     gen3g::HighlightTextColor},
    {"Menus", "Highlight colors", "Disabled text:", "HighlightDisabledText",
     gen2::HighlightDisabledTextColor, gen3g::HighlightDisabledTextColor},
    {"Menus", "Scrollbar colors", "Scrollbar:", "Scrollbar", kNone, gen3g::ScrollbarColor},
    {"Menus", "Scrollbar colors", "Frame:", "ScrollbarFrame", kNone, gen3g::ScrollbarFrameColor},
    {"Popups", "Title colors", "Background:", "PopupTitle", gen2::PopupTitleColor,
     gen3g::MoreListTitleColor},
    {"Popups", "Title colors", "Text:", "PopupTitleText", gen2::PopupTitleTextColor,
     gen3g::MoreListTitleTextColor},
    {"Popups", "Title colors", "Shadow:", "PopupTitleTextShadow", gen2::PopupTitleTextShadowColor,
     gen3g::MoreListTitleTextShadowColor},
    {"Popups", "Miscellaneous colors", "Background:", "PopupBackground", gen2::PopupBackgroundColor,
     gen3g::MoreListBackgroundColor},
    {"Popups", "Miscellaneous colors", "Text:", "PopupText", gen2::PopupTextColor,
     gen3g::MoreListTextColor},
    {"Popups", "Miscellaneous colors", "Text shadow:", "PopupTextShadow", kNone,
     gen3g::MoreListTextShadowColor},
    {"Popups", "Miscellaneous colors", "Disabled text:", "PopupDisabledText",
     gen2::PopupDisabledTextColor, gen3g::MoreListDisabledTextColor},
    {"Popups", "Miscellaneous colors", "Prompt:", "PopupPrompt", gen2::PopupPromptColor,
     gen3g::MoreListPromptColor},
    {"Popups", "Miscellaneous colors", "Cursor:", "PopupCursor", gen2::PopupCursorColor,
     gen3g::MoreListCursorColor},
    {"Popups", "Highlight colors", "Highlight:", "PopupHighlight", gen2::PopupHighlightColor,
     gen3g::MoreListHighlightColor},
    {"Popups", "Highlight colors", "Text:", "PopupHighlightText", gen2::PopupHighlightTextColor,
     gen3g::MoreListHighlightTextColor},
    {"Popups", "Highlight colors", "Disabled text:", "PopupHighlightDisabledText",
     gen2::PopupHighlightDisabledTextColor, gen3g::MoreListHighlightDisabledTextColor},
    {"Popups", "Frame colors", "Frame:", "PopupFrame", gen2::PopupFrameColor,
     gen3g::MoreListPopupFrameColor},
    {"Popups", "Frame colors", "Shadow:", "PopupShadow", gen2::PopupShadowColor,
     gen3g::MoreListPopupShadowColor},
    {"Popups", "Scrollbar colors", "Scrollbar:", "PopupScrollbar", kNone,
     gen3g::MoreListScrollbarColor},
    {"Popups", "Scrollbar colors", "Frame:", "PopupScrollbarFrame", kNone,
     gen3g::MoreListScrollbarFrameColor},
    {"Softkeys", "Softkeys", "Background:", "SoftkeysBackground", kNone,
     gen3g::SoftkeysBackgroundColor},
    {"Softkeys", "Softkeys", "Text:", "SoftkeysText", kNone, gen3g::SoftkeysTextColor},
    {"Softkeys", "Softkeys", "Text shadow:", "SoftkeysTextShadow", kNone,
     gen3g::SoftkeysTextShadowColor},
    {"Softkeys", "Softkeys", "Disabled text:", "SoftkeysDisabledText", kNone,
     gen3g::SoftkeysDisabledTextColor},
    {"Softkeys", "Softkeys", "Disabled text shadow:", "SoftkeysDisabledTextShadow", kNone,
     gen3g::SoftkeysDisabledTextShadowColor},
    {"Softkeys", "Softkeys", "Background activated:", "SoftkeysBackgroundActivated", kNone,
     gen3g::SoftkeysBackgroundActivatedColor},
    {"Notes", "Colors", "Background:", "NotesBackground", gen2::NotesBackgroundColor,
     gen3g::NotesBackgroundColor},
    {"Notes", "Colors", "Text:", "NotesText", gen2::NotesTextColor, gen3g::NotesTextColor},
    {"Calendar", "Weekend colors", "Text:", "CalendarWeekendText", gen2::CalendarWeekendTextColor,
     gen3g::CalendarWeekendTextColor},
    {"Calendar", "Highlight colors", "Highlight:", "CalendarWeekendHighlight",
     gen2::CalendarWeekendHighlightColor, gen3g::CalendarWeekendHighlightColor},
    {"Calendar", "Highlight colors", "Text:", "CalendarWeekendHighlightText",
     gen2::CalendarWeekendHighlightTextColor, gen3g::CalendarWeekendHighlightTextColor},
    {"WAP", "Colors", "Underline:", "WapbrowserUnderline", gen2::WapbrowserUnderlineColor,
     gen3g::WapbrowserUnderlineColor},
    {"WAP", "Colors", "Table border:", "WapbrowserTableborder", gen2::WapbrowserTableborderColor,
     gen3g::WapbrowserTableborderColor},
};

/// The colours that take over a slot's colour, stems with blanks between.
struct FollowerRow {
  const char* stem;
  const char* followers;
  bool in2;
  bool in3G;
};

constexpr FollowerRow kFollowers[] = {
    {"Highlight", "CalendarWeekendHighlight", true, true},
    {"HighlightText", "CalendarWeekendHighlightText", true, true},
    {"OperatorName", "Time", true, true},
    {"OperatorNameOut", "TimeOut", true, true},
    {"PopupBackground", "NotesBackground", true, true},
    {"PopupPrompt", "PopupCursor", true, true},
    {"PopupText", "PopupPrompt PopupCursor NotesText", true, true},
    {"Prompt", "Cursor", true, true},
    {"Text", "Prompt Cursor CalendarWeekendText", true, false},
    {"SoftkeysBackground", "SoftkeysTextShadow SoftkeysDisabledTextShadow", false, true},
    {"SoftkeysTextShadow", "SoftkeysDisabledTextShadow", false, true},
    {"WapbrowserUnderline", "WapbrowserTableborder", false, true},
};

/// A tab, its place in either editor, and its panes, names with blanks between.
struct TabRow {
  const char* caption;
  TabKind kind;
  int place2;
  int place3G;
  const char* panes2;
  const char* panes3G;
};

constexpr TabRow kTabs[] = {
    {"Standby", TabKind::Colors, 0, 0, "picStandby", "picStandby"},
    {"Desktop", TabKind::Colors, 1, 1, "picDesktop", "picDesktop"},
    {"Menus", TabKind::Colors, 2, 2, "picMenu_0 picMenu_1 picMenu_2 picMenu_3",
     "picMenu_0 picMenu_1"},
    {"Popups", TabKind::Colors, 3, 3, "picPopupMenu_0 picPopupMenu_1 picPopupMenu_2 picPopupMenu_3",
     "picPopupMenu_0 picPopupMenu_1"},
    {"Softkeys", TabKind::Colors, kNone, 4, "", "picSoftkeys_0 picSoftkeys_1"},
    {"Notes", TabKind::Colors, 4, 5, "picNotes", "picNotes_0"},
    {"Calendar", TabKind::Colors, 5, 6, "picCalendar", "picCalendar_0 picCalendar_1"},
    {"WAP", TabKind::Colors, 6, 7, "picWapbrowser", "picNotes_1"},
    {"Information", TabKind::Information, 7, 9, "", ""},
    {"Images", TabKind::Images, 8, 8, "picStandby picDesktop picMenu_0 picMenu_1 picMenu_2",
     "picStandby picDesktop picMenu_0 picPopupMenu_0"},
    {"Source XML", TabKind::Source, 9, 10, "", ""},
};

/// A column of the tables above.
template <typename Row>
int columnOf(const Row& row, Generation generation, int Row::*of2, int Row::*of3G) {
  return row.*(generation == Generation::Two ? of2 : of3G);
}

int colorOf(QStringView stem, Generation generation) {
  const auto row = std::find_if(std::begin(kSlots), std::end(kSlots), [stem](const SlotRow& slot) {
    return stem == QLatin1String(slot.stem);
  });
  return columnOf(*row, generation, &SlotRow::color2, &SlotRow::color3G);
}

QList<int> followersOf(QLatin1String stem, Generation generation) {
  QList<int> colors;
  for (const FollowerRow& row : kFollowers)
    if (stem == QLatin1String(row.stem) && (generation == Generation::Two ? row.in2 : row.in3G))
      for (const QString& follower : QString::fromLatin1(row.followers).split(u' '))
        colors << colorOf(follower, generation);
  return colors;
}

QList<ColorSlot> slotsOf(QLatin1String tab, Generation generation) {
  QList<ColorSlot> colorSlots;
  for (const SlotRow& row : kSlots) {
    const int color = columnOf(row, generation, &SlotRow::color2, &SlotRow::color3G);
    if (tab != QLatin1String(row.tab) || color == kNone) continue;
    colorSlots.append({QLatin1String(row.group), QLatin1String(row.caption),
                       QLatin1String(row.stem), color,
                       followersOf(QLatin1String(row.stem), generation)});
  }
  return colorSlots;
}

}  // namespace

QList<EditorTab> editorTabs(Generation generation) {
  QList<std::pair<int, EditorTab>> placed;
  for (const TabRow& row : kTabs) {
    const int place = columnOf(row, generation, &TabRow::place2, &TabRow::place3G);
    if (place == kNone) continue;
    const QString panes =
        QString::fromLatin1(generation == Generation::Two ? row.panes2 : row.panes3G);
    placed.append(
        {place,
         {QLatin1String(row.caption), row.kind, slotsOf(QLatin1String(row.caption), generation),
          panes.split(u' ', Qt::SkipEmptyParts)}});
  }
  std::sort(placed.begin(), placed.end(),
            [](const auto& a, const auto& b) { return a.first < b.first; });
  QList<EditorTab> tabs;
  for (const auto& [place, tab] : placed)
    tabs << tab;
  return tabs;
}

}  // namespace quillane

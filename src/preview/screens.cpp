// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview/screens.h"

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

constexpr Screen<clsVistrel> kGeneration2[] = {
    {"standby"_L1, "Standby"_L1, "picStandby"_L1, [](clsVistrel& e) { e.DrawStandby(); }},
    {"desktop"_L1, "Desktop"_L1, "picDesktop"_L1, [](clsVistrel& e) { e.DrawDesktop(); }},
    {"menu-small"_L1, "Small Menu"_L1, "picMenu_0"_L1, [](clsVistrel& e) { e.DrawMenuSmall(); }},
    {"menu-medium"_L1, "Medium Menu"_L1, "picMenu_1"_L1, [](clsVistrel& e) { e.DrawMenuMedium(); }},
    {"menu-large"_L1, "Large Menu"_L1, "picMenu_2"_L1, [](clsVistrel& e) { e.DrawMenuLarge(); }},
    {"menu-input"_L1, "Input"_L1, "picMenu_3"_L1, [](clsVistrel& e) { e.DrawMenuInput(); }},
    {"popup-menu-1"_L1, "Popup Menu 1"_L1, "picPopupMenu_0"_L1,
     [](clsVistrel& e) {
       e.PopupMenuText = e.PopupMenuList1;
       e.DrawPopupMenu();
     }},
    {"popup-menu-2"_L1, "Popup Menu 2"_L1, "picPopupMenu_1"_L1,
     [](clsVistrel& e) {
       e.PopupMenuText = e.PopupMenuList2;
       e.DrawPopupMenu();
     }},
    {"popup-window"_L1, "Popup Window"_L1, "picPopupMenu_2"_L1,
     [](clsVistrel& e) {
       e.DrawPopupWindow();
       e.DrawCenterText(e.PopupWindowText, 8, true, e.color(gen2::PopupTextColor));
     }},
    {"popup-input"_L1, "Popup Input"_L1, "picPopupMenu_3"_L1,
     [](clsVistrel& e) { e.DrawPopupInput(); }},
    {"notes"_L1, "Notes"_L1, "picNotes"_L1, [](clsVistrel& e) { e.DrawNotesWindow(); }},
    {"calendar"_L1, "Calendar"_L1, "picCalendar"_L1, [](clsVistrel& e) { e.DrawCalendar(); }},
    {"wap-browser"_L1, "WAP Browser"_L1, "picWapbrowser"_L1,
     [](clsVistrel& e) { e.DrawWAPBrowser(); }},
};

constexpr Screen<clsVistrel3G> k3G[] = {
    {"standby"_L1, "Standby"_L1, "picStandby2"_L1, [](clsVistrel3G& e) { e.DrawStandby(); }},
    {"desktop"_L1, "Desktop"_L1, "picDesktop2"_L1, [](clsVistrel3G& e) { e.DrawDesktop(); }},
    {"menu-1"_L1, "Menu 1"_L1, "picMenu2"_L1, [](clsVistrel3G& e) { e.DrawMenu(0); }},
    {"menu-2"_L1, "Menu 2"_L1, ""_L1, [](clsVistrel3G& e) { e.DrawMenu(1); }},
    {"popup-menu-1"_L1, "More List 1"_L1, "picPopupMenu2"_L1,
     [](clsVistrel3G& e) { e.DrawPopupMenu(0); }},
    {"popup-menu-2"_L1, "More List 2"_L1, ""_L1, [](clsVistrel3G& e) { e.DrawPopupMenu(1); }},
    {"progress-window"_L1, "Progress Window"_L1, ""_L1,
     [](clsVistrel3G& e) { e.DrawProgressWindow(); }},
    {"accept-window"_L1, "Accept Window"_L1, ""_L1, [](clsVistrel3G& e) { e.DrawAcceptWindow(); }},
    {"softkeys-1"_L1, "Soft Keys 1"_L1, ""_L1, [](clsVistrel3G& e) { e.DrawSoftkeys(0); }},
    {"softkeys-2"_L1, "Soft Keys 2"_L1, ""_L1, [](clsVistrel3G& e) { e.DrawSoftkeys(1); }},
    {"calendar"_L1, "Calendar"_L1, "picCalendar2"_L1, [](clsVistrel3G& e) { e.DrawCalendar(); }},
    {"week-calendar"_L1, "Week"_L1, ""_L1, [](clsVistrel3G& e) { e.DrawWeekCalendar(); }},
    {"notes"_L1, "Notes"_L1, "picNotes2"_L1, [](clsVistrel3G& e) { e.DrawNotesWindow(); }},
    {"wap-browser"_L1, "WAP Browser"_L1, ""_L1, [](clsVistrel3G& e) { e.DrawWAPBrowser(); }},
};

}  // namespace

std::span<const Screen<clsVistrel>> screensOfGeneration2() {
  return kGeneration2;
}

std::span<const Screen<clsVistrel3G>> screensOf3G() {
  return k3G;
}

}  // namespace quillane

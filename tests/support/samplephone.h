// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preview/clsvistrel.h"
#include "preview/clsvistrel3g.h"

namespace quillane {

/// Gives an engine the English texts and the state of a phone at rest that a new user sees.
inline void fillPhone(clsVistrel& engine) {
  engine.OperatorName = "World";
  engine.TimeFormat = "hh:mm";
  engine.SignalStrength = 5;
  engine.BatteryLevel = 10;
  engine.ShowGPRSIcon = true;
  engine.GPRSRange = 1;
  engine.DesktopIcon = 5;
  engine.CalendarDateFormat = QString();
  engine.DesktopTitle =
      "Phone book|Messages|Calls|Fun && Games|Settings|WAP services|Organizer|Connect|My "
      "shortcuts";
  engine.TitleText = "Messages|SMS|Fun && Games|Write new";
  engine.MenuSmallText =
      "H-1SMS|--2MMS|--3Call voice mail|--4E-mail|--5Chat|--6Area info|--7Options";
  engine.MenuMediumText = "--1Write new|HD2Inbox|-D3Unsent|--4Templates|--5Sent items (2)";
  engine.MenuLargeText = "H-1Themes|--2My pictures|--3Draw picture|--4My sounds";
  engine.PromptText = "Text:";
  engine.PopupTitleText = "Options|Edit word";
  engine.PopupMenuText = "--2Rel. caps lock|H-3Language|-D4Input method|--5Help";
  engine.PopupPromptText = "Cabba";
  engine.PopupWindowText = "Keys locked.|Press C|to unlock.";
  engine.NotesText = "Do not forget|this...";
}

inline void fillPhone(clsVistrel3G& engine) {
  engine.DrawImages = true;
  engine.OperatorName = "World";
  engine.TimeFormat = "hh:mm";
  engine.DateFormat = "dd.mmm.yy";
  engine.SignalStrength = 5;
  engine.BatteryLevel = 10;
  engine.ShowGPRSIcon = true;
  engine.GPRSRange = 1;
  engine.DesktopIcon = 5;
  engine.StandbySoftkeyText = "Calls|More";
  engine.DesktopTitles =
      "Sony Ericsson|Internet services|My shortcuts|Camera|Messaging|Entertainment|Multimedia|"
      "Phonebook|Calls|Connectivity|Organizer|Settings";
  engine.DesktopSoftkeyText = "Select";
  engine.TitleText = "Calls|My shortcuts";
  engine.MenuText1 =
      "-DMissed calls|--Call list|H-Divert calls|--Manage calls|--Time and cost|--Next call";
  engine.MenuText2 =
      "--Select profile|--Select network|--Call list|HDInbox|--Receive item|--Edit shortcuts";
  engine.MenuSoftkeyText = "Select|Select";
  engine.MoreListTitleText = "More|Add";
  engine.MoreListMenuText1 = "-DEdit|--Rotate|H-Delete|--Rename|--Picture info";
  engine.MoreListMenuText2 = "--Picture|--Text|HDSound|--Camera picture|-DRecording";
  engine.MoreListSoftkeyText = "Select|Select";
  engine.SoftkeysMenuTitleText = "Recurrence rule|Contact information";
  engine.SoftkeysMenuText1 = "Monday|Tuesday|Wednesday|Thursday|Friday|Saturday";
  engine.SoftkeysMenuText2 = "Name|Home|Work|Mobile|Fax|Other";
  engine.SoftkeysSoftkeyText = "Uncheck|Ok";
  engine.CalendarDaysOfWeek = "M|T|W|T|F|S|S";
  engine.CalendarSoftkeyText = "Select|More";
  engine.NotesText = "Do not forget this...";
  engine.WapbrowserTitleText = "My WAP Site";
  engine.WapbrowserSoftkeyText = "Select|More";
  engine.ProgressWindowText = "Please wait";
  engine.AcceptWindowText = "Accept?";
  engine.AcceptWindowSoftkeyText = "Yes|No";
}

}  // namespace quillane

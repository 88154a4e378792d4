// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preview/clsvistrel.h"
#include "preview/clsvistrel3g.h"

namespace quillane {

/// Gives an engine the English texts and the state of a phone at rest that a new user sees.
inline void fillPhone(clsVistrel& engine) {
  engine.OperatorName = QStringLiteral("World");
  engine.TimeFormat = QStringLiteral("hh:mm");
  engine.SignalStrength = 5;
  engine.BatteryLevel = 10;
  engine.ShowGPRSIcon = true;
  engine.GPRSRange = 1;
  engine.DesktopIcon = 5;
  engine.CalendarDateFormat = QString();
  engine.DesktopTitle = QStringLiteral(
      "Phone book|Messages|Calls|Fun && Games|Settings|WAP services|Organizer|Connect|My "
      "shortcuts");
  engine.TitleText = QStringLiteral("Messages|SMS|Fun && Games|Write new");
  engine.MenuSmallText =
      QStringLiteral("H-1SMS|--2MMS|--3Call voice mail|--4E-mail|--5Chat|--6Area info|--7Options");
  engine.MenuMediumText =
      QStringLiteral("--1Write new|HD2Inbox|-D3Unsent|--4Templates|--5Sent items (2)");
  engine.MenuLargeText = QStringLiteral("H-1Themes|--2My pictures|--3Draw picture|--4My sounds");
  engine.PromptText = QStringLiteral("Text:");
  engine.PopupTitleText = QStringLiteral("Options|Edit word");
  engine.PopupMenuText = QStringLiteral("--2Rel. caps lock|H-3Language|-D4Input method|--5Help");
  engine.PopupPromptText = QStringLiteral("Cabba");
  engine.PopupWindowText = QStringLiteral("Keys locked.|Press C|to unlock.");
  engine.NotesText = QStringLiteral("Do not forget|this...");
}

inline void fillPhone(clsVistrel3G& engine) {
  engine.DrawImages = true;
  engine.OperatorName = QStringLiteral("World");
  engine.TimeFormat = QStringLiteral("hh:mm");
  engine.DateFormat = QStringLiteral("dd.mmm.yy");
  engine.SignalStrength = 5;
  engine.BatteryLevel = 10;
  engine.ShowGPRSIcon = true;
  engine.GPRSRange = 1;
  engine.DesktopIcon = 5;
  engine.StandbySoftkeyText = QStringLiteral("Calls|More");
  engine.DesktopTitles = QStringLiteral(
      "Sony Ericsson|Internet services|My shortcuts|Camera|Messaging|Entertainment|Multimedia|"
      "Phonebook|Calls|Connectivity|Organizer|Settings");
  engine.DesktopSoftkeyText = QStringLiteral("Select");
  engine.TitleText = QStringLiteral("Calls|My shortcuts");
  engine.MenuText1 = QStringLiteral(
      "-DMissed calls|--Call list|H-Divert calls|--Manage calls|--Time and cost|--Next call");
  engine.MenuText2 = QStringLiteral(
      "--Select profile|--Select network|--Call list|HDInbox|--Receive item|--Edit shortcuts");
  engine.MenuSoftkeyText = QStringLiteral("Select|Select");
  engine.MoreListTitleText = QStringLiteral("More|Add");
  engine.MoreListMenuText1 = QStringLiteral("-DEdit|--Rotate|H-Delete|--Rename|--Picture info");
  engine.MoreListMenuText2 =
      QStringLiteral("--Picture|--Text|HDSound|--Camera picture|-DRecording");
  engine.MoreListSoftkeyText = QStringLiteral("Select|Select");
  engine.SoftkeysMenuTitleText = QStringLiteral("Recurrence rule|Contact information");
  engine.SoftkeysMenuText1 = QStringLiteral("Monday|Tuesday|Wednesday|Thursday|Friday|Saturday");
  engine.SoftkeysMenuText2 = QStringLiteral("Name|Home|Work|Mobile|Fax|Other");
  engine.SoftkeysSoftkeyText = QStringLiteral("Uncheck|Ok");
  engine.CalendarDaysOfWeek = QStringLiteral("M|T|W|T|F|S|S");
  engine.CalendarSoftkeyText = QStringLiteral("Select|More");
  engine.NotesText = QStringLiteral("Do not forget this...");
  engine.WapbrowserTitleText = QStringLiteral("My WAP Site");
  engine.WapbrowserSoftkeyText = QStringLiteral("Select|More");
  engine.ProgressWindowText = QStringLiteral("Please wait");
  engine.AcceptWindowText = QStringLiteral("Accept?");
  engine.AcceptWindowSoftkeyText = QStringLiteral("Yes|No");
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/language.h"

#include "shell/files.h"
#include "shell/ini.h"
#include "shell/settings.h"
#include "shell/state.h"
#include "theme/codepage.h"
#include "theme/files.h"

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kLargestFile = qint64{1024} * 1024;

/// A text of a language file and the engine property that takes it.
template <typename Engine>
struct LanguageText {
  const char* section;
  const char* key;
  QString Engine::*property;
  const char* standard;
};

constexpr LanguageText<clsVistrel> kTexts2[] = {
    {"Desktop", "Titles", &clsVistrel::DesktopTitle,
     "Phone book|Messages|Calls|Fun && Games|Settings|WAP services|Organizer|Connect|My shortcuts"},
    {"Menu", "Titles", &clsVistrel::TitleText, "Messages|SMS|Fun && Games|Write new"},
    {"Menu", "MenuListS", &clsVistrel::MenuSmallText,
     "H-1SMS|--2MMS|--3Call voice mail|--4E-mail|--5Chat|--6Area info|--7Options"},
    {"Menu", "MenuListM", &clsVistrel::MenuMediumText,
     "--1Write new|HD2Inbox|-D3Unsent|--4Templates|--5Sent items (2)"},
    {"Menu", "MenuListL", &clsVistrel::MenuLargeText,
     "H-1Themes|--2My pictures|--3Draw picture|--4My sounds"},
    {"Menu", "Prompt", &clsVistrel::PromptText, "Text:"},
    {"PopupMenu", "Titles", &clsVistrel::PopupTitleText, "Options|Edit word"},
    {"PopupMenu", "MenuList1", &clsVistrel::PopupMenuList1,
     "--2Rel. caps lock|H-3Language|-D4Input method|--5Help"},
    {"PopupMenu", "MenuList2", &clsVistrel::PopupMenuList2,
     "--6Language|--7Input method|HD8Candidates|-D9Accept word"},
    {"PopupMenu", "Prompt", &clsVistrel::PopupPromptText, "Cabba"},
    {"PopupWindow", "Text", &clsVistrel::PopupWindowText, "Keys locked.|Press C|to unlock."},
    {"Notes", "Note", &clsVistrel::NotesText, "Do not forget|this..."},
};

constexpr LanguageText<clsVistrel3G> kTexts3G[] = {
    {"Standby", "SoftkeysText", &clsVistrel3G::StandbySoftkeyText, "Calls|More"},
    {"Desktop", "Titles", &clsVistrel3G::DesktopTitles,
     "Sony Ericsson|Internet services|My "
     "shortcuts|Camera|Messaging|Entertainment|Multimedia|Phonebook|Calls|Connectivity|Organizer|"
     "Settings"},
    {"Desktop", "SoftkeysText", &clsVistrel3G::DesktopSoftkeyText, "Select"},
    {"Menu", "Titles", &clsVistrel3G::TitleText, "Calls|My shortcuts"},
    {"Menu", "MenuList1", &clsVistrel3G::MenuText1,
     "-DMissed calls|--Call list|H-Divert calls|--Manage calls|--Time and cost|--Next call"},
    {"Menu", "MenuList2", &clsVistrel3G::MenuText2,
     "--Select profile|--Select network|--Call list|HDInbox|--Receive item|--Edit shortcuts"},
    {"Menu", "SoftkeysText", &clsVistrel3G::MenuSoftkeyText, "Select|Select"},
    {"PopupMenu", "Titles", &clsVistrel3G::MoreListTitleText, "More|Add"},
    {"PopupMenu", "MenuList1", &clsVistrel3G::MoreListMenuText1,
     "-DEdit|--Rotate|H-Delete|--Rename|--Picture info"},
    {"PopupMenu", "MenuList2", &clsVistrel3G::MoreListMenuText2,
     "--Picture|--Text|HDSound|--Camera picture|-DRecording"},
    {"PopupMenu", "SoftkeysText", &clsVistrel3G::MoreListSoftkeyText, "Select|Select"},
    {"Softkeys", "Titles", &clsVistrel3G::SoftkeysMenuTitleText,
     "Reccurence rule|Contact information"},
    {"Softkeys", "MenuList1", &clsVistrel3G::SoftkeysMenuText1,
     "Monday|Tuesday|Wednesday|Thursday|Friday|Saturday"},
    {"Softkeys", "MenuList2", &clsVistrel3G::SoftkeysMenuText2, "Name|Home|Work|Mobile|Fax|Other"},
    {"Softkeys", "SoftkeysText", &clsVistrel3G::SoftkeysSoftkeyText, "Uncheck|Ok"},
    {"Calendar", "DaysOfWeek", &clsVistrel3G::CalendarDaysOfWeek, "M|T|W|T|F|S|S"},
    {"Calendar", "SoftkeysText", &clsVistrel3G::CalendarSoftkeyText, "Select|More"},
    {"Notes", "Note", &clsVistrel3G::NotesText, "Do not forget this..."},
    {"WAPBrowser", "Title", &clsVistrel3G::WapbrowserTitleText, "My WAP Site"},
    {"WAPBrowser", "SoftkeysText", &clsVistrel3G::WapbrowserSoftkeyText, "Select|More"},
    {"ProgressWindow", "Text", &clsVistrel3G::ProgressWindowText, "Please wait"},
    {"AcceptWindow", "Text", &clsVistrel3G::AcceptWindowText, "Accept?"},
    {"AcceptWindow", "SoftkeysText", &clsVistrel3G::AcceptWindowSoftkeyText, "Yes|No"},
};

QString languageText(const char* section, const char* key, const char* standard,
                     const QString& ini) {
  return iniValue(ini, QLatin1String(section), QLatin1String(key), QLatin1String(standard));
}

template <typename Engine, std::size_t Count>
void readTexts(Engine& engine, const LanguageText<Engine> (&texts)[Count], const QString& ini) {
  for (const LanguageText<Engine>& text : texts)
    engine.*text.property = languageText(text.section, text.key, text.standard, ini);
}

template <typename Engine>
void readPhoneState(Engine& engine, const SettingsStore& settings, const FaultReporter& report) {
  engine.OperatorName = settings.read(setting::OperatorName);
  engine.TimeFormat = settings.read(setting::TimeFormat);
  engine.ShowGPRSIcon = flagSetting(settings, setting::ShowGPRSIcon, report);
  engine.GPRSRange = numberSetting(settings, setting::GPRSRange, report);
  engine.SignalStrength = numberSetting(settings, setting::SignalStrength, report);
  engine.BatteryLevel = numberSetting(settings, setting::BatteryLevel, report);
}

/// The text of a language file; empty when there is none, or none that can be read.
QString languageFile(const QString& path, const FaultReporter& report) {
  if (!FileExists(path)) return {};
  try {
    if (fileSize(path) > kLargestFile) {
      report(Fault(FaultNumber::BadCall,
                   u"The language file \"%1\" has more than a mebibyte; the standard texts are "
                   "shown."_s.arg(path)));
      return {};
    }
    return fromCodePage(readFile(path));
  } catch (const Fault&) {
    report(Fault(
        FaultNumber::NoPermission,
        u"The language file \"%1\" cannot be read; the standard texts are shown."_s.arg(path)));
  }
  return {};
}

}  // namespace

void InitPreview2(clsVistrel& engine, const PublicState& state, const SettingsStore& settings,
                  const FaultReporter& report) {
  const QString ini = languageFile(state.ConfigFolder2 + state.LanguageFile2, report);
  readPhoneState(engine, settings, report);
  engine.DesktopIcon = numberSetting(settings, setting::DesktopIcon2, report);
  readTexts(engine, kTexts2, ini);
  engine.PopupMenuText = engine.PopupMenuList1;
  engine.CalendarDateFormat = u"mmm yyyy"_s;
}

void InitPreview3G(clsVistrel3G& engine, const PublicState& state, const SettingsStore& settings,
                   const FaultReporter& report) {
  const QString ini = languageFile(state.ConfigFolder3G + state.LanguageFile3G, report);
  readPhoneState(engine, settings, report);
  engine.DateFormat = settings.read(setting::DateFormat3G);
  engine.DesktopIcon = numberSetting(settings, setting::DesktopIcon3G, report);
  readTexts(engine, kTexts3G, ini);
  engine.DrawImages = true;
}

}  // namespace quillane

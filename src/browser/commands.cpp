// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/commands.h"

#include "forms/formicons.h"

#include <QAction>
#include <QMenu>
#include <QToolButton>

#include <algorithm>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

constexpr int kDropDownPicture = 131;

constexpr ButtonPicture kToolPictures[] = {
    {"btnBrowse", 104},  {"btnHome", 105},          {"btnPrev", 113},   {"btnNext", 114},
    {"btnRefresh", 111}, {"btnNew", 115},           {"btnEdit", 118},   {"btnProperties", 120},
    {"btnExport", 121},  {"btnClipboardCopy", 112}, {"btnCopy", 122},   {"btnMove", 123},
    {"btnDelete", 124},  {"btnViewXML", 125},       {"btnIRSend", 127},
};

/// When a menu item is enabled, by what is selected; with nothing selected none is.
struct MenuRule {
  const char* item;
  bool one;
  bool oneFailed;
  bool several;
};

constexpr MenuRule kMenuRules[] = {
    {"mnuFileItem_2", true, false, false}, {"mnuFileItem_3", true, false, false},
    {"mnuFileItem_5", true, true, false},  {"mnuFileItem_6", true, true, true},
    {"mnuFileItem_8", true, false, false}, {"mnuEditItem_1", true, false, false},
    {"mnuEditItem_3", true, true, true},   {"mnuEditItem_4", true, true, true},
    {"mnuToolsItem_1", true, false, true}, {"mnuToolsItem_2", true, false, false},
};

// The forms and file operations behind these are still to come.
constexpr const char* kAwaited[] = {
    "btnProperties",
    "btnExport",
    "btnCopy",
    "btnMove",
    "btnDelete",
    "btnIRSend",
    "mnuFileItem_3",
    "mnuFileItem_5",
    "mnuFileItem_6",
    "mnuFileItem_8",
    "mnuEditItem_3",
    "mnuEditItem_4",
    "mnuEditItem_9",
    "mnuToolsItem_1",
    "mnuToolsItem_2",
    "mnuToolsItem_4",
    "mnuToolsItem_5",
    "mnuHelpItem_1",
    "mnuHelpItemInternet_1",
    "mnuHelpItem_5",
    "mnuHelpItem_3",
    "mnuHelpItemInternet_2",
};

bool isOn(const MenuRule& rule, int selectedCount, bool themeFailed) {
  if (selectedCount > 1) return rule.several;
  return selectedCount == 1 && (themeFailed ? rule.oneFailed : rule.one);
}

}  // namespace

void dressButtons(QWidget& browser) {
  dressButtons(browser, kToolPictures);
  browser.findChild<QToolButton*>(u"btnDropDown"_s)->setIcon(tightFormIcon(kDropDownPicture));
}

bool isCommandThere(const QString& control) {
  return std::none_of(std::begin(kAwaited), std::end(kAwaited),
                      [&](const char* awaited) { return control == QLatin1String(awaited); });
}

void enableMenuItems(QWidget& browser, int selectedCount, bool themeFailed) {
  for (const MenuRule& rule : kMenuRules) {
    const QString name = QLatin1String(rule.item);
    browser.findChild<QAction*>(name)->setEnabled(isCommandThere(name) &&
                                                  isOn(rule, selectedCount, themeFailed));
  }
}

void disableAwaited(QWidget& browser) {
  for (const char* awaited : kAwaited) {
    const QString name = QLatin1String(awaited);
    if (auto* widget = browser.findChild<QWidget*>(name)) widget->setEnabled(false);
    if (auto* action = browser.findChild<QAction*>(name)) action->setEnabled(false);
  }
}

}  // namespace quillane

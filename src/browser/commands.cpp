// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/commands.h"

#include "forms/formicons.h"

#include <QAction>
#include <QMenu>
#include <QToolButton>

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

bool isOn(const MenuRule& rule, int selectedCount, bool themeFailed) {
  if (selectedCount > 1) return rule.several;
  return selectedCount == 1 && (themeFailed ? rule.oneFailed : rule.one);
}

}  // namespace

void dressButtons(QWidget& browser) {
  dressButtons(browser, kToolPictures);
  browser.findChild<QToolButton*>(u"btnDropDown"_s)->setIcon(tightFormIcon(kDropDownPicture));
}

void enableMenuItems(QWidget& browser, int selectedCount, bool themeFailed) {
  for (const MenuRule& rule : kMenuRules) {
    const bool on = isOn(rule, selectedCount, themeFailed);
    browser.findChild<QAction*>(QLatin1String(rule.item))->setEnabled(on);
  }
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/frmeditor2.h"

#include "forms/paintscreen.h"
#include "shell/dynamics.h"
#include "shell/state.h"
#include "tools/frmclrpicker.h"
#include "ui_editorform.h"

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

constexpr EditorKind kKind{Generation::ThreeG, "frmEditor2", "<Sony_Ericsson_theme",
                           gen3g::WallpaperImage};
constexpr int kHighestDesktopIcon = 12;

/// When a screen is on its pane.
enum class Shown { Always, WithoutMore, WithMore };

struct PaneRow {
  const char* screen;
  const char* pane;
  Shown shown = Shown::Always;
};

constexpr PaneRow kPanes[] = {
    {"standby", "picStandby"},
    {"desktop", "picDesktop"},
    {"menu-1", "picMenu_0"},
    {"menu-2", "picMenu_1"},
    {"popup-menu-1", "picPopupMenu_0", Shown::WithoutMore},
    {"popup-menu-2", "picPopupMenu_1", Shown::WithoutMore},
    {"progress-window", "picPopupMenu_0", Shown::WithMore},
    {"accept-window", "picPopupMenu_1", Shown::WithMore},
    {"softkeys-1", "picSoftkeys_0"},
    {"softkeys-2", "picSoftkeys_1"},
    {"calendar", "picCalendar_0"},
    {"week-calendar", "picCalendar_1"},
    {"notes", "picNotes_0"},
    {"wap-browser", "picNotes_1"},
};

}  // namespace

frmEditor2::frmEditor2(QWidget* owner, const EditorDesk& desk, bool openExisting)
    : EditorForm(owner, desk, kKind, *desk.state.EditorEngine3G, *desk.state.PreviewEngine3G),
      vistrel_(*desk.state.EditorEngine3G) {
  useSwitch(*ui_->btnMore, u"picPopupMenu_0"_s, [this] {
    DrawPreviews({u"picPopupMenu_0"_s, u"picPopupMenu_1"_s});
  });
  useSwitch(*ui_->btnDrawImages, {}, [this] { btnDrawImages_Click(); });
  vistrel_.DrawImages = true;
  Form_Load(openExisting);
}

QString frmEditor2::paneOf(QLatin1String screen) const {
  const Shown hidden = ui_->btnMore->isChecked() ? Shown::WithoutMore : Shown::WithMore;
  for (const PaneRow& row : kPanes)
    if (screen == QLatin1String(row.screen) && row.shown != hidden) return QLatin1String(row.pane);
  return {};
}

void frmEditor2::paintPanes(const QStringList& only, const FaultReporter& report) {
  for (const Screen<clsVistrel3G>& screen : screensOf3G()) {
    const QString name = paneOf(screen.id);
    PictureBox* box = pane(name);
    if (!box || (!only.isEmpty() && !only.contains(name))) continue;
    stepPhone(screen.id, vistrel_, kHighestDesktopIcon, desk_.state, desk_.world);
    paintScreen(screen, vistrel_, *box, report);
  }
}

bool frmEditor2::PickColor() {
  return pickSystemColor(this, desk_.state, desk_.settings, desk_.dialogs);
}

void frmEditor2::btnDrawImages_Click() {
  vistrel_.DrawImages = !ui_->btnDrawImages->isChecked();
  DrawPreviews();
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browserfixture.h"

#include "forms/formicons.h"
#include "shell/language.h"
#include "support/tinygif.h"
#include "theme/archive.h"

namespace quillane {

BrowserTest::BrowserTest() {
  state.AppTempFolder = makeFolder("temp") + '/';
  state.ThemesFolder = makeFolder("home") + '/';
  state.BrowseFolder = makeFolder("themes") + '/';
  state.PreviewEngine2 = std::make_unique<clsVistrel>(world);
  state.EditorEngine2 = std::make_unique<clsVistrel>(world);
  state.PreviewEngine3G = std::make_unique<clsVistrel3G>(world);
  state.EditorEngine3G = std::make_unique<clsVistrel3G>(world);
  InitPreview2(*state.PreviewEngine2, state, settings, faults.reporter());
  InitPreview3G(*state.PreviewEngine3G, state, settings, faults.reporter());
}

void BrowserTest::open(const QString& commandLine) {
  browser = std::make_unique<frmBrowser>(state, settings, dialogs, world, commandLine);
}

void BrowserTest::addTheme(const QString& name, const QByteArray& elements, bool is3G,
                           const QStringList& images) {
  const QByteArray root = is3G ? "Sony_Ericsson_theme" : "Ericsson_theme";
  QStringList members{write("pack/theme.xml", '<' + root + '>' + elements + "</" + root + '>')};
  for (const QString& image : images)
    members << write("pack/" + image, tinyGif({101, 80}, {0, 0, 101, 80}, 1));
  packArchive(path("themes/" + name), members);
}

void BrowserTest::trigger(const char* item) {
  auto& action = control<QAction>(item);
  ASSERT_TRUE(action.isEnabled()) << item;
  action.trigger();
}

bool BrowserTest::painted(const char* pane) {
  const QImage& pixels = control<PictureBox>(pane).surface().image();
  return pixels.pixel(20, 20) != pixels.pixel(0, 0);
}

QString BrowserTest::tip() {
  return browser->findChild<cTooltips*>()->text();
}

char BrowserTest::statusIcon() {
  const QPixmap icon = control<QLabel>("picToolTip").pixmap();
  if (icon.isNull()) return '-';
  return icon.toImage() == formPixmap(110).toImage() ? 'E' : 'W';
}

}  // namespace quillane

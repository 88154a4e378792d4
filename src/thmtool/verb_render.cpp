// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "theme/tags.h"
#include "thmtool/folders.h"
#include "thmtool/openedtheme.h"
#include "thmtool/rendering.h"
#include "thmtool/renderoptions.h"
#include "thmtool/reporter.h"
#include "thmtool/sheet.h"
#include "thmtool/verbs.h"

#include <QCommandLineParser>
#include <QFileInfo>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

void saveScreens(const std::vector<RenderedScreen>& screens, const QString& folder, int scale) {
  makeOutputFolder(folder);
  for (const RenderedScreen& screen : screens)
    savePng(magnified(screen.image, scale), QDir(folder).filePath(screen.id + u".png"_s));
}

SheetHeading headingOf(const OpenedTheme& opened, const FaultReporter& report) {
  const ThemeTagTexts tags = readThemeTags(opened.theme.xml, report);
  const QString name = printable(tags.at(0)).simplified();
  const QString creator = printable(tags.at(1)).simplified();
  const QString phones = opened.generation() == Generation::Two ? u"Generation 2"_s : u"3G"_s;
  return {name.isEmpty() ? QFileInfo(opened.fileName).completeBaseName() : name,
          creator.isEmpty() ? phones : u"%1, by %2"_s.arg(phones, creator)};
}

int complainOfFaults(const std::vector<RenderedScreen>& screens, const QString& path,
                     const Streams& streams) {
  int status = AllWell;
  for (const RenderedScreen& screen : screens) {
    if (screen.fault.isEmpty()) continue;
    streams.complain(
        u"\"%1\": Screen \"%2\" is painted in part only: %3"_s.arg(path, screen.id, screen.fault));
    status = NotDone;
  }
  return status;
}

int runRender(const QCommandLineParser& given, const Streams& streams) {
  const QString path = given.positionalArguments().constFirst();
  const RenderOptions options = readRenderOptions(given);
  const FaultReporter report = reporterTo(streams, path);
  const OpenedTheme opened = openTheme(path, report);
  const auto screens = renderScreens(opened, options.settings, options.screens, report);
  const int status = complainOfFaults(screens, path, streams);
  if (options.sheet)
    savePng(magnified(contactSheet(headingOf(opened, report), screens), options.scale),
            *options.sheet);
  else
    saveScreens(screens, options.folder, options.scale);
  return status;
}

}  // namespace

const Verb kRenderVerb{
    "render"_L1,    "THEME"_L1, 1, 1, "paint the screens of a theme as PNG files"_L1,
    kRenderOptions, &runRender};

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "thmtool/folders.h"
#include "thmtool/openedtheme.h"
#include "thmtool/rendering.h"
#include "thmtool/reporter.h"
#include "thmtool/verbs.h"
#include "thmtool/wholenumber.h"

#include <QCommandLineParser>

#include <algorithm>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

QImage fitted(const QImage& screen, int size) {
  const int factor = std::min(size / screen.width(), size / screen.height());
  if (factor >= 1) return magnified(screen, factor);
  const QSizeF within = QSizeF(screen.size()).scaled(size, size, Qt::KeepAspectRatio);
  return screen.scaled(within.toSize().expandedTo({1, 1}), Qt::IgnoreAspectRatio,
                       Qt::SmoothTransformation);
}

int runThumbnail(const QCommandLineParser& given, const Streams& streams) {
  const QStringList words = given.positionalArguments();
  const auto size = static_cast<int>(numberWithin(words.at(2), 1, 4096, u"size"_s));
  const FaultReporter report = reporterTo(streams, words.at(0));
  const OpenedTheme opened = openTheme(words.at(0), report);
  const RenderedScreen standby =
      renderScreens(opened, RenderSettings(), {u"standby"_s}, report).front();
  savePng(fitted(standby.image, size), pathOf(words.at(1)));
  if (standby.fault.isEmpty()) return AllWell;
  streams.complain(
      u"\"%1\": The screen is painted in part only: %2"_s.arg(words.at(0), standby.fault));
  return NotDone;
}

}  // namespace

const Verb kThumbnailVerb{"thumbnail"_L1,
                          "THEME OUT.png SIZE"_L1,
                          3,
                          3,
                          "paint the standby screen to fit a square of SIZE pixels"_L1,
                          {},
                          &runThumbnail};

}  // namespace quillane

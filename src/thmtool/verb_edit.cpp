// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "thmtool/editedtheme.h"
#include "thmtool/folders.h"
#include "thmtool/openedtheme.h"
#include "thmtool/reporter.h"
#include "thmtool/verbs.h"

#include <QCommandLineParser>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

/// The tags as an editor shows them: a theme that does not tell its age is as old as its XML.
ThemeTagTexts tagsOf(const LoadedTheme& theme, const FaultReporter& report) {
  ThemeTagTexts tags = readThemeTags(theme.xml, report);
  QString& created = tags.back();
  if (created.isEmpty()) created = tagTime(theme.xmlPath);
  return tags;
}

int runEdit(const QCommandLineParser& given, const Streams& streams) {
  const QStringList words = given.positionalArguments();
  const EditOptions options = readEditOptions(given);
  const FaultReporter report = reporterTo(streams, words.at(0));
  const OpenedTheme opened = openTheme(words.at(0), report);
  EditedTheme theme{opened.theme.values, tagsOf(opened.theme, report)};
  applyEdits(theme, options);
  return saveEdited(theme, &opened.theme.values, pathOf(words.at(1)), options, streams);
}

}  // namespace

const Verb kEditVerb{
    "edit"_L1, "THEME OUT.thm"_L1, 2, 2, "save a theme with changes"_L1, kEditOptions, &runEdit};

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "thmtool/editedtheme.h"
#include "thmtool/folders.h"
#include "thmtool/verbs.h"

#include <QCommandLineParser>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

Generation readGeneration(const QString& word) {
  if (word == "2"_L1) return Generation::Two;
  if (word.compare("3g"_L1, Qt::CaseInsensitive) == 0) return Generation::ThreeG;
  throw UsageError(u"\"%1\" is no generation, which is 2 or 3g."_s.arg(word));
}

int runNew(const QCommandLineParser& given, const Streams& streams) {
  const QStringList words = given.positionalArguments();
  EditedTheme theme{ThemeValues(readGeneration(words.at(0)))};
  const EditOptions options = readEditOptions(given);
  applyEdits(theme, options);
  return saveEdited(theme, nullptr, pathOf(words.at(1)), options, streams);
}

}  // namespace

const Verb kNewVerb{"new"_L1,
                    "2|3g OUT.thm"_L1,
                    2,
                    2,
                    "make a theme of default colours and changes"_L1,
                    kEditOptions,
                    &runNew};

}  // namespace quillane

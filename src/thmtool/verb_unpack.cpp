// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "thmtool/folders.h"
#include "thmtool/openedtheme.h"
#include "thmtool/verbs.h"

#include <QCommandLineParser>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

int runUnpack(const QCommandLineParser& given, const Streams&) {
  const QStringList words = given.positionalArguments();
  makeOutputFolder(words.at(1));
  extractTheme(words.at(0), words.at(1));
  return AllWell;
}

}  // namespace

const Verb kUnpackVerb{
    "unpack"_L1, "THEME DIR"_L1, 2, 2, "extract the files of a theme into a folder"_L1,
    {},          &runUnpack};

}  // namespace quillane

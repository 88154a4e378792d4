// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "thmtool/folders.h"
#include "thmtool/openedtheme.h"
#include "thmtool/verbs.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

int runUnpack(const QCommandLineParser& given, const Streams&) {
  const QString theme = given.positionalArguments().at(0);
  const QString folder = pathOf(given.positionalArguments().at(1));
  const bool isNew = !QFileInfo::exists(folder);
  makeOutputFolder(folder);
  try {
    extractTheme(theme, folder);
  } catch (...) {
    // Removes it only while it is empty: what came before the damage stays.
    if (isNew) QDir().rmdir(folder);
    throw;
  }
  return AllWell;
}

}  // namespace

const Verb kUnpackVerb{
    "unpack"_L1, "THEME DIR"_L1, 2, 2, "extract the files of a theme into a folder"_L1,
    {},          &runUnpack};

}  // namespace quillane

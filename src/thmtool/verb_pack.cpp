// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "theme/archive.h"
#include "theme/files.h"
#include "thmtool/folders.h"
#include "thmtool/verbs.h"

#include <QCommandLineParser>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

void packWithIndex(const QString& themePath, const QStringList& files) {
  const QTemporaryDir folder = makeWorkFolder();
  const QString index = folder.filePath(u"index.txt"_s);
  saveFile(index, themeIndex(files, IndexEnd::LineEnd));
  packArchive(themePath, QStringList{index} + files);
}

int runPack(const QCommandLineParser& given, const Streams&) {
  QStringList files = given.positionalArguments();
  for (QString& file : files)
    file = pathOf(file);
  const QString themePath = files.takeFirst();
  if (given.isSet(u"index"_s))
    packWithIndex(themePath, files);
  else
    packArchive(themePath, files);
  return AllWell;
}

constexpr OptionRow kOptions[] = {
    {"index"_L1, ""_L1, "put a generated index.txt in front of the files"_L1},
};

}  // namespace

const Verb kPackVerb{"pack"_L1,
                     "OUT.thm FILE..."_L1,
                     2,
                     Verb::kAnyNumber,
                     "pack files into a new theme"_L1,
                     kOptions,
                     &runPack};

}  // namespace quillane

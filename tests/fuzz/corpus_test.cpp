// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/targets.h"
#include "support/text.h"

#include <QDir>
#include <QFile>

namespace quillane {

namespace {

/// Runs every seed, whole and cut at many places.
void runSeeds(const QString& name, bool (*holds)(QByteArrayView)) {
  const QDir folder(QUILLANE_FUZZ_CORPUS "/" + name);
  const QStringList seeds = folder.entryList(QDir::Files);
  ASSERT_FALSE(seeds.isEmpty());
  for (const QString& seed : seeds) {
    QFile file(folder.filePath(seed));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    for (qsizetype size = bytes.size(); size >= 0; size -= 97)
      EXPECT_TRUE(holds(QByteArrayView(bytes).first(size))) << seed.toStdString() << " at " << size;
  }
}

TEST(FuzzCorpus, Holds) {
  runSeeds("archive", archiveHolds);
  runSeeds("parsexml", parseXmlHolds);
  runSeeds("palette", paletteHolds);
}

}  // namespace

}  // namespace quillane

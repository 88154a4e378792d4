// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/targets.h"
#include "support/text.h"

#include <algorithm>

namespace quillane {

namespace {

struct Target {
  const char* name;
  void (*run)(QByteArrayView bytes);
};

void PrintTo(const Target& target, std::ostream* out) {
  *out << target.name;
}

class FuzzCorpus : public testing::TestWithParam<Target> {};

/// Every seed, whole and cut at places all over it.
TEST_P(FuzzCorpus, Holds) {
  constexpr qsizetype kMostCuts = 8;
  const QDir folder(QString(QUILLANE_FUZZ_CORPUS "/") + GetParam().name);
  const QStringList seeds = folder.entryList(QDir::Files);
  ASSERT_FALSE(seeds.isEmpty());
  for (const QString& seed : seeds) {
    QFile file(folder.filePath(seed));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    const qsizetype step = std::max<qsizetype>(97, bytes.size() / kMostCuts);
    for (qsizetype size = bytes.size(); size >= 0; size -= step)
      EXPECT_NO_THROW(GetParam().run(QByteArrayView(bytes).first(size)))
          << seed.toStdString() << " at " << size;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Targets, FuzzCorpus,
    testing::Values(Target{"language", languageTarget}, Target{"palette", paletteTarget},
                    Target{"parsexml", parsexmlTarget}, Target{"picture", pictureTarget},
                    Target{"screens", screensTarget}, Target{"theme", themeTarget}));

}  // namespace

}  // namespace quillane

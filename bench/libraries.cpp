// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
// Times what a person waits for against the least that the same work could cost. Both halves of a
// pair run in turn within one loop, so the ratio holds on a noisy machine.
#include "bench/compare.h"
#include "preview/modapigraphics.h"
#include "preview/screens.h"
#include "preview/surface.h"
#include "shell/files.h"
#include "shell/language.h"
#include "shell/listing.h"
#include "shell/settings.h"
#include "shell/state.h"
#include "shell/systemworld.h"
#include "theme/archive.h"
#include "theme/load.h"
#include "theme/parsexml.h"

#include <QFile>
#include <QTemporaryDir>
#include <archive.h>
#include <archive_entry.h>
#include <benchmark/benchmark.h>

#include <filesystem>

namespace quillane {

namespace {

const FaultReporter kQuiet = [](const Fault&) {};

/// The engines and a work folder, as the browser has them.
class Desk {
 public:
  Desk() {
    InitPreview2(engine2, state, settings, kQuiet);
    InitPreview3G(engine3G, state, settings, kQuiet);
  }

  QString folder() const { return folder_.path() + QLatin1Char('/'); }

  LoadedTheme load(const QString& theme) {
    DeleteFiles(folder() + QLatin1String("*.*"));
    extractArchive(theme, folder());
    return loadTheme(folder(), state.ImageState, kQuiet).value();
  }

  template <class Engine>
  void paintPanes(Engine& engine, std::span<const Screen<Engine>> screens, Surface& surface) {
    engine.setSurface(surface);
    for (const Screen<Engine>& screen : screens)
      if (!screen.pane.isEmpty()) screen.paint(engine);
  }

  /// What the browser does when the theme is selected.
  void paintTheme(const LoadedTheme& theme) {
    if (theme.values.schema().generation == Generation::ThreeG) {
      engine3G.takeTheme(theme.values);
      paintPanes(engine3G, screensOf3G(), surface3G);
    } else {
      engine2.takeTheme(theme.values);
      paintPanes(engine2, screensOfGeneration2(), surface2);
    }
  }

  SystemWorld world;
  PublicState state;
  MemorySettings settings;
  clsVistrel engine2{world};
  clsVistrel3G engine3G{world};
  Surface surface2{Surface::kSize2};
  Surface surface3G{Surface::kSize3G};

 private:
  QTemporaryDir folder_;
};

QString sampleTheme(const char* name) {
  return QStringLiteral(SAMPLE_THEMES "/") + QLatin1String(name) + QLatin1String(".thm");
}

/// What an extraction costs at least: libarchive's reader and plain new files.
void extractBarely(const QString& theme, const QString& folder) {
  DeleteFiles(folder + QLatin1String("*.*"));
  archive* reader = archive_read_new();
  archive_read_support_format_tar(reader);
  archive_read_open_filename(reader, QFile::encodeName(theme).constData(), 10240);
  for (archive_entry* entry = nullptr; archive_read_next_header(reader, &entry) == ARCHIVE_OK;) {
    QFile file(folder + QString::fromUtf8(archive_entry_pathname(entry)));
    file.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    archive_read_data_into_fd(reader, file.handle());
  }
  archive_read_free(reader);
}

void selectTheme(benchmark::State& state, const char* name) {
  Desk desk;
  const QTemporaryDir bare;
  const QString theme = sampleTheme(name);
  compare(
      state, [&] { desk.paintTheme(desk.load(theme)); },
      [&] { extractBarely(theme, bare.path() + QLatin1Char('/')); });
}

void parseEveryElement(benchmark::State& state, const char* name) {
  Desk desk;
  const LoadedTheme theme = desk.load(sampleTheme(name));
  const ThemeSchema& schema = theme.values.schema();
  const auto eachElement = [&](auto&& lookUp) {
    for (const ColorElement& color : schema.colors)
      lookUp(QString(color.element));
    for (const ImageElement& image : schema.images)
      lookUp(QString(image.element));
  };
  compare(
      state,
      [&] {
        eachElement([&](const QString& element) {
          benchmark::DoNotOptimize(ParseXML(element, theme.xml, kQuiet));
        });
      },
      [&] {
        eachElement(
            [&](const QString& element) { benchmark::DoNotOptimize(theme.xml.indexOf(element)); });
      });
}

template <class Engine>
void paintScreens(benchmark::State& state, Engine& engine, std::span<const Screen<Engine>> screens,
                  Surface& surface) {
  engine.setSurface(surface);
  const QSize size = surface.image().size();
  compare(
      state,
      [&] {
        for (const Screen<Engine>& screen : screens)
          screen.paint(engine);
      },
      [&] {
        for (std::size_t screen = 0; screen < screens.size(); ++screen)
          DrawFilledRect(surface, 0x302010, 0, 0, size.width(), size.height());
      });
}

void paintScreens2(benchmark::State& state, const char* name) {
  Desk desk;
  desk.paintTheme(desk.load(sampleTheme(name)));
  paintScreens(state, desk.engine2, screensOfGeneration2(), desk.surface2);
}

void paintScreens3G(benchmark::State& state, const char* name) {
  Desk desk;
  desk.paintTheme(desk.load(sampleTheme(name)));
  paintScreens(state, desk.engine3G, screensOf3G(), desk.surface3G);
}

void listTenThousand(benchmark::State& state) {
  const QTemporaryDir folder;
  for (int file = 0; file < 10000; ++file)
    QFile(folder.filePath(QStringLiteral("Theme %1.thm").arg(file))).open(QIODevice::WriteOnly);
  const std::filesystem::path path = folder.path().toStdString();
  compare(
      state, [&] { benchmark::DoNotOptimize(listFiles(folder.path(), QStringLiteral(".thm"))); },
      [&] {
        for (const auto& entry : std::filesystem::directory_iterator(path))
          benchmark::DoNotOptimize(entry.path().native().size());
      });
}

BENCHMARK_CAPTURE(selectTheme, generation2, "Balloon Morning")->UseManualTime();
BENCHMARK_CAPTURE(selectTheme, 3G, "Polar Night")->UseManualTime();
BENCHMARK_CAPTURE(parseEveryElement, generation2, "Balloon Morning")->UseManualTime();
BENCHMARK_CAPTURE(parseEveryElement, 3G, "Polar Night")->UseManualTime();
BENCHMARK_CAPTURE(paintScreens2, images, "Balloon Morning")->UseManualTime();
BENCHMARK_CAPTURE(paintScreens2, colours, "Amber Terminal")->UseManualTime();
BENCHMARK_CAPTURE(paintScreens3G, images, "Polar Night")->UseManualTime();
BENCHMARK_CAPTURE(paintScreens3G, colours, "Mint Chocolate")->UseManualTime();
BENCHMARK(listTenThousand)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace quillane

BENCHMARK_MAIN();

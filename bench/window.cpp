// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
// Times the main window on a folder of 10,000 themes against what the same steps cost at least.
#include "bench/browserdesk.h"
#include "bench/compare.h"

#include <QAction>
#include <QApplication>
#include <QFileInfo>
#include <QTest>

#include <filesystem>

namespace quillane {

namespace {

/// The windows that the measurements share; they last as long as the application.
struct Desks {
  BrowserDesk many{10000};
  BrowserDesk few{8};
};
Desks* desks = nullptr;

BrowserDesk& desk() {
  return desks->many;
}

void trigger(const char* item) {
  desk().browser().findChild<QAction*>(QLatin1String(item))->trigger();
  QCoreApplication::processEvents();
}

void readFolder() {
  for (const auto& entry : std::filesystem::directory_iterator(desk().folder().toStdString()))
    benchmark::DoNotOptimize(entry.path().native().size());
}

void measureFiles() {
  for (const auto& entry : std::filesystem::directory_iterator(desk().folder().toStdString()))
    benchmark::DoNotOptimize(std::filesystem::file_size(entry.path()));
}

void refresh(benchmark::State& state) {
  compare(
      state, [] { trigger("mnuViewItem_3"); }, &readFolder);
}

void selectAll(benchmark::State& state) {
  compare(
      state,
      [] {
        desk().list().clearSelection();
        trigger("mnuEditItem_6");
      },
      &measureFiles);
}

/// A press of the arrow key in a long folder against the same in one of eight themes.
void arrowKey(benchmark::State& state) {
  const auto step = [](BrowserDesk& on, Qt::Key key) {
    QTest::keyClick(&on.list(), key);
    QCoreApplication::processEvents();
  };
  const auto walk = [&step](BrowserDesk& on) {
    on.list().selectOnly(0);
    for (int press = 0; press < 7; ++press)
      step(on, Qt::Key_Down);
  };
  compare(
      state, [&] { walk(desk()); }, [&] { walk(desks->few); });
}

BENCHMARK(refresh)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(selectAll)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(arrowKey)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace quillane

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  quillane::Desks desks;
  quillane::desks = &desks;
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
// Tells the memory of the program, which lists 10,000 themes, at rest and while it selects one
// after the other, beside that of an empty window.
#include "bench/browserdesk.h"

#include <QApplication>

#include <cstdio>
#include <fstream>
#include <unistd.h>

namespace quillane {

namespace {

constexpr int kThemes = 10000;

/// Resident memory of this process in MiB.
double residentMemory() {
  long pages = 0;
  long resident = 0;
  std::ifstream("/proc/self/statm") >> pages >> resident;
  return static_cast<double>(resident * ::sysconf(_SC_PAGESIZE)) / (1 << 20);
}

void tell(const char* when) {
  QCoreApplication::processEvents();
  std::printf("%-24s%6.1f MiB\n", when, residentMemory());
}

void selectThemes(BrowserDesk& desk, int first, int last) {
  for (int theme = first; theme < last; ++theme) {
    desk.list().selectOnly(theme);
    QCoreApplication::processEvents();
  }
}

void run() {
  QWidget empty;
  empty.show();
  tell("an empty window");
  BrowserDesk desk(kThemes);
  tell("10,000 themes listed");
  int selected = 0;
  for (const int until : {100, 1000, 5000, kThemes}) {
    selectThemes(desk, selected, until);
    selected = until;
    tell(qPrintable(QStringLiteral("after %L1 selections").arg(until)));
  }
  desk.list().selectEvery();
  tell("all selected");
}

}  // namespace

}  // namespace quillane

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  quillane::run();
}

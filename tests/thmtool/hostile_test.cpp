// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/hostilethemes.h"
#include "thmtool/toolrun.h"

#include <QProcess>

#include <algorithm>
#include <iostream>
#include <sys/resource.h>

namespace quillane {

namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr bool kMemoryCounts = false;  // A sanitizer takes far more than the program.
#else
constexpr bool kMemoryCounts = true;
#endif
constexpr rlim_t kAddresses = 768 << 20;
constexpr long kMostKiB = 200 << 10;

class Hostile : public ToolTest {
 protected:
  /// A run of the tool itself, that a fault of memory ends, in bounds.
  ToolRun run(const QStringList& words) const {
    QProcess tool;
    // The tool extracts below, so that whatever leaves its folder shows.
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("TMPDIR", makeFolder("at/some/depth"));
    tool.setProcessEnvironment(environment);
    tool.setChildProcessModifier([] {
      const rlimit most{kAddresses, kAddresses};
      if (kMemoryCounts) ::setrlimit(RLIMIT_AS, &most);
    });
    tool.start(THMTOOL_BINARY, words);
    EXPECT_TRUE(tool.waitForFinished(120'000));
    EXPECT_EQ(tool.exitStatus(), QProcess::NormalExit) << "crashed";
    return {tool.exitCode(), tool.readAllStandardOutput().toStdString(),
            tool.readAllStandardError().toStdString()};
  }
};

bool isPrintable(const std::string& text) {
  return std::none_of(text.begin(), text.end(), [](char letter) {
    return letter != '\n' && static_cast<unsigned char>(letter) < ' ';
  });
}

TEST_F(Hostile, ThemesAreToldOfAndHarmNothing) {
  const QString theme = path("theme.thm");
  const std::pair<const char*, QStringList> verbs[] = {{"info", {}},
                                                       {"check", {}},
                                                       {"thumbnail", {path("out.png"), "64"}},
                                                       {"render", {"--sheet", path("out.png")}}};
  for (const HostileTheme& row : hostileThemes())
    for (const auto& [verb, more] : verbs) {
      SCOPED_TRACE(testing::Message() << row.name << ", " << verb);
      write("theme.thm", row.bytes);
      QFile::remove(path("out.png"));
      const ToolRun result = run(QStringList{verb, theme} + more);
      const bool isShown = *row.error == '\0';
      const std::string said = result.out + result.err;
      EXPECT_TRUE(isPrintable(said)) << said;
      EXPECT_EQ(QFileInfo::exists(path("out.png")), isShown && !more.isEmpty());
      if (!isShown) {
        EXPECT_EQ(result.status, NotDone);
        EXPECT_NE(said.find(": " + std::string(row.error)), std::string::npos) << said;
      } else if (verb != QString("thumbnail")) {
        const bool isWell = verb != QString("check") && (row.isPainted || more.isEmpty());
        EXPECT_EQ(result.status, isWell ? AllWell : NotDone) << said.substr(0, 300);
      }
    }
  rusage used{};
  ::getrusage(RUSAGE_CHILDREN, &used);
  EXPECT_TRUE(!kMemoryCounts || used.ru_maxrss < kMostKiB) << used.ru_maxrss << " KiB";
  std::cout << "most memory of a run: " << used.ru_maxrss / 1024 << " MiB\n";
  EXPECT_EQ(listOf(""), (QStringList{"at", "out.png", "theme.thm"})) << "escaped";
  EXPECT_EQ(listOf("at/some"), QStringList("depth"));
  EXPECT_EQ(listOf("at/some/depth"), QStringList());
  EXPECT_FALSE(QFile::exists("/tmp/escaped.xml"));
}

}  // namespace

}  // namespace quillane

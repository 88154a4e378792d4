// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/themecheck.h"
#include "thmtool/folders.h"
#include "thmtool/verbs.h"

#include <QCommandLineParser>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

/// By `Severity`.
constexpr QLatin1String kSeverityWords[] = {"error"_L1, "warning"_L1, "note"_L1};

int runCheck(const QCommandLineParser& given, const Streams& streams) {
  int status = AllWell;
  for (const QString& path : given.positionalArguments()) {
    const CheckedTheme theme = checkTheme(pathOf(path));
    for (const Finding& finding : theme.findings) {
      streams.print(
          printable(u"%1: %2: %3"_s.arg(
              path, kSeverityWords[static_cast<std::size_t>(finding.severity)], finding.text)) +
          u'\n');
      status = NotDone;
    }
  }
  return status;
}

constexpr auto kMore =
    "\nEach line is \"THEME: severity: text\". The severity is one of\n"
    "  error    something is not shown, or not as it was meant\n"
    "  warning  it may be shown otherwise than meant, by some phones or to some eyes\n"
    "  note     nothing is lost; something is superfluous or untidy\n"
    "The exit status is 1 as soon as there is a line, a note too.\n"_L1;

}  // namespace

const Verb kCheckVerb{"check"_L1,
                      "THEME..."_L1,
                      1,
                      Verb::kAnyNumber,
                      "tell what is odd about themes, a finding a line"_L1,
                      {},
                      &runCheck,
                      kMore};

}  // namespace quillane

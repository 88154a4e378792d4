// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/themecheck.h"
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
    for (const Finding& finding : checkTheme(path)) {
      streams.print(printable(u"%1: %2: %3"_s.arg(
                        path, kSeverityWords[static_cast<std::size_t>(finding.severity)],
                        finding.text)) +
                    u'\n');
      status = NotDone;
    }
  }
  return status;
}

}  // namespace

const Verb kCheckVerb{"check"_L1,
                      "THEME..."_L1,
                      1,
                      Verb::kAnyNumber,
                      "tell what is odd about themes, a finding a line"_L1,
                      {},
                      &runCheck};

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "thmtool/tool.h"

#include <QLatin1String>

#include <span>

class QCommandLineParser;

namespace quillane {

/// An option of a verb: its name without dashes, what stands for its value (empty for a switch),
/// and what its help says.
struct OptionRow {
  QLatin1String name;
  QLatin1String value;
  QLatin1String help;
};

/// Something the tool does.
struct Verb {
  static constexpr int kAnyNumber = -1;

  QLatin1String name;
  QLatin1String words;  ///< What follows it beside the options, as in "THEME DIR".
  int fewestWords;
  int mostWords;  ///< Or `kAnyNumber`.
  QLatin1String summary;
  std::span<const OptionRow> options;
  /// Returns an `ExitStatus`; may throw `UsageError`, `UnreadableTheme` and `Fault`.
  int (*run)(const QCommandLineParser& given, const Streams& streams);
  QLatin1String more{};  ///< What its help says below the summary, in lines.
};

extern const Verb kRenderVerb;
extern const Verb kInfoVerb;
extern const Verb kXmlVerb;
extern const Verb kCheckVerb;
extern const Verb kUnpackVerb;
extern const Verb kPackVerb;
extern const Verb kNewVerb;
extern const Verb kEditVerb;
extern const Verb kThumbnailVerb;

/// All verbs, in the order of the help.
std::span<const Verb* const> verbs();

}  // namespace quillane

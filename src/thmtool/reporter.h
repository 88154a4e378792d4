// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "theme/fault.h"
#include "thmtool/tool.h"

namespace quillane {

/// Takes faults in a file to the error stream, a line each. `streams` outlives the reporter.
inline FaultReporter reporterTo(const Streams& streams, const QString& path) {
  return [&streams, path](const Fault& fault) {
    streams.complain(QStringLiteral("\"%1\": %2").arg(path, fault.description()));
  };
}

}  // namespace quillane

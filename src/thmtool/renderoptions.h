// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "thmtool/rendering.h"
#include "thmtool/verbs.h"

namespace quillane {

/// The options of the verb that paints the screens.
extern const std::span<const OptionRow> kRenderOptions;

/// What they ask for.
struct RenderOptions {
  RenderSettings settings;
  QStringList screens;           ///< Ids in the order wanted; empty for all.
  QString folder;                ///< Where one file a screen goes.
  std::optional<QString> sheet;  ///< File of the sheet that is wanted instead.
  int scale = 1;
};

/// Reads the options. Throws `UsageError`, and `Fault` for a language file that is not there.
RenderOptions readRenderOptions(const QCommandLineParser& given);

}  // namespace quillane

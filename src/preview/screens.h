// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preview/clsvistrel.h"
#include "preview/clsvistrel3g.h"

#include <QLatin1String>

#include <span>

namespace quillane {

/// A simulated screen that an engine can paint.
template <class Engine>
struct Screen {
  QLatin1String id;               ///< Stable name, in file names and on the command line.
  QLatin1String caption;          ///< What a person reads below it.
  QLatin1String pane;             ///< The browser's control that shows it; empty for none.
  void (*paint)(Engine& engine);  ///< Paints it on the engine's surface.
};

/// The screens of generation 2 in their order.
std::span<const Screen<clsVistrel>> screensOfGeneration2();

/// The screens of 3G in their order.
std::span<const Screen<clsVistrel3G>> screensOf3G();

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "theme/fault.h"

namespace quillane {

class clsVistrel;
class clsVistrel3G;
class SettingsStore;
struct PublicState;

/// Fills an engine of generation 2 with the preview settings and the texts of its language file;
/// texts that the file lacks get their defaults.
void InitPreview2(clsVistrel& engine, const PublicState& state, const SettingsStore& settings,
                  const FaultReporter& report);

/// The same for 3G; also switches the engine's images on.
void InitPreview3G(clsVistrel3G& engine, const PublicState& state, const SettingsStore& settings,
                   const FaultReporter& report);

}  // namespace quillane

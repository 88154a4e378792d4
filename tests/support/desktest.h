// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/language.h"
#include "shell/settings.h"
#include "shell/state.h"
#include "support/stillworld.h"
#include "support/tempfolder.h"

#include <memory>

namespace quillane {

/// What a form is handed: state with its four engines, settings and a still world, on folders of
/// its own.
class DeskTest : public TempFolder {
 protected:
  DeskTest() {
    state.AppTempFolder = makeFolder("temp") + '/';
    state.ThemesFolder = makeFolder("home") + '/';
    for (auto* engine : {&state.PreviewEngine2, &state.EditorEngine2}) {
      *engine = std::make_unique<clsVistrel>(world);
      InitPreview2(**engine, state, settings, faults.reporter());
    }
    for (auto* engine : {&state.PreviewEngine3G, &state.EditorEngine3G}) {
      *engine = std::make_unique<clsVistrel3G>(world);
      InitPreview3G(**engine, state, settings, faults.reporter());
    }
  }

  PublicState state;
  MemorySettings settings;
  StillWorld world;
  FaultLog faults;
};

}  // namespace quillane

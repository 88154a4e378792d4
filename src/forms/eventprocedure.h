// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "forms/dialogs.h"
#include "theme/fault.h"

namespace quillane {

/// Shows the standard message of a fault: its description, then `tag`, as in
/// "in Quillane.frmBrowser.btnCopy_Click ", and the line.
void showFault(Dialogs& dialogs, QWidget* owner, const Fault& fault, const QString& tag);

/// Tells whoever started the program in a terminal of a fault that by design shows no box.
void tellTerminal(const Fault& fault);

/// Runs an event procedure. A fault ends it with the standard message; a cancelled dialog ends it
/// in silence.
template <typename Procedure>
void eventProcedure(Dialogs& dialogs, QWidget* owner, const QString& tag, Procedure&& procedure) {
  try {
    procedure();
  } catch (const Fault& fault) {
    if (fault.number() != FaultNumber::DialogCancelled) showFault(dialogs, owner, fault, tag);
  }
}

}  // namespace quillane

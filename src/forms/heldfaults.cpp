// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/heldfaults.h"

#include "forms/eventprocedure.h"

#include <utility>

namespace quillane {

FaultReporter HeldFaults::reporter() {
  return [this](const Fault& fault) {
    if (known_.contains(fault.description())) return;
    known_.insert(fault.description());
    waiting_.append(fault);
  };
}

void HeldFaults::show(Dialogs& dialogs, QWidget* owner, const QString& tag) {
  // More may come while a box is open.
  for (const Fault& fault : std::exchange(waiting_, {}))
    showFault(dialogs, owner, fault, tag);
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "theme/fault.h"

#include <QList>
#include <QSet>

class QWidget;

namespace quillane {

class Dialogs;

/// Holds the faults of one piece of work back until a person can see what they are about, and shows
/// each text once: an image that cannot be read fails on every screen.
class HeldFaults {
 public:
  /// Takes faults for as long as this object lives.
  FaultReporter reporter();
  /// Shows the standard message of each fault that came since the last time.
  void show(Dialogs& dialogs, QWidget* owner, const QString& tag);

 private:
  QSet<QString> known_;
  QList<Fault> waiting_;
};

}  // namespace quillane

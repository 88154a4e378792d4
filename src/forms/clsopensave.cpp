// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/clsopensave.h"

#include "forms/dialogs.h"
#include "theme/fault.h"

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

void demandAnswer(bool answered) {
  if (!answered) throw Fault(FaultNumber::DialogCancelled, u"Cancel was selected."_s);
}

}  // namespace

void clsOpenSave::ShowOpen(QWidget* owner) {
  demandAnswer(dialogs_.chooseFile(owner, *this, FileQuestion::Open));
}

void clsOpenSave::ShowSave(QWidget* owner) {
  demandAnswer(dialogs_.chooseFile(owner, *this, FileQuestion::Save));
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/eventprocedure.h"

#include <cstdio>

namespace quillane {

using namespace Qt::StringLiterals;

void showFault(Dialogs& dialogs, QWidget* owner, const Fault& fault, const QString& tag) {
  dialogs.message(owner, MessageIcon::Stop, QString(),
                  u"%1\r\n%2at line %3"_s.arg(fault.description(), tag).arg(fault.line()));
}

void tellTerminal(const Fault& fault) {
  std::fprintf(stderr, "quillane: %s\n", fault.what());
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview/pipelist.h"

#include "theme/fault.h"

namespace quillane {

QStringList splitList(const QString& list) {
  return list.isEmpty() ? QStringList() : list.split(QLatin1Char('|'));
}

QString entryOf(const QStringList& list, int index) {
  if (index < 0 || index >= list.size())
    throw Fault(FaultNumber::BadIndex, QStringLiteral("Subscript out of range"));
  return list[index];
}

}  // namespace quillane

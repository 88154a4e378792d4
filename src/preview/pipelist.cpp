// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview/pipelist.h"

#include "theme/fault.h"

namespace quillane {

using namespace Qt::StringLiterals;

QStringList splitList(const QString& list) {
  return list.isEmpty() ? QStringList() : list.split(u'|');
}

QString entryOf(const QStringList& list, int index) {
  if (index < 0 || index >= list.size())
    throw Fault(FaultNumber::BadIndex, u"The text list \"%1\" of a screen has no entry %2."_s.arg(
                                           list.join(u'|'), QString::number(index + 1)));
  return list[index];
}

QStringList sampleOf(int index, const QString& first, const QString& second) {
  if (index == 0) return splitList(first);
  if (index == 1) return splitList(second);
  return {};
}

}  // namespace quillane

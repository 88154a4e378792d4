// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace quillane {

/// Cuts a list of a screen's texts at "|"; an empty text is an empty list.
QStringList splitList(const QString& list);

/// An entry of such a list; throws `Fault` (BadIndex) beyond its ends.
QString entryOf(const QStringList& list, int index);

/// The entries of the sample that an index picks: 0 the first list, 1 the second, any other none.
QStringList sampleOf(int index, const QString& first, const QString& second);

}  // namespace quillane

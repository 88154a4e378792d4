// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

namespace quillane {

/// Reads bytes of the 8-bit code page (Windows-1252, its five holes as U+0081, U+008D, U+008F,
/// U+0090 and U+009D), so that every byte has a character of its own.
QString fromCodePage(QByteArrayView bytes);

/// Writes text in the same code page; a character outside it becomes "?".
QByteArray toCodePage(QStringView text);

}  // namespace quillane

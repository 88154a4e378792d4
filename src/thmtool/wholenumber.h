// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>

namespace quillane {

/// The whole number that a text is in decimal digits, with or without a sign; nothing for any other
/// text. A number outside the limits becomes the nearer limit.
std::optional<qint64> wholeNumber(const QString& text, qint64 lowest, qint64 highest);

/// The whole number of a word on the command line, which `name` calls. Throws `UsageError` when it
/// is none from `lowest` to `highest`.
qint64 numberWithin(const QString& text, qint64 lowest, qint64 highest, const QString& name);

}  // namespace quillane

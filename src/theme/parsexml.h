// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "theme/fault.h"

#include <QString>

namespace quillane {

/// Looks up one element in the text of a theme and returns the value of the first tag that answers
/// to the name, or the empty text. A text scanner, no XML parser: comments, root and declaration
/// play no part. A colour's value loses its first two characters, the "0x".
///
/// A match that no "/>" follows is reported to `report` as a fault, and the scan goes on; so is a
/// tag that no text in double quotes follows, which reads as empty. An empty name finds nothing.
/// Time and memory are in proportion to the text.
QString ParseXML(const QString& name, const QString& themeXml, const FaultReporter& report);

}  // namespace quillane

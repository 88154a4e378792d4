// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace quillane {

/// Reads a value of an INI file in the 8-bit code page: sections in brackets, one key=value a line,
/// names in any letter case, the first match counting. Values are trimmed of blanks and one pair of
/// quotes and cut at 254 characters. A missing file, section or key gives `standard`.
QString ReadIni(const QString& section, const QString& key, const QString& standard,
                const QString& file);

/// Writes a value where `ReadIni` finds it; every other line of the file stays as it is. The file
/// and its folder are made where missing. Throws `Fault`; the former file is then still there.
void WriteIni(const QString& section, const QString& key, const QString& value,
              const QString& file);

/// The text of an INI file with a value where `iniValue` finds it, every line ended by CR LF that
/// is new.
QString withIniValue(const QString& text, const QString& section, const QString& key,
                     const QString& value);

/// What `ReadIni` gives, from the text of an INI file that is read already, for whoever asks for
/// many values.
QString iniValue(const QString& text, const QString& section, const QString& key,
                 const QString& standard);

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace quillane {

/// The folders outside the program's settings; none ends with a separator.
struct Places {
  QString programFolder;  ///< The user's own: work area, themes, palettes, language files.
  QString shippedFolder;  ///< What the installation brings, copied into the former.
  QString systemFolder;   ///< Where the programs of the system lie.
  QString settingsFile;   ///< The INI file of the user settings.
};

/// The folder of the help pages below `Places::shippedFolder`, ending in a separator.
inline constexpr QLatin1String kHelpFolder{"help/"};

/// The places of this desktop: the program's folder is $QUILLANE_HOME or
/// $XDG_DATA_HOME/quillane, the shipped files lie in ../share/quillane beside the program.
Places placesOfDesktop(const QString& applicationFolder);

/// Path of the first program in `systemFolder` that sends files to a phone when it is started with
/// their paths; empty when there is none.
QString findSender(const QString& systemFolder);

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLatin1String>
#include <QString>

class QWidget;

namespace quillane {

class Dialogs;
struct PublicState;

/// The kinds of files that hold the XML of a theme, as a file dialog offers them.
inline constexpr QLatin1String kSourceFilter("XML file (*.xml)|*.xml|Text file (*.txt)|*.txt");

/// Asks where to export the XML of a theme to, offering a file name or a pattern, and keeps the
/// folder as `ExportFolder`. Throws `Fault` (DialogCancelled) when the person cancels.
QString askExportPath(QWidget* owner, Dialogs& dialogs, PublicState& state, const QString& offered);

}  // namespace quillane

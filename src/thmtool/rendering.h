// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preview/border.h"
#include "shell/settings.h"

#include <QDateTime>
#include <QImage>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace quillane {

struct OpenedTheme;

/// What a rendering shows beside the theme: the state of the phone, its texts, and the frame.
struct RenderSettings {
  MemorySettings phone;  ///< Preview settings; those not written have their defaults.
  QString languageFile;  ///< Texts of the screens; empty for the built-in ones.
  std::optional<QDateTime> now;
  std::optional<quint32> seed;
  bool infrared = false;
  bool images = true;  ///< Paint images; 3G only.
  Border border = Border::None;
};

/// A painted screen; `fault` tells what ended the painting early, empty when nothing did.
struct RenderedScreen {
  QString id;
  QString caption;
  QImage image;
  QString fault;
};

/// Paints the screens of a theme, each on a surface of its own: those with the given ids in their
/// order, or all. Faults in the settings go to `report`. Throws `UsageError` for an unknown id.
std::vector<RenderedScreen> renderScreens(const OpenedTheme& theme, const RenderSettings& settings,
                                          const QStringList& ids, const FaultReporter& report);

/// The picture with each pixel `factor` times as wide and high.
QImage magnified(const QImage& image, int factor);

/// Writes a PNG file beside its place and renames it over what was there. Throws `Fault`.
void savePng(const QImage& image, const QString& path);

}  // namespace quillane

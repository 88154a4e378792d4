// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "theme/fault.h"

#include <QSize>
#include <QString>

namespace quillane {

class PreviewWorld;
class SettingsStore;
struct Places;
struct PublicState;

/// What the start needs of a screen.
class StartScreen {
 public:
  virtual ~StartScreen() = default;

  /// Size of the screen in pixels.
  virtual QSize screenSize() = 0;
  /// Shows a message with the stop icon and no title.
  virtual void stop(const QString& text) = 0;
  /// Shows the splash without waiting.
  virtual void showSplash() = 0;
  /// Sets the splash's status line.
  virtual void setStatus(const QString& text) = 0;
  /// Makes and shows the browser; `state` is filled by then.
  virtual void loadBrowser() = 0;
  virtual void unloadSplash() = 0;
};

/// The start of the program after it has made sure to be alone: checks the screen, prepares the
/// work folder, reads the settings, makes and fills the four engines, and loads the browser.
/// Returns false when the screen is too small to go on. Faults on the way go to `report`.
bool Main(PublicState& state, const SettingsStore& settings, const Places& places,
          PreviewWorld& world, StartScreen& screen, const FaultReporter& report);

}  // namespace quillane

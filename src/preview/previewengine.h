// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preview/bounded.h"
#include "theme/values.h"

#include <QString>

namespace quillane {

class PreviewWorld;
class Surface;

/// What the preview engines of both generations share: the values of a theme and the phone's state.
/// An engine paints its screens on the surface that it was given last. It knows nothing of archives
/// and XML.
class PreviewEngine {
 public:
  virtual ~PreviewEngine() = default;

  /// Where the next Draw operation paints; set before each. The surface outlives the drawing.
  void setSurface(Surface& surface) { surface_ = &surface; }

  /// Colours and images by their index in the generation's schema.
  const QString& color(int which) const { return values_.color(which); }
  /// An empty text stores the colour's default where the generation says so.
  void setColor(int which, const QString& rgb) { values_.setColor(which, rgb); }
  const QString& image(int which) const { return values_.image(which); }
  void setImage(int which, const QString& path) { values_.setImage(which, path); }

  /// All colours and images.
  const ThemeValues& values() const { return values_; }
  /// Takes over a loaded theme of the engine's generation.
  virtual void takeTheme(const ThemeValues& values) { values_ = values; }
  /// The reset between two themes: default colours, no images. The phone stays as it is.
  virtual void DefaultColors() { values_.reset(); }

  QString OperatorName;
  QString TimeFormat;
  Bounded<0, 5, 5> SignalStrength;
  Bounded<0, 10, 10> BatteryLevel;
  Bounded<0, 1, 1> GPRSRange;
  bool ShowGPRSIcon = false;

 protected:
  /// Starts with the default colours and no images. `world` outlives the engine.
  PreviewEngine(Generation generation, PreviewWorld& world) : world_(&world), values_(generation) {}

  PreviewWorld* world_;
  Surface* surface_ = nullptr;
  ThemeValues values_;
};

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preview/world.h"
#include "shell/state.h"

namespace quillane {

/// A whole number from 1 to `highest`, from random numbers seeded anew.
inline int randomUpTo(int highest, PreviewWorld& world) {
  world.reseed();
  return static_cast<int>(world.random() * highest + 1);
}

/// The signal that a standby screen shows next; the setter turns 6 into 5.
template <typename Engine>
void stepSignal(Engine& engine, const PublicState& state, PreviewWorld& world) {
  if (state.ActiveSignal) engine.SignalStrength = randomUpTo(6, world);
}

/// The desktop icon that is selected next, from 1 to `highest`.
template <typename Engine>
void stepDesktopIcon(Engine& engine, int highest, const PublicState& state, PreviewWorld& world) {
  if (state.ActiveDesktop) engine.DesktopIcon = randomUpTo(highest, world);
}

/// Steps the part of the simulated phone that a screen shows, before it is painted.
template <typename Engine>
void stepPhone(QLatin1String screen, Engine& engine, int highestDesktopIcon,
               const PublicState& state, PreviewWorld& world) {
  if (screen == QLatin1String("standby")) stepSignal(engine, state, world);
  if (screen == QLatin1String("desktop")) stepDesktopIcon(engine, highestDesktopIcon, state, world);
}

/// Counts a load and lets the battery of a generation fall by one in ten of them.
template <typename Engine>
void stepBattery(Engine& preview, Engine& editor, PublicState& state) {
  if (!state.ActiveBattery) return;
  if (state.ThemeLoadCount == 0) preview.BatteryLevel = 10;
  ++state.ThemeLoadCount;
  if (state.ThemeLoadCount <= 10) return;
  preview.BatteryLevel = preview.BatteryLevel - 1;
  editor.BatteryLevel = preview.BatteryLevel;
  state.ThemeLoadCount = 1;
}

}  // namespace quillane

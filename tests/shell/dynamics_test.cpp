// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/dynamics.h"

#include "support/stillworld.h"

#include <gtest/gtest.h>

namespace quillane {

namespace {

class Dynamics : public testing::Test {
 protected:
  void load(int times) {
    for (int load = 0; load < times; ++load)
      stepBattery(preview, editor, state);
  }

  StillWorld world;
  PublicState state;
  clsVistrel preview{world};
  clsVistrel editor{world};
};

TEST_F(Dynamics, BatteryFallsOnceInTenLoads) {
  preview.BatteryLevel = 3;
  load(1);
  EXPECT_EQ(preview.BatteryLevel, 10);
  load(9);
  EXPECT_EQ(preview.BatteryLevel, 10);
  load(1);
  EXPECT_EQ(preview.BatteryLevel, 9);
  EXPECT_EQ(editor.BatteryLevel, 9);
  load(10);
  EXPECT_EQ(preview.BatteryLevel, 8);
  load(9 * 10);
  EXPECT_EQ(preview.BatteryLevel, 10) << "below zero the setter starts again";
}

TEST_F(Dynamics, SwitchedOffNothingMoves) {
  state.ActiveBattery = state.ActiveSignal = state.ActiveDesktop = false;
  preview.BatteryLevel = 3;
  preview.SignalStrength = 2;
  preview.DesktopIcon = 4;
  load(11);
  stepSignal(preview, state, world);
  stepDesktopIcon(preview, 9, state, world);
  EXPECT_EQ(preview.BatteryLevel, 3);
  EXPECT_EQ(preview.SignalStrength, 2);
  EXPECT_EQ(preview.DesktopIcon, 4);
  EXPECT_EQ(state.ThemeLoadCount, 0);
}

TEST_F(Dynamics, RandomNumbersReachBothEnds) {
  world.nextRandom = 0;
  stepSignal(preview, state, world);
  stepDesktopIcon(preview, 9, state, world);
  EXPECT_EQ(preview.SignalStrength, 1);
  EXPECT_EQ(preview.DesktopIcon, 1);
  world.nextRandom = 0.999;
  stepSignal(preview, state, world);
  stepDesktopIcon(preview, 9, state, world);
  EXPECT_EQ(preview.SignalStrength, 5) << "6 becomes 5";
  EXPECT_EQ(preview.DesktopIcon, 9);
  EXPECT_EQ(world.reseeded, 4);
}

}  // namespace

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preview/world.h"

#include <random>

namespace quillane {

/// A world that stands still on Saturday 14 June 2003, 09:41, and speaks English. Its random number
/// is the one told, or, below zero, the next of a fixed row.
class StillWorld : public PreviewWorld {
 public:
  QDateTime time{QDate(2003, 6, 14), QTime(9, 41)};
  double nextRandom = 0;
  int reseeded = 0;

  QDateTime now() override { return time; }
  void reseed() override { ++reseeded; }
  double random() override {
    return nextRandom < 0 ? static_cast<double>(row_()) / 4294967296.0 : nextRandom;
  }
  QLocale locale() const override { return QLocale::c(); }

 private:
  std::mt19937 row_{1};
};

}  // namespace quillane

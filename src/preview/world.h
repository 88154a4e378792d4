// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QLocale>

namespace quillane {

/// What the painted screens take from outside, so that a test can hold it still.
class PreviewWorld {
 public:
  virtual ~PreviewWorld() = default;

  /// The present date and time.
  virtual QDateTime now() = 0;
  /// Seeds the random numbers anew.
  virtual void reseed() = 0;
  /// The next random number in [0, 1).
  virtual double random() = 0;
  /// Gives the short names of months and days.
  virtual QLocale locale() const = 0;
};

}  // namespace quillane

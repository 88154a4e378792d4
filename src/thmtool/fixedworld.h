// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preview/world.h"

#include <QRandomGenerator>

#include <optional>

namespace quillane {

/// A world that stands still: one moment, random numbers that repeat, English names.
class FixedWorld : public PreviewWorld {
 public:
  /// Without `now` the moment is the present one, without `seed` the numbers are truly random.
  FixedWorld(const std::optional<QDateTime>& now, std::optional<quint32> seed)
      : now_(now.value_or(QDateTime::currentDateTime())),
        seed_(seed.value_or(QRandomGenerator::global()->generate())),
        random_(seed_) {}

  /// Begins the random numbers again, so that no screen depends on those painted before it.
  void restart() { random_.seed(seed_); }

  QDateTime now() override { return now_; }
  /// Goes on with the numbers of the seed: beginning again would give each row the same one.
  void reseed() override {}
  double random() override { return random_.generateDouble(); }
  QLocale locale() const override { return QLocale::c(); }

 private:
  QDateTime now_;
  quint32 seed_;
  QRandomGenerator random_;
};

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preview/world.h"

#include <QRandomGenerator>

namespace quillane {

/// The clock, the random numbers and the language of the user's machine.
class SystemWorld : public PreviewWorld {
 public:
  QDateTime now() override { return QDateTime::currentDateTime(); }
  // Filling the whole state from the system takes longer than painting a screen.
  void reseed() override { random_.seed(QRandomGenerator::global()->generate()); }
  double random() override { return random_.generateDouble(); }
  QLocale locale() const override { return QLocale::system(); }

 private:
  QRandomGenerator random_;
};

}  // namespace quillane

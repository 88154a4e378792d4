// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "theme/fault.h"

#include <QString>
#include <QStringList>
#include <gtest/gtest.h>

#include <ostream>

/// Shows Qt's texts in the messages of GoogleTest.
inline void PrintTo(const QString& text, std::ostream* out) {
  *out << '"' << text.toStdString() << '"';
}
inline void PrintTo(const QByteArray& bytes, std::ostream* out) {
  *out << '"' << bytes.toPercentEncoding(" <>\"=/").toStdString() << '"';
}

namespace quillane {

/// Keeps the descriptions of the faults that are reported to it.
class FaultLog {
 public:
  FaultReporter reporter() {
    return [this](const Fault& fault) { texts_ += fault.description(); };
  }
  const QStringList& texts() const { return texts_; }

 private:
  QStringList texts_;
};

/// The number of the fault that a step throws, 0 for none.
template <typename Step>
int faultNumberOf(Step&& step) {
  try {
    step();
  } catch (const Fault& fault) {
    return static_cast<int>(fault.number());
  }
  return 0;
}

}  // namespace quillane

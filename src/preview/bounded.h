// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace quillane {

/// A whole number of an engine that accepts `Low` to `High`; any other value becomes `Otherwise`.
/// It is 0 until it is first set.
template <int Low, int High, int Otherwise>
class Bounded {
 public:
  Bounded& operator=(int value) {
    value_ = value >= Low && value <= High ? value : Otherwise;
    return *this;
  }
  operator int() const { return value_; }

 private:
  int value_ = 0;
};

/// A text of an engine whose empty value stands for a fixed one. It is empty until it is first set.
class DefaultedText {
 public:
  explicit DefaultedText(QString standard) : standard_(std::move(standard)) {}
  DefaultedText& operator=(const QString& text) {
    text_ = text.isEmpty() ? standard_ : text;
    return *this;
  }
  operator const QString&() const { return text_; }

 private:
  QString standard_;
  QString text_;
};

}  // namespace quillane

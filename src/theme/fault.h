// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <exception>
#include <functional>

namespace quillane {

/// Numbers of the faults that somebody tells apart.
enum class FaultNumber : int {
  BadCall = 5,
  BadIndex = 9,
  BadNumber = 13,
  BadFileName = 52,
  FileNotFound = 53,
  DeviceFault = 57,
  FileAlreadyThere = 58,
  DiskFull = 61,
  NoPermission = 70,
  ResourceNotFound = 326,
  BadPicture = 481,
  InvalidPaletteFile = static_cast<int>(0x80040001),
  InvalidColorCount = static_cast<int>(0x80040002),
  InvalidPalette = static_cast<int>(0x80040003),
  DialogCancelled = 32755,  ///< A common dialog was cancelled; passed over in silence.
};

/// A step that failed: what is wrong, in words for the user, and the line that found it.
class Fault : public std::exception {
 public:
  /// The caller's line comes by itself. (A `std::source_location` is not known to every compiler
  /// that we build with.)
  Fault(FaultNumber number, QString description, int line = __builtin_LINE());

  FaultNumber number() const { return number_; }
  const QString& description() const { return description_; }
  int line() const { return line_; }
  const char* what() const noexcept override { return what_.constData(); }

 private:
  FaultNumber number_;
  QString description_;
  QByteArray what_;
  int line_;
};

/// Takes the faults that a library operation reports and goes on after.
using FaultReporter = std::function<void(const Fault&)>;

/// Runs one step of an operation that ignores errors: a `Fault` ends the step alone.
template <typename Step>
void skipOnFault(Step&& step) {
  try {
    step();
  } catch (const Fault&) {  // The ignoring itself.
  }
}

}  // namespace quillane

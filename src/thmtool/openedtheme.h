// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "theme/archive.h"
#include "theme/fault.h"
#include "theme/load.h"

#include <QTemporaryDir>

#include <exception>
#include <utility>

namespace quillane {

/// A theme that cannot be shown, in the words of the program's window.
class UnreadableTheme : public std::exception {
 public:
  UnreadableTheme(QString path, ThemeError error)
      : path_(std::move(path)), error_(std::move(error)) {}

  const ThemeError& error() const { return error_; }
  /// One line for the error stream.
  QString complaint() const;
  const char* what() const noexcept override { return "unreadable theme"; }

 private:
  QString path_;
  ThemeError error_;
};

/// A theme file extracted and loaded; its images lie in `folder`, which ends with the object.
struct OpenedTheme {
  QTemporaryDir folder;
  QString fileName{};  ///< Bare name of the theme file.
  QList<ArchiveMember> members{};
  LoadedTheme theme{};
  ImageStates states{};

  Generation generation() const { return theme.values.schema().generation; }
};

/// Extracts a theme into `folder`; returns the members. Throws `UnreadableTheme`.
QList<ArchiveMember> extractTheme(const QString& path, const QString& folder);

/// Opens a theme file as the window does. Faults in its text go to `report`.
/// Throws `UnreadableTheme`, or `Fault` when there is no place to extract to.
OpenedTheme openTheme(const QString& path, const FaultReporter& report);

}  // namespace quillane

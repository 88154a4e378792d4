// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <exception>
#include <ostream>

namespace quillane {

/// How a run of the tool ends; the numbers are its exit status.
enum ExitStatus : int {
  AllWell = 0,
  NotDone = 1,     ///< Something could not be read, painted or written, or `check` has findings.
  WrongUsage = 2,  ///< The command line makes no sense.
};

/// Where a run of the tool writes. Texts leave in the encoding of the locale.
class Streams {
 public:
  /// `speaker` begins each complaint, as in "thmtool render".
  Streams(std::ostream& out, std::ostream& err, QString speaker)
      : out_(out), err_(err), speaker_(std::move(speaker)) {}

  void print(const QString& text) const { write(text.toLocal8Bit()); }
  /// Bytes as they are.
  void write(const QByteArray& bytes) const { out_.write(bytes.constData(), bytes.size()); }
  /// One printable line on the error stream.
  void complain(const QString& text) const;
  /// Pushes out what was written; false when it did not arrive.
  bool flush() const { return static_cast<bool>(out_.flush()); }

 private:
  std::ostream& out_;
  std::ostream& err_;
  QString speaker_;
};

/// The text with the characters replaced that steer a terminal, begin a line or turn the direction
/// of writing, so that a name made by a stranger does none of it.
QString printable(QString text);

/// Ends a verb whose command line makes no sense; `text` says what is wrong with it.
class UsageError : public std::exception {
 public:
  explicit UsageError(QString text) : text_(std::move(text)) {}

  const QString& text() const { return text_; }
  const char* what() const noexcept override { return "wrong usage"; }

 private:
  QString text_;
};

/// Runs the tool with the words behind its name and returns its exit status.
int runTool(const QStringList& arguments, std::ostream& out, std::ostream& err);

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace quillane {

/// While it lives, a variable of the environment has another value.
class WithVariable {
 public:
  WithVariable(const char* name, const QString& value) : name_(name) {
    if (qEnvironmentVariableIsSet(name)) before_ = qgetenv(name);
    qputenv(name, value.toUtf8());
  }
  ~WithVariable() {
    if (before_)
      qputenv(name_, *before_);
    else
      qunsetenv(name_);
  }
  Q_DISABLE_COPY(WithVariable)

 private:
  const char* name_;
  std::optional<QByteArray> before_;
};

}  // namespace quillane

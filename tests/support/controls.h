// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QWidget>

#include <stdexcept>

namespace quillane {

/// A control of a form, by its name. Throws when there is none.
template <class Control>
Control& controlOf(const QWidget& form, const QString& name) {
  auto* found = form.findChild<Control*>(name);
  if (!found) throw std::runtime_error("no control " + name.toStdString());
  return *found;
}

}  // namespace quillane

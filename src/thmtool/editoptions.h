// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "theme/tags.h"
#include "thmtool/verbs.h"

#include <QList>

namespace quillane {

/// The options of the verbs that save a theme.
extern const std::span<const OptionRow> kEditOptions;

/// A value on the command line and what it is for: "ELEMENT=TEXT".
struct Assignment {
  QString element;
  QString text;
};

/// What the options ask for, in the order given: a later one of the same element wins.
struct EditOptions {
  QList<Assignment> colors;  ///< Six hexadecimal digits, or nothing.
  QList<Assignment> images;  ///< Paths, or nothing for an empty slot.
  QList<Assignment> tags;
  bool includeIndex = true;
  bool compress = true;
  bool writeTags = true;
};

/// Reads the options. Throws `UsageError` for what makes no sense in any theme.
EditOptions readEditOptions(const QCommandLineParser& given);

/// Place in a table of the row that has this name on the wire, -1 for none.
template <typename Rows>
int rowOfElement(const Rows& rows, const QString& element) {
  int place = 0;
  for (const auto& row : rows) {
    if (row.element == element) return place;
    ++place;
  }
  return -1;
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPlainTextEdit>

namespace quillane {

/// Shows a text whose parts can be selected and copied, by keys too, but not changed. While it has
/// the focus, the keys that select all and copy are its own; all other shortcuts stay the form's.
class SourceView : public QPlainTextEdit {
 public:
  explicit SourceView(QWidget* parent = nullptr);

 protected:
  bool event(QEvent* event) override;
};

}  // namespace quillane

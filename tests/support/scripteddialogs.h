// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "forms/dialogs.h"

#include <QList>
#include <QString>
#include <gtest/gtest.h>

#include <utility>

namespace quillane {

/// Answers dialogs from a script. A dialog that is not next in the script, a text that is not the
/// expected one, and an answer that nobody asked for fail the test.
class ScriptedDialogs : public Dialogs {
 public:
  ~ScriptedDialogs() override {
    for (const auto& [text, answer] : script_)
      ADD_FAILURE() << "not asked: " << text.toStdString();
  }

  int beeps = 0;

  /// With a "*" at its end only the part of the text before that counts.
  void expectMessage(const QString& text) { script_.push_back({text, {}}); }
  void expectFolder(const QString& prompt, const QString& answer) {
    script_.push_back({prompt, answer});
  }

  void message(QWidget*, MessageIcon, const QString&, const QString& text) override { take(text); }
  QString chooseFolder(QWidget*, const QString& prompt, const QString&) override {
    return take(prompt);
  }
  void beep() override { ++beeps; }

 private:
  QString take(const QString& text) {
    const auto [expected, answer] =
        script_.isEmpty() ? std::pair<QString, QString>() : script_.takeFirst();
    if (!expected.endsWith('*') ? text != expected : !text.startsWith(expected.chopped(1)))
      ADD_FAILURE() << "unexpected dialog: " << text.toStdString();
    return answer;
  }

  QList<std::pair<QString, QString>> script_;
};

}  // namespace quillane

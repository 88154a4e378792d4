// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "forms/dialogs.h"

#include <gtest/gtest.h>

#include <deque>

namespace quillane {

/// Answers dialogs from a script. A dialog that is not next in the script, a text that is not the
/// expected one, and an answer that nobody asked for fail the test.
class ScriptedDialogs : public Dialogs {
 public:
  ~ScriptedDialogs() override {
    for (const Step& step : script_)
      ADD_FAILURE() << "not asked: " << step.text.toStdString();
  }

  int beeps = 0;

  void expectMessage(const QString& text) { script_.push_back({Kind::Message, text, {}}); }
  void expectFolder(const QString& prompt, const QString& answer) {
    script_.push_back({Kind::Folder, prompt, answer});
  }

  void message(QWidget*, MessageIcon, const QString&, const QString& text) override {
    take(Kind::Message, text);
  }
  QString chooseFolder(QWidget*, const QString& prompt, const QString&) override {
    return take(Kind::Folder, prompt);
  }
  void beep() override { ++beeps; }

 private:
  enum class Kind { Message, Folder };
  struct Step {
    Kind kind;
    QString text;  ///< With a "*" at its end only the part before that counts.
    QString answer;
  };

  static bool matches(const QString& expected, const QString& text) {
    return expected.endsWith('*') ? text.startsWith(expected.chopped(1)) : text == expected;
  }

  QString take(Kind kind, const QString& text) {
    if (script_.empty() || script_.front().kind != kind || !matches(script_.front().text, text)) {
      ADD_FAILURE() << "unexpected dialog: " << text.toStdString();
      return {};
    }
    const QString answer = script_.front().answer;
    script_.pop_front();
    return answer;
  }

  std::deque<Step> script_;
};

}  // namespace quillane

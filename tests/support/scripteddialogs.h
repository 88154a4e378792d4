// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "forms/clsopensave.h"
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

  /// A file dialog, told by its title; an empty path cancels it. Afterwards `lastFile` holds how
  /// the dialog was filled.
  void expectFile(const QString& title, const QString& path, int filterIndex = 1) {
    script_.push_back({title, path});
    filterIndex_ = filterIndex;
  }
  /// The colour dialog, told by the colour it begins with as RRGGBB; an empty answer cancels it.
  void expectColor(const QString& initial, const QString& answer) {
    script_.push_back({"colour " + initial, answer});
  }

  /// A file dialog's fields before its answer.
  struct FileFields {
    FileQuestion question;
    QString folder, fileName, extension, filter;
  };
  FileFields lastFile{};
  CustomColors customColors{};  ///< What the last colour dialog was given.

  void message(QWidget*, MessageIcon, const QString&, const QString& text) override { take(text); }
  QString chooseFolder(QWidget*, const QString& prompt, const QString&) override {
    return take(prompt);
  }
  bool chooseFile(QWidget*, clsOpenSave& request, FileQuestion question) override {
    lastFile = {question, request.InitDir, request.FileName, request.DefaultExt, request.Filter};
    const QString path = take(request.DialogTitle);
    if (path.isEmpty()) return false;
    request.FileName = path;
    request.FilterIndex = filterIndex_;
    return true;
  }
  std::optional<ColorValue> chooseColor(QWidget*, ColorValue initial,
                                        CustomColors& custom) override {
    customColors = custom;
    const QString answer = take("colour " + ColorToHtml(QString::number(initial)));
    if (answer.isEmpty()) return {};
    return colorValueOf(answer);
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
  int filterIndex_ = 1;
};

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "forms/clsopensave.h"
#include "forms/dialogs.h"

#include <QList>
#include <QString>
#include <QUrl>
#include <gtest/gtest.h>

#include <utility>

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

  /// With a "*" at its end only the part of the text before that counts.
  void expectMessage(const QString& text) { script_.push_back({"message", text}); }
  void expectFolder(const QString& prompt, const QString& answer) {
    script_.push_back({"folder", prompt, answer});
  }

  /// A question, answered by the caption of a button. Afterwards `lastQuestion` holds it.
  void expectQuestion(const QString& text, const QString& button, bool ticked = false) {
    script_.push_back({.kind = "question", .text = text, .answer = button, .ticked = ticked});
  }
  void expectPage(const QString& address) { script_.push_back({"page", address, {}}); }

  /// A file dialog, told by its title; an empty path cancels it. Afterwards `lastFile` holds how
  /// the dialog was filled.
  void expectFile(const QString& title, const QString& path, int filterIndex = 1) {
    script_.push_back({"file", title, path, filterIndex});
  }
  /// The colour dialog, told by the colour it begins with as RRGGBB; an empty answer cancels it.
  void expectColor(const QString& initial, const QString& answer) {
    script_.push_back({"colour", initial, answer});
  }

  /// A file dialog's fields before its answer.
  struct FileFields {
    FileQuestion question;
    QString folder, fileName, extension, filter;
  };
  FileFields lastFile{};
  bool opensPages = true;
  Question lastQuestion{};
  QString lastFolder;           ///< Where the last folder dialog began.
  CustomColors customColors{};  ///< What the last colour dialog was given.

  void message(QWidget*, MessageIcon, const QString&, const QString& text) override {
    take("message", text);
  }
  Answer ask(QWidget*, const Question& question) override {
    lastQuestion = question;
    const Step step = take("question", question.text);
    const auto button = question.buttons.indexOf(step.answer);
    EXPECT_GE(button, 0) << "no button " << step.answer.toStdString();
    EXPECT_TRUE(!step.ticked || !question.checkBox.isEmpty()) << "nothing to tick";
    return {static_cast<int>(button), step.ticked};
  }
  QString BrowseForFolder(QWidget*, const QString& startFolder, const QString& prompt) override {
    lastFolder = startFolder;
    return take("folder", prompt).answer;
  }
  bool openPage(const QUrl& page) override {
    take("page", page.toString());
    return opensPages;
  }
  bool chooseFile(QWidget*, clsOpenSave& request, FileQuestion question) override {
    lastFile = {question, request.InitDir, request.FileName, request.DefaultExt, request.Filter};
    const Step step = take("file", request.DialogTitle);
    if (step.answer.isEmpty()) return false;
    request.FileName = step.answer;
    request.FilterIndex = step.filterIndex;
    return true;
  }
  std::optional<ColorValue> chooseColor(QWidget*, ColorValue initial,
                                        CustomColors& custom) override {
    customColors = custom;
    const QString answer = take("colour", ColorToHtml(QString::number(initial))).answer;
    if (answer.isEmpty()) return {};
    return colorValueOf(answer);
  }
  void beep() override { ++beeps; }

 private:
  struct Step {
    QString kind;
    QString text;
    QString answer{};
    int filterIndex = 1;
    bool ticked = false;
  };

  Step take(const QString& kind, const QString& text) {
    Step step = script_.isEmpty() ? Step{} : script_.takeFirst();
    const bool fits =
        step.kind == kind &&
        (step.text.endsWith('*') ? text.startsWith(step.text.chopped(1)) : text == step.text);
    if (!fits) ADD_FAILURE() << "unexpected " << kind.toStdString() << ": " << text.toStdString();
    return step;
  }

  QList<Step> script_;
};

}  // namespace quillane

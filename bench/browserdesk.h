// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "browser/frmbrowser.h"
#include "forms/dialogs.h"
#include "forms/filelistbox.h"
#include "shell/modmain.h"
#include "shell/places.h"
#include "shell/settings.h"
#include "shell/state.h"
#include "shell/systemworld.h"

#include <QFile>
#include <QTemporaryDir>

#include <cstdlib>
#include <memory>

namespace quillane {

/// Nobody is there to answer: a dialog ends the program.
class NoDialogs : public Dialogs {
 public:
  void message(QWidget*, MessageIcon, const QString&, const QString& text) override { end(text); }
  Answer ask(QWidget*, const Question& question) override { return end(question.text), Answer(); }
  QString BrowseForFolder(QWidget*, const QString&, const QString& prompt) override {
    return end(prompt), QString();
  }
  bool chooseFile(QWidget*, clsOpenSave&, FileQuestion) override { return end({}), false; }
  std::optional<ColorValue> chooseColor(QWidget*, ColorValue, CustomColors&) override {
    return end({}), std::nullopt;
  }
  bool openPage(const QUrl&) override { return false; }
  void beep() override {}

 private:
  static void end(const QString& text) { qFatal("unexpected dialog: %s", qPrintable(text)); }
};

/// The browser, started as the program starts it, on a folder of a chosen number of themes: the
/// sample themes over and over.
class BrowserDesk : private StartScreen {
 public:
  explicit BrowserDesk(int themes) {
    const QStringList samples = QDir(QStringLiteral(SAMPLE_THEMES)).entryList({"*.thm"});
    for (int theme = 0; theme < themes; ++theme)
      QFile::copy(QStringLiteral(SAMPLE_THEMES "/") + samples.at(theme % samples.size()),
                  folder() + QStringLiteral("Theme %1.thm").arg(theme, 5, 10, QLatin1Char('0')));
    Main(state_, settings_, places_, world_, *this, [](const Fault&) { std::abort(); });
    browser_->show();
  }

  QString folder() const { return folder_.path() + QLatin1Char('/'); }
  frmBrowser& browser() { return *browser_; }
  FileListBox& list() { return *browser_->findChild<FileListBox*>(QStringLiteral("filFiles")); }

 private:
  QSize screenSize() override { return {1024, 768}; }
  void stop(const QString&) override { std::abort(); }
  void showSplash() override {}
  void setStatus(const QString&) override {}
  void loadBrowser() override {
    state_.BrowseFolder = folder();
    browser_ = std::make_unique<frmBrowser>(state_, settings_, dialogs_, world_, QString());
  }
  void unloadSplash() override {}

  QTemporaryDir folder_;
  QTemporaryDir home_;
  const Places places_{home_.path(), QStringLiteral(SHIPPED_FILES), QStringLiteral("/usr/bin"), {}};
  MemorySettings settings_;
  NoDialogs dialogs_;
  SystemWorld world_;
  PublicState state_;
  std::unique_ptr<frmBrowser> browser_;
};

}  // namespace quillane

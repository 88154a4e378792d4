// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/frmbrowser.h"
#include "forms/dialogs.h"
#include "forms/eventprocedure.h"
#include "forms/formicons.h"
#include "forms/frmsplash.h"
#include "shell/instance.h"
#include "shell/modmain.h"
#include "shell/places.h"
#include "shell/settings.h"
#include "shell/state.h"
#include "shell/systemworld.h"

#include <QApplication>
#include <QDir>
#include <QLockFile>
#include <QScreen>

#include <memory>

using namespace Qt::StringLiterals;

namespace quillane {

namespace {

/// The screen of the desktop, on which the start shows its splash and then the browser.
class DesktopScreen : public StartScreen {
 public:
  DesktopScreen(Dialogs& dialogs, std::function<std::unique_ptr<frmBrowser>()> makeBrowser)
      : dialogs_(dialogs), makeBrowser_(std::move(makeBrowser)) {}

  QSize screenSize() override { return QGuiApplication::primaryScreen()->size(); }
  void stop(const QString& text) override {
    dialogs_.message(nullptr, MessageIcon::Stop, QString(), text);
  }
  void showSplash() override {
    splash_ = std::make_unique<frmSplash>();
    splash_->show();
    QCoreApplication::processEvents();
  }
  void setStatus(const QString& text) override { splash_->setStatus(text); }
  void loadBrowser() override { browser_ = makeBrowser_(); }
  void unloadSplash() override { splash_.reset(); }

 private:
  Dialogs& dialogs_;
  std::function<std::unique_ptr<frmBrowser>()> makeBrowser_;
  std::unique_ptr<frmSplash> splash_;
  std::unique_ptr<frmBrowser> browser_;
};

/// The command line as one text, as a person typed it: themes with blanks need no quotes.
QString commandLine() {
  return QCoreApplication::arguments().mid(1).join(u' ');
}

int run() {
  DesktopDialogs dialogs;
  const FaultReporter report = [&dialogs](const Fault& fault) {
    showFault(dialogs, nullptr, fault, u"in Quillane.modMain.Main "_s);
  };
  const Places places = placesOfDesktop(QCoreApplication::applicationDirPath());
  QDir().mkpath(places.programFolder);
  QLockFile lock(places.programFolder + "/quillane.lock"_L1);
  SystemWorld world;
  PublicState state;
  try {
    if (!takeInstanceLock(lock)) return 0;
    IniSettings settings(places.settingsFile, report);
    DesktopScreen screen(dialogs, [&] {
      return std::make_unique<frmBrowser>(state, settings, dialogs, world, commandLine());
    });
    if (!Main(state, settings, places, world, screen, report)) return 1;
    return QCoreApplication::exec();
  } catch (const Fault& fault) {
    report(fault);
    return 1;
  }
}

}  // namespace

}  // namespace quillane

int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  QApplication::setApplicationName(u"Quillane"_s);
  QApplication::setDesktopFileName(u"quillane"_s);
  QApplication::setWindowIcon(quillane::programIcon());
  return quillane::run();
}

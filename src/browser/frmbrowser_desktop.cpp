// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
// What leaves the program: sources and images out of a theme, themes to a phone, pages to the
// desktop.
#include "browser/addresses.h"
#include "browser/frmbrowser.h"
#include "browser/frmproperties.h"
#include "browser/panemenus.h"
#include "forms/chourglass.h"
#include "forms/dialogs.h"
#include "forms/frmabout.h"
#include "forms/modshfileoperation.h"
#include "forms/sourcedialog.h"
#include "shell/files.h"
#include "shell/places.h"
#include "shell/state.h"
#include "theme/codepage.h"
#include "theme/files.h"

#include <QDir>
#include <QProcess>
#include <QUrl>

namespace quillane {

using namespace Qt::StringLiterals;

void frmBrowser::btnExport_Click() {
  const QString name = SplitPath(state_.ThemeXmlPath, PathPart::Name);
  const QString path = askExportPath(this, dialogs_, state_, state_.ExportFolder + name);
  const cHourglass wait;
  saveFile(path, toCodePage(xml_));
}

void frmBrowser::mnuPopupItem_Extract() {
  const PaneMenu2& menu = paneMenus2()[static_cast<std::size_t>(state_.CapturePane - 1)];
  extractImage(state_.PreviewEngine2->image(menu.image.value()));
}

void frmBrowser::mnuPopup3Item_Extract(const ExtractItem3G& item) {
  extractImage(state_.PreviewEngine3G->image(item.image));
}

void frmBrowser::extractImage(const QString& image) {
  if (!askFolder(dialogs_, this, u"Extract image to:"_s, state_.ExtractFolder)) return;
  if (image.isEmpty())
    dialogs_.message(this, MessageIcon::Stop, QString(),
                     u"This theme has no such image; there is nothing to extract."_s);
  else
    SHFileCopy(this, dialogs_, {image}, state_.ExtractFolder);
}

void frmBrowser::btnIRSend_Click() {
  const QString sender = findSender(state_.SystemFolder);
  if (sender.isEmpty()) {
    dialogs_.message(this, MessageIcon::Stop, QString(),
                     u"Infrared link not detected on your PC."_s);
    return;
  }
  if (!state_.CtrlDown)
    dialogs_.message(this, MessageIcon::Information, QString(),
                     u"Activate the infrared port in your phone or another device\r\n"
                     "and establish the infrared connection with your PC."_s);
  state_.CtrlDown = false;
  if (!QProcess::startDetached(sender, selectedPaths(), QDir::tempPath()))
    throw Fault(FaultNumber::NoPermission, u"\"%1\" could not be started."_s.arg(sender));
}

void frmBrowser::btnProperties_Click() {
  if (!properties_) properties_ = std::make_unique<frmProperties>(this, state_, dialogs_);
  properties_->exec();
}

void frmBrowser::mnuHelpItem_Contents() {
  const QString contents = state_.HelpFolder + "index.html"_L1;
  if (!FileExists(contents))
    throw Fault(FaultNumber::FileNotFound,
                u"The help page \"%1\" is missing. Installing Quillane again brings it back."_s.arg(
                    contents));
  showPage(QUrl::fromLocalFile(contents));
}

void frmBrowser::mnuHelpItemInternet_HomePage() {
  showPage(QUrl(QLatin1String(kHomePage)));
}

void frmBrowser::mnuHelpItemInternet_Forums() {
  showPage(QUrl(QLatin1String(kForum)));
}

void frmBrowser::showPage(const QUrl& page) {
  if (!dialogs_.openPage(page))
    throw Fault(FaultNumber::FileNotFound,
                u"No program was found that shows \"%1\". Install a web browser, or open the page "
                "in one by hand."_s.arg(page.toDisplayString(QUrl::PreferLocalFile)));
}

void frmBrowser::mnuHelpItem_About() {
  showAbout(this);
}

}  // namespace quillane

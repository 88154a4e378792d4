// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "forms/ctooltips.h"
#include "theme/fault.h"

#include <QMainWindow>

#include <functional>
#include <memory>
#include <span>

class QAction;
class QMenu;
class QUrl;

namespace Ui {
class frmBrowser;
}

namespace quillane {

class Bevel;
class Dialogs;
class PictureBox;
class PreviewWorld;
class SettingsStore;
class frmCaptureWiz;
class frmProperties;
struct ExtractItem3G;
struct PublicState;
struct ThemeError;
template <class Engine>
struct Screen;

/// The main window: the themes of a folder on the left, the screens of the selected one on the
/// right.
class frmBrowser : public QMainWindow {
  Q_OBJECT

 public:
  /// All that is handed in outlives the window. `commandLine` is the path of a theme to select or
  /// of a folder to show, may stand in double quotes and may be empty.
  frmBrowser(PublicState& state, SettingsStore& settings, Dialogs& dialogs, PreviewWorld& world,
             const QString& commandLine);
  ~frmBrowser() override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  /// Runs the procedure of an event, as in "btnHome_Click"; its fault becomes a message.
  void run(QLatin1String event, const std::function<void()>& procedure);

  void connectSignals();
  void connectCommands();
  void connectMenus();
  void connectPanes();
  void Form_Load(const QString& commandLine);
  void Form_Paint(Bevel& bevel);
  void Form_Unload();
  /// True when the key was a command.
  bool Form_KeyDown(const QKeyEvent& key);
  void selectFromCommandLine(const QString& commandLine, const QString& path);

  // Selection (frmbrowser_selection.cpp).
  void filFiles_Click();
  void countSelected();
  void enableForOneTheme();
  void extractTheme();
  void setFailure(const ThemeError& error);
  void showThemeResult();
  void showFailure();
  void showSeveralSelected();
  void mnuEditItem_SelectAll();
  void mnuEditItem_Invert();
  void showSelectedCounts();
  qint64 selectedBytes() const;
  void clearTip();
  void ClearPreview();
  void enableNavigation(bool previous, bool next);
  void enableCopying(bool on);
  void updateMenus();

  // Folders (frmbrowser_folders.cpp).
  void filFiles_PathChange();
  void btnPrev_Click();
  void btnNext_Click();
  void stepTo(int index);
  void btnBrowse_Click();
  void btnHome_Click();
  void btnRefresh_Click();
  void btnDropDown_Click();
  void mnuPopup2Item_Click(QAction* item);
  void addToHistory(const QString& folder);
  void showFolder(const QString& folder);
  void refreshList();
  void showCaption();
  void showThemeCount();

  // Theme files (frmbrowser_files.cpp).
  QStringList selectedPaths() const;
  void btnCopy_Click();
  void btnMove_Click();
  void btnDelete_Click();
  /// Reads the list anew when any of the files is gone from it.
  void refreshWithout(const QStringList& paths);
  /// Goes on after files have left the list.
  void AfterRemoval();
  void StartRename();
  void txtRename_Enter();
  void renameTheme(const QString& name);

  // What leaves the program (frmbrowser_desktop.cpp).
  void btnExport_Click();
  void mnuPopupItem_Extract();
  void mnuPopup3Item_Extract(const ExtractItem3G& item);
  void extractImage(const QString& image);
  void btnIRSend_Click();
  void btnProperties_Click();
  void mnuHelpItem_Contents();
  void mnuHelpItemInternet_HomePage();
  void mnuHelpItemInternet_Forums();
  void mnuHelpItem_About();
  void showPage(const QUrl& page);

  // Panes (frmbrowser_panes.cpp).
  void LoadTheme();
  template <class Engine>
  void drawScreens(Engine& preview, Engine& editor, std::span<const Screen<Engine>> screens,
                   const FaultReporter& report);
  void showXml(const QString& xml);
  void btnViewXML_Click();
  void mnuViewItem_SourceXml();
  void btnClipboardCopy_Click();
  void btnNew_Click();
  void btnEdit_Click();
  void btnPreviewAll_Click();
  void mnuEditItem_Preferences();
  void mnuToolsItem_Capture();
  void mnuToolsItem_ImageWizard();
  void mnuToolsItem_TarWizard();
  /// Opens the capture wizard on the pane of `CapturePane`.
  void showCaptureWizard();
  /// What a pane of the generation on show shows, by its `CapturePane`.
  QImage panePicture(int pane);
  bool isThemeOnShow() const;
  void showPaneMenu2(std::size_t pane, QPoint place);
  void showPaneMenu3G(std::size_t pane, QPoint place);
  void makePaneMenus();

  std::unique_ptr<Ui::frmBrowser> ui_;
  PublicState& state_;
  SettingsStore& settings_;
  Dialogs& dialogs_;
  PreviewWorld& world_;

  int SelectedCount = 0;
  bool ThemeFailed = false;
  QString TipTitle;
  QString TipText;
  TipIcon TipSeverity = TipIcon::None;
  bool InListUpdate = false;
  std::unique_ptr<cTooltips> Tips;
  QString xml_;  ///< Of the XML view, which takes it when it is open.
  bool unloaded_ = false;
  std::unique_ptr<frmCaptureWiz> captureWizard_;  ///< Once it was used.
  std::unique_ptr<frmProperties> properties_;     ///< Once it was used.

  QMenu* mnuPopup_;   ///< Of generation 2's panes.
  QMenu* mnuPopup3_;  ///< Of the 3G panes.
  QMenu* mnuPopup2_;  ///< Folders visited before.
};

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "browser/themefiles.h"
#include "forms/heldfaults.h"

#include <QDialog>

#include <array>
#include <memory>

namespace Ui {
class frmProperties;
}

namespace quillane {

class Bevel;
class Dialogs;
class TabButton;
struct PublicState;

/// What the theme on show holds: its authoring tags, its images and its files, which can be copied
/// out. It is kept once made and filled anew each time that it is shown.
class frmProperties : public QDialog {
  Q_OBJECT

 public:
  /// All that is handed in outlives the window.
  frmProperties(QWidget* owner, PublicState& state, Dialogs& dialogs);
  ~frmProperties() override;

 protected:
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  /// A tab and its page.
  struct Tab {
    TabButton* button;
    QWidget* page;
  };

  void connectSignals();
  void Form_Load();
  void Form_Activate();
  void Form_Paint(Bevel& bevel);
  void btnTabs_Click(std::size_t index);
  void raiseTab(const Tab& tab);
  void lowerTab(const Tab& tab);

  void showFaults();
  void showTags();
  void showImages();

  void filFiles_Click();
  void clearDetails();
  void showDetails(const QString& file);
  void showPreview(FilePreview preview, const QString& path);
  void hidePreviews();
  void placeDetails();
  void btnExtract_Click();
  /// True for the key, which no control is to see.
  bool takeEscape(const QKeyEvent& key);

  std::unique_ptr<Ui::frmProperties> ui_;
  PublicState& state_;
  Dialogs& dialogs_;
  std::array<Tab, 2> tabs_;
  std::size_t ActiveTab = 0;
  ThemeFileNames names_;
  HeldFaults faults_;
  HeldFaults parseFaults_;
  bool escapeDown_ = false;  ///< Escape went down while this window had the keys.
};

}  // namespace quillane

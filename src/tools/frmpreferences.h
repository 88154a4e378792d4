// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "theme/fault.h"

#include <QDialog>

#include <functional>
#include <memory>
#include <span>

class QComboBox;

namespace Ui {
class frmPreferences;
}

namespace quillane {

class Dialogs;
class PreviewWorld;
class SettingsStore;
struct PublicState;
struct SettingControl;

/// What makes the program the one that opens theme files, and what takes that back.
struct FileAssociation {
  std::function<void()> create;
  std::function<void()> remove;
};

/// Edits the settings of the program, page by page. Nothing but the association of theme files
/// takes effect before OK, which writes the settings, fills the public variables and refreshes the
/// four engines.
class frmPreferences : public QDialog {
  Q_OBJECT

 public:
  /// All that is handed in outlives the form.
  frmPreferences(QWidget* owner, PublicState& state, SettingsStore& settings, Dialogs& dialogs,
                 PreviewWorld& world, FileAssociation association);
  ~frmPreferences() override;

  /// Writes everything and closes the form.
  void accept() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  /// Runs the procedure of an event, as in "btnOpen_Click"; its fault becomes a message.
  void run(QLatin1String event, const std::function<void()>& procedure);

  void connectSignals();
  void connectPalette();
  void connectPreviews();
  void Form_Load();
  void lblList_Click(int page);
  void btnBrowse_Folder();
  void btnBrowse_Palette();
  void btnOpen_Click();
  void btnSaveAs_Click();
  void ctrColorPalette_DblClick();
  void btnAssociate_Click(const std::function<void()>& act, const QString& message);
  void cboLanguage_Click(int index);
  void chkDefThmFolder_Click();
  void chkDisableETT_Click();
  void txtOperatorName_Change();
  void showRange();
  /// Shows what the sliders of the phone's state stand for, where their check box is off.
  void showLevels();
  void showQualities();

  // The settings (frmpreferences_settings.cpp).
  void loadSettings();
  void loadLanguages(const FaultReporter& report);
  void loadDateFormats(const FaultReporter& report);
  void btnDefault_Click();
  void writeSettings();
  void writeQualities();
  void fillPublicVariables();
  void refreshEngines();
  /// What the setting of a control is to hold.
  QString valueOf(const SettingControl& row) const;
  void setValue(const SettingControl& row, const QString& value);
  /// The setting of a control, with the form's default.
  QString stored(const SettingControl& row, const FaultReporter& report) const;

  template <class Control>
  Control& control(const char* name) const {
    return *findChild<Control*>(QLatin1String(name));
  }

  std::unique_ptr<Ui::frmPreferences> ui_;
  PublicState& state_;
  SettingsStore& settings_;
  Dialogs& dialogs_;
  PreviewWorld& world_;
  FileAssociation association_;
  int CurrentPage = 0;
};

/// Shows the preferences until the person closes them.
void showPreferences(QWidget* owner, PublicState& state, SettingsStore& settings, Dialogs& dialogs,
                     PreviewWorld& world, FileAssociation association);

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

#include <array>
#include <memory>

namespace Ui {
class frmTARWizard;
}

namespace quillane {

class Dialogs;
struct PublicState;

/// Packs files that a person picks into a theme, in three steps: introduction, list of files, log.
class frmTARWizard : public QDialog {
  Q_OBJECT

 public:
  /// All that is handed in outlives the wizard.
  frmTARWizard(QWidget* owner, PublicState& state, Dialogs& dialogs);
  ~frmTARWizard() override;

 private:
  /// Runs the procedure of an event; its fault becomes a message.
  void run(QLatin1String event, void (frmTARWizard::*procedure)());
  void connectSignals();
  void Form_Load();
  void btnAdd_Click();
  void btnRemove_Click();
  void btnPrev_Click();
  void btnNext_Click();
  /// Shows a step's page and headings.
  void showStep(int step);
  QString askForTheme();
  void createTheme(const QString& themePath);
  QStringList files() const;
  void log(const QString& line);

  std::unique_ptr<Ui::frmTARWizard> ui_;
  PublicState& state_;
  Dialogs& dialogs_;
  int CurrentStep = 0;
};

/// Runs the wizard until the person closes it.
void showTarWizard(QWidget* owner, PublicState& state, Dialogs& dialogs);

}  // namespace quillane

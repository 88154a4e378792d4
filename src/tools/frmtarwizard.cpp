// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/frmtarwizard.h"

#include "forms/bevel.h"
#include "forms/chourglass.h"
#include "forms/clsopensave.h"
#include "forms/dialogs.h"
#include "forms/eventprocedure.h"
#include "forms/formicons.h"
#include "forms/picturefilters.h"
#include "shell/files.h"
#include "shell/state.h"
#include "theme/archive.h"
#include "theme/files.h"
#include "ui_frmtarwizard.h"

#include <QTemporaryDir>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

constexpr PictureKind kPictures[] = {PictureKind::Gif, PictureKind::Jpeg};

enum Step { Introduction, FileList, Result };

struct StepTexts {
  const char* header;
  const char* subheader;
  const char* next;
  int nextPicture;
};

constexpr StepTexts kSteps[] = {
    {"Welcome to TAR Wizard", "Introduction", "&Next", 132},
    {"TAR Wizard - Step 1", "File list", "&Next", 132},
    {"TAR Wizard - Step 2", "Creating theme - TAR archive", "OK", 101},
};

constexpr ButtonPicture kButtonPictures[] = {{"btnCancel", 102}};
constexpr int kPrevious = 134;
constexpr int kPreviousDisabled = 135;
constexpr int kBandPicture = 213;

/// Writes the index of some files into a folder and returns its path. Throws `Fault`.
QString writeIndex(const QTemporaryDir& folder, const QStringList& files) {
  if (!folder.isValid()) throw Fault(FaultNumber::NoPermission, folder.errorString());
  QString path = folder.filePath(u"index.txt"_s);
  saveFile(path, themeIndex(files, IndexEnd::LineEnd));
  return path;
}

}  // namespace

frmTARWizard::frmTARWizard(QWidget* owner, PublicState& state, Dialogs& dialogs)
    : QDialog(owner), ui_(std::make_unique<Ui::frmTARWizard>()), state_(state), dialogs_(dialogs) {
  ui_->setupUi(this);
  connectSignals();
  Form_Load();
}

frmTARWizard::~frmTARWizard() = default;

void frmTARWizard::connectSignals() {
  connect(ui_->area, &FormArea::Paint, this, [this](Bevel& bevel) {
    for (const int y : {61, 312})
      DrawEtchedLine(bevel, width(), y);
  });
  connect(ui_->btnAdd, &QPushButton::clicked, this,
          [this] { run("btnAdd_Click"_L1, &frmTARWizard::btnAdd_Click); });
  connect(ui_->btnNext, &QPushButton::clicked, this,
          [this] { run("btnNext_Click"_L1, &frmTARWizard::btnNext_Click); });
  connect(ui_->btnRemove, &QPushButton::clicked, this, &frmTARWizard::btnRemove_Click);
  connect(ui_->btnPrev, &QPushButton::clicked, this, &frmTARWizard::btnPrev_Click);
  connect(ui_->btnCancel, &QPushButton::clicked, this, &QDialog::reject);
}

void frmTARWizard::run(QLatin1String event, void (frmTARWizard::*procedure)()) {
  eventProcedure(dialogs_, this, u"in Quillane.frmTARWizard.%1 "_s.arg(event),
                 [this, procedure] { (this->*procedure)(); });
}

void frmTARWizard::Form_Load() {
  ui_->Label1->setBackgroundRole(QPalette::Base);
  ui_->Image1->setPixmap(formPixmap(kBandPicture));
  dressButtons(*this, kButtonPictures);
  QIcon previous = formIcon(kPrevious);
  previous.addPixmap(formPixmap(kPreviousDisabled), QIcon::Disabled);
  ui_->btnPrev->setIcon(previous);
  setFixedSize(size());
  showStep(Introduction);
}

void frmTARWizard::showStep(int step) {
  CurrentStep = step;
  QWidget* const pages[] = {ui_->picTab_0, ui_->picTab_1, ui_->picTab_2};
  for (int page = 0; page < static_cast<int>(std::size(pages)); ++page)
    pages[page]->setVisible(page == step);
  const StepTexts& texts = kSteps[step];
  ui_->lblHeader_0->setText(QLatin1String(texts.header));
  ui_->lblHeader_1->setText(QLatin1String(texts.subheader));
  ui_->btnNext->setText(QLatin1String(texts.next));
  ui_->btnNext->setIcon(formIcon(texts.nextPicture));
  ui_->btnPrev->setEnabled(step != Introduction);
}

void frmTARWizard::btnAdd_Click() {
  clsOpenSave dialog(dialogs_);
  dialog.DialogTitle = u"Select file to add"_s;
  dialog.InitDir = state_.TARWizFilesFolder;
  dialog.Filter = u"All files (*.*)|*.*|%1|XML file (*.xml)|*.xml"_s.arg(pictureFilter(kPictures));
  dialog.ShowOpen(this);
  state_.TARWizFilesFolder = SplitPath(dialog.FileName, PathPart::Folder);
  ui_->lstFiles->addItem(dialog.FileName);
  ui_->btnRemove->setEnabled(true);
}

void frmTARWizard::btnRemove_Click() {
  // The keyboard's place in a list is there before anything is marked.
  const QList<QListWidgetItem*> marked = ui_->lstFiles->selectedItems();
  delete (marked.isEmpty() ? ui_->lstFiles->item(ui_->lstFiles->count() - 1) : marked.constFirst());
  ui_->lstFiles->clearSelection();
  ui_->btnRemove->setEnabled(ui_->lstFiles->count() != 0);
}

void frmTARWizard::btnPrev_Click() {
  showStep(CurrentStep - 1);
}

void frmTARWizard::btnNext_Click() {
  if (CurrentStep == Introduction) {
    showStep(FileList);
  } else if (CurrentStep == Result) {
    accept();
  } else if (ui_->lstFiles->count() == 0) {
    dialogs_.message(this, MessageIcon::Warning, QString(),
                     u"Add at least one file to the list."_s);
  } else {
    const QString themePath = askForTheme();
    showStep(Result);
    createTheme(themePath);
  }
}

QString frmTARWizard::askForTheme() {
  clsOpenSave dialog(dialogs_);
  dialog.InitDir = state_.TARWizFilesFolder;
  dialog.DefaultExt = u".thm"_s;
  dialog.Filter = u"Theme files (*.thm)|*.thm"_s;
  dialog.ShowSave(this);
  return dialog.FileName;
}

void frmTARWizard::createTheme(const QString& themePath) {
  QStringList members = files();
  const QTemporaryDir folder;
  if (ui_->chkIndexFile->isChecked()) {
    ui_->txtInfo->setPlainText(u"Creating index.txt file."_s);
    members.prepend(writeIndex(folder, members));
  }
  log(u"Creating file list."_s);
  const cHourglass wait;
  log(u"Creating theme - TAR archive."_s);
  try {
    packArchive(themePath, members);
  } catch (const Fault& fault) {
    tellTerminal(fault);
  }
  log(u"Theme - TAR archive successfuly created."_s);
}

QStringList frmTARWizard::files() const {
  QStringList paths;
  for (int row = 0; row < ui_->lstFiles->count(); ++row)
    paths << ui_->lstFiles->item(row)->text();
  return paths;
}

void frmTARWizard::log(const QString& line) {
  ui_->txtInfo->appendPlainText(line);
}

void showTarWizard(QWidget* owner, PublicState& state, Dialogs& dialogs) {
  frmTARWizard(owner, state, dialogs).exec();
}

}  // namespace quillane

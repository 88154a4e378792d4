// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
// The pages and their controls; what they carry is in frmpreferences_settings.cpp.
#include "tools/frmpreferences.h"

#include "forms/bevel.h"
#include "forms/chourglass.h"
#include "forms/clsopensave.h"
#include "forms/dialogs.h"
#include "forms/eventprocedure.h"
#include "forms/formicons.h"
#include "shell/files.h"
#include "shell/ini.h"
#include "shell/settings.h"
#include "shell/state.h"
#include "tools/frmclrpicker.h"
#include "ui_frmpreferences.h"

#include <QButtonGroup>
#include <QFocusEvent>
#include <QTimer>

#include <iterator>
#include <utility>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

constexpr ButtonPicture kButtonPictures[] = {
    {"btnOK", 101}, {"btnCancel", 102}, {"btnOpen", 129}, {"btnSaveAs", 119}, {"btnDefPal", 126},
};
constexpr int kAssociate = 106;
constexpr int kAssociateDisabled = 107;
constexpr int kRangePicture = 1300;
constexpr int kPaletteSide = 192;

/// A part of the phone's state: the box that lets it change by itself, else its slider, the icon
/// that the slider stands for, and the labels that belong to the slider.
struct Level {
  const char* active;
  const char* slider;
  const char* image;
  int firstPicture;
  const char* labels[2];
};

constexpr Level kLevels[] = {
    {"chkActiveSignal", "ctrSignalSlider", "imgSignal", 1200, {"lblSignalLow", "lblSignalHigh"}},
    {"chkActiveBattery",
     "ctrBatterySlider",
     "imgBattery",
     1100,
     {"lblBatteryLow", "lblBatteryHigh"}},
    {"chkActiveDesktop", "ctrDesktopIcon_0", "imgDesktopIcon_0", 1000, {"lblDesktopNote_0"}},
    {"chkActiveDesktop", "ctrDesktopIcon_1", "imgDesktopIcon_1", 2000, {"lblDesktopNote_1"}},
};

const QString kPaletteFilter = u"PAL - Palette File|*.pal"_s;

clsOpenSave paletteDialog(Dialogs& dialogs, const PublicState& state) {
  clsOpenSave dialog(dialogs);
  dialog.InitDir = state.PalettesFolder;
  dialog.FileName = u"*.pal"_s;
  dialog.DefaultExt = u".pal"_s;
  dialog.Filter = kPaletteFilter;
  return dialog;
}

QString partsOf(ColorValue color) {
  return u"RGB=%1,%2,%3"_s.arg(RedOf(color)).arg(GreenOf(color)).arg(BlueOf(color));
}

}  // namespace

frmPreferences::frmPreferences(QWidget* owner, PublicState& state, SettingsStore& settings,
                               Dialogs& dialogs, PreviewWorld& world, FileAssociation association)
    : QDialog(owner),
      ui_(std::make_unique<Ui::frmPreferences>()),
      state_(state),
      settings_(settings),
      dialogs_(dialogs),
      world_(world),
      association_(std::move(association)) {
  ui_->setupUi(this);
  connectSignals();
  connectPalette();
  connectPreviews();
  Form_Load();
}

frmPreferences::~frmPreferences() = default;

void frmPreferences::run(QLatin1String event, const std::function<void()>& procedure) {
  eventProcedure(dialogs_, this, u"in Quillane.frmPreferences.%1 "_s.arg(event), procedure);
}

void frmPreferences::connectSignals() {
  connect(ui_->area, &FormArea::Paint, this,
          [this](Bevel& bevel) { DrawEtchedLine(bevel, width(), 331); });
  for (int page = 0; auto* label : ui_->picList->findChildren<PageLabel*>()) {
    label->setAccessibleName(label->property("tag").toString() + label->text().trimmed());
    connect(label, &PageLabel::clicked, this, [this, page] { lblList_Click(page); });
    ++page;
  }
  connect(ui_->btnOK, &QPushButton::clicked, this, &QDialog::accept);
  connect(ui_->btnCancel, &QPushButton::clicked, this, &QDialog::reject);
  connect(ui_->btnDefault, &QPushButton::clicked, this, &frmPreferences::btnDefault_Click);
  connect(ui_->btnBrowse_0, &QPushButton::clicked, this,
          [this] { run("btnBrowse_Click"_L1, [this] { btnBrowse_Folder(); }); });
  connect(ui_->btnBrowse_1, &QPushButton::clicked, this,
          [this] { run("btnBrowse_Click"_L1, [this] { btnBrowse_Palette(); }); });
  connect(ui_->btnAssociate_0, &QPushButton::clicked, this, [this] {
    btnAssociate_Click(association_.create, u".thm files are now associated with Quillane."_s);
  });
  connect(ui_->btnAssociate_1, &QPushButton::clicked, this, [this] {
    btnAssociate_Click(association_.remove,
                       u".thm files are no longer associated with Quillane."_s);
  });
  connect(ui_->chkDefThmFolder, &QCheckBox::toggled, this, &frmPreferences::chkDefThmFolder_Click);
  connect(ui_->chkDisableETT, &QCheckBox::toggled, this, &frmPreferences::chkDisableETT_Click);
  connect(ui_->cboLanguage_0, &QComboBox::currentIndexChanged, this,
          [this] { cboLanguage_Click(0); });
  connect(ui_->cboLanguage_1, &QComboBox::currentIndexChanged, this,
          [this] { cboLanguage_Click(1); });
  connect(ui_->txtOperatorName, &QLineEdit::textChanged, this,
          &frmPreferences::txtOperatorName_Change);
  ui_->txtOperatorName->installEventFilter(this);
}

void frmPreferences::connectPalette() {
  connect(ui_->ctrColorPalette, &ColorPalette::DblClick, this,
          &frmPreferences::ctrColorPalette_DblClick);
  connect(ui_->btnOpen, &QPushButton::clicked, this,
          [this] { run("btnOpen_Click"_L1, [this] { btnOpen_Click(); }); });
  connect(ui_->btnSaveAs, &QPushButton::clicked, this,
          [this] { run("btnSaveAs_Click"_L1, [this] { btnSaveAs_Click(); }); });
  connect(ui_->btnDefPal, &QPushButton::clicked, ui_->ctrColorPalette, &ColorPalette::loadBuiltIn);
}

void frmPreferences::connectPreviews() {
  connect(ui_->chkGPRSIcon, &QCheckBox::toggled, this, &frmPreferences::showRange);
  connect(ui_->optRange, &QButtonGroup::idToggled, this, &frmPreferences::showRange);
  for (const Level& level : kLevels) {
    connect(&control<QCheckBox>(level.active), &QCheckBox::toggled, this,
            &frmPreferences::showLevels);
    connect(&control<QSlider>(level.slider), &QSlider::valueChanged, this,
            &frmPreferences::showLevels);
  }
  for (const QSlider* slider : {ui_->ctrJPGSlider, ui_->ctrPNGSlider})
    connect(slider, &QSlider::valueChanged, this, &frmPreferences::showQualities);
}

void frmPreferences::Form_Load() {
  const cHourglass wait;
  lblList_Click(0);
  ui_->lblList_0->setFocus();
  dressButtons(*this, kButtonPictures);
  QIcon associate = formIcon(kAssociate);
  associate.addPixmap(formPixmap(kAssociateDisabled), QIcon::Disabled);
  ui_->btnAssociate_0->setIcon(associate);
  ui_->btnAssociate_1->setIcon(associate);
  for (QButtonGroup* group : {ui_->optTimeFormat, ui_->optRange})
    for (int id = 0; QAbstractButton * button : group->buttons())
      group->setId(button, id++);
  ui_->picList->setBackgroundRole(QPalette::Base);
  ui_->ctrColorPalette->setSide(kPaletteSide);
  ui_->ctrColorPalette->setTip(partsOf);
  ui_->ctrColorPalette->loadBuiltIn();
  loadSettings();
  ui_->lblList_8->setVisible(state_.IViewPresent);
  ui_->lblGroup_2->setVisible(state_.IViewPresent);
  chkDefThmFolder_Click();
  txtOperatorName_Change();
  chkDisableETT_Click();
  showRange();
  showLevels();
  showQualities();
  setFixedSize(size());
}

void frmPreferences::lblList_Click(int page) {
  findChild<QWidget*>(u"picTabs_%1"_s.arg(CurrentPage))->hide();
  CurrentPage = page;
  findChild<QWidget*>(u"picTabs_%1"_s.arg(page))->show();
  auto* label = findChild<PageLabel*>(u"lblList_%1"_s.arg(page));
  label->setChecked(true);
  ui_->lblTitle->setText(label->accessibleName());
}

bool frmPreferences::eventFilter(QObject* watched, QEvent* event) {
  // A click sets the cursor after it has given the focus.
  if (watched == ui_->txtOperatorName && event->type() == QEvent::FocusIn)
    QTimer::singleShot(0, ui_->txtOperatorName, &QLineEdit::selectAll);
  return QDialog::eventFilter(watched, event);
}

void frmPreferences::btnBrowse_Folder() {
  QString folder = ui_->txtDefThmFolder->text();
  if (askFolder(dialogs_, this, u"Select a folder:"_s, folder))
    ui_->txtDefThmFolder->setText(withSeparator(folder));
}

void frmPreferences::btnBrowse_Palette() {
  clsOpenSave dialog = paletteDialog(dialogs_, state_);
  dialog.ShowOpen(this);
  ui_->txtUserPalette->setText(dialog.FileName);
}

void frmPreferences::btnOpen_Click() {
  clsOpenSave dialog = paletteDialog(dialogs_, state_);
  dialog.ShowOpen(this);
  ui_->ctrColorPalette->load(dialog.FileName);
}

void frmPreferences::btnSaveAs_Click() {
  clsOpenSave dialog = paletteDialog(dialogs_, state_);
  dialog.ShowSave(this);
  ui_->ctrColorPalette->save(dialog.FileName);
}

void frmPreferences::ctrColorPalette_DblClick() {
  const int field = ui_->ctrColorPalette->selectedIndex();
  state_.PickerColorIn = static_cast<std::int32_t>(ui_->ctrColorPalette->colorAt(field));
  if (pickColor(this, state_, dialogs_))
    ui_->ctrColorPalette->setColorAt(field, static_cast<ColorValue>(state_.PickerColorOut));
}

void frmPreferences::btnAssociate_Click(const std::function<void()>& act, const QString& message) {
  // The message shows in any case, by design.
  try {
    const cHourglass wait;
    act();
  } catch (const Fault& fault) {
    tellTerminal(fault);
  }
  dialogs_.message(this, MessageIcon::Information, QString(), message);
}

void frmPreferences::cboLanguage_Click(int index) {
  const QString number = QString::number(index);
  const auto& combo = *findChild<QComboBox*>("cboLanguage_"_L1 + number);
  // Without a choice it is the language in force.
  const QString file =
      combo.currentIndex() < 0 ? combo.placeholderText() : combo.currentData().toString();
  const QString path = (index == 1 ? state_.ConfigFolder3G : state_.ConfigFolder2) + file;
  const auto info = [&](const QString& key, const QString& standard) {
    return ReadIni(u"FileInfo"_s, key, standard, path);
  };
  const QString unknown = u"unknown"_s;
  showLine(*findChild<QLabel*>("lblLngVersion_"_L1 + number),
           "Version: "_L1 + info(u"Version"_s, unknown));
  showLine(*findChild<QLabel*>("lblLngAuthor_"_L1 + number),
           "Author: "_L1 + info(u"Author"_s, unknown));
  findChild<QPlainTextEdit*>("txtComment_"_L1 + number)
      ->setPlainText(info(u"Comment"_s, QString()));
}

void frmPreferences::chkDefThmFolder_Click() {
  const bool isDefault = ui_->chkDefThmFolder->isChecked();
  const QString stored = settings_.read(setting::ThemesFolder);
  ui_->txtDefThmFolder->setText(isDefault || stored.isEmpty() ? state_.MyThemesFolder : stored);
  ui_->txtDefThmFolder->setEnabled(!isDefault);
  ui_->btnBrowse_0->setEnabled(!isDefault);
  if (!isDefault && ui_->btnBrowse_0->isVisible()) ui_->btnBrowse_0->setFocus();
}

void frmPreferences::chkDisableETT_Click() {
  const bool on = !ui_->chkDisableETT->isChecked();
  for (QWidget* widget : std::initializer_list<QWidget*>{ui_->txtETTCreator, ui_->txtETTModifiedBy,
                                                         ui_->lblETTCreator, ui_->lblETTModifiedBy})
    widget->setEnabled(on);
}

void frmPreferences::txtOperatorName_Change() {
  if (ui_->txtOperatorName->text().isEmpty())
    ui_->txtOperatorName->setText(QLatin1String(setting::OperatorName.standard));
}

void frmPreferences::showRange() {
  const bool on = ui_->chkGPRSIcon->isChecked();
  for (QAbstractButton* button : ui_->optRange->buttons())
    button->setEnabled(on);
  ui_->imgGPRS->setPixmap(formPixmap(kRangePicture + ui_->optRange->checkedId()));
  ui_->imgGPRS->setVisible(on);
}

void frmPreferences::showLevels() {
  for (const Level& level : kLevels) {
    const bool isFixed = !control<QCheckBox>(level.active).isChecked();
    auto& slider = control<QSlider>(level.slider);
    slider.setEnabled(isFixed);
    for (const char* label : level.labels)
      if (label) control<QLabel>(label).setVisible(isFixed);
    control<QLabel>(level.image)
        .setPixmap(isFixed ? formPixmap(level.firstPicture + slider.value()) : QPixmap());
  }
}

void frmPreferences::showQualities() {
  ui_->lblJPG->setNum(ui_->ctrJPGSlider->value());
  ui_->lblPNG->setNum(ui_->ctrPNGSlider->value());
}

void showPreferences(QWidget* owner, PublicState& state, SettingsStore& settings, Dialogs& dialogs,
                     PreviewWorld& world, FileAssociation association) {
  frmPreferences(owner, state, settings, dialogs, world, std::move(association)).exec();
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/frmclrpicker.h"

#include "forms/clsopensave.h"
#include "forms/dialogs.h"
#include "forms/eventprocedure.h"
#include "forms/formicons.h"
#include "shell/files.h"
#include "shell/settings.h"
#include "shell/state.h"
#include "ui_frmclrpicker.h"

#include <QEvent>
#include <QMenu>
#include <QShowEvent>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

constexpr ColorValue kColorBits = 0xFFFFFF;

constexpr ButtonPicture kButtonPictures[] = {
    {"btnOK", 101},           {"btnCancel", 102},  {"btnOpen", 129},
    {"btnWinCrlPicker", 130}, {"btnPalette", 131},
};

/// A colour value of three parts in the order of a picker's rows.
template <typename PartOf>
ColorValue mixed(PartOf&& partOf) {
  ColorValue color = 0;
  for (std::size_t i = 0; i < 3; ++i)
    color |= static_cast<ColorValue>(partOf(i)) << 8 * i;
  return color;
}

bool isPaletteFault(const Fault& fault) {
  return fault.number() == FaultNumber::InvalidPaletteFile ||
         fault.number() == FaultNumber::InvalidColorCount ||
         fault.number() == FaultNumber::InvalidPalette;
}

CustomColors customColorsOf(const QString& text) {
  CustomColors colors{};
  const QStringList numbers = text.split(u',');
  const qsizetype count = std::min<qsizetype>(numbers.size(), std::ssize(colors));
  for (qsizetype i = 0; i < count; ++i)
    colors[static_cast<std::size_t>(i)] = numbers[i].toUInt() & kColorBits;
  return colors;
}

QString textOf(const CustomColors& colors) {
  QStringList numbers;
  for (const ColorValue color : colors)
    numbers << QString::number(color);
  return numbers.join(u',');
}

}  // namespace

frmClrPicker::frmClrPicker(PublicState& state, Dialogs& dialogs)
    : ui_(std::make_unique<Ui::frmClrPicker>()),
      state_(state),
      dialogs_(dialogs),
      mnuPopup_(new QMenu(this)) {
  ui_->setupUi(this);
  parts_ = {{{ui_->txtRed, ui_->vsbRed, RedOf},
             {ui_->txtGreen, ui_->vsbGreen, GreenOf},
             {ui_->txtBlue, ui_->vsbBlue, BlueOf}}};
  Form_Load();
  connectSignals();
}

frmClrPicker::~frmClrPicker() = default;

void frmClrPicker::connectSignals() {
  for (const Part& part : parts_) {
    connect(part.text, &QLineEdit::textChanged, this, [this, &part] { txtPart_Change(part); });
    connect(part.bar, &QScrollBar::valueChanged, this, [this, &part] { vsbPart_Change(part); });
    part.text->installEventFilter(this);
    part.bar->installEventFilter(this);
  }
  ui_->txtHTML->installEventFilter(this);
  connect(ui_->txtHTML, &QLineEdit::textChanged, this, &frmClrPicker::txtHTML_Change);
  connect(ui_->lblOldColor, &ColorField::clicked, this, &frmClrPicker::lblOldColor_Click);
  connect(ui_->ctrColorPalette, &ColorPalette::Click, this, &frmClrPicker::ctrColorPalette_Click);
  connect(ui_->btnPalette, &QPushButton::clicked, this, &frmClrPicker::btnPalette_Click);
  connect(ui_->btnOpen, &QPushButton::clicked, this, &frmClrPicker::btnOpen_Click);
  connect(ui_->btnWinCrlPicker, &QPushButton::clicked, this, &frmClrPicker::btnWinCrlPicker_Click);
  connect(ui_->btnOK, &QPushButton::clicked, this, &frmClrPicker::accept);
  connect(ui_->btnCancel, &QPushButton::clicked, this, &frmClrPicker::reject);
}

void frmClrPicker::Form_Load() {
  dressButtons(*this, kButtonPictures);
  makeMenu();
  loadBuiltIn();
}

void frmClrPicker::makeMenu() {
  mnuPopup_->setObjectName(u"mnuPopup"_s);
  const QString captions[] = {u"&Default"_s, u"&User defined"_s};
  for (int item = 1; item <= 2; ++item) {
    QAction* const action = mnuPopup_->addAction(captions[item - 1]);
    action->setObjectName(u"mnuPopupSub_%1"_s.arg(item));
    action->setCheckable(true);
    connect(action, &QAction::triggered, this, [this, item] { mnuPopupSub_Click(item); });
    mnuPopupSub_[static_cast<std::size_t>(item - 1)] = action;
  }
  mnuPopupSub_[1]->setEnabled(!state_.UserPalette.isEmpty());
}

void frmClrPicker::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  // One of the desktop's own only brings the window back, for instance from an icon.
  if (event->spontaneous()) return;
  // Hiding the window has moved the focus on from where it was.
  ui_->ctrColorPalette->setFocus();
  Form_Activate();
}

// The window outlasts its owners, so none of them becomes its parent.
void frmClrPicker::showOver(QWidget* owner) {
  adjustSize();
  if (!testAttribute(Qt::WA_Moved)) adjustPosition(owner);
  winId();
  if (owner) windowHandle()->setTransientParent(owner->window()->windowHandle());
  exec();
}

void frmClrPicker::Form_Activate() {
  const ColorValue color = static_cast<ColorValue>(state_.PickerColorIn) & kColorBits;
  ui_->lblOldColor->setColor(color);
  ui_->lblOldColor->setToolTip(htmlOf(color));
}

void frmClrPicker::accept() {
  state_.PickerColorOut = static_cast<std::int32_t>(ui_->lblNewColor->color());
  QDialog::accept();
}

void frmClrPicker::reject() {
  state_.PickerColorOut = -1;
  QDialog::reject();
}

bool frmClrPicker::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusIn) EchoToHtml = watched != ui_->txtHTML;
  return QDialog::eventFilter(watched, event);
}

void frmClrPicker::txtPart_Change(const Part& part) {
  if (!EchoToHtml) return;
  if (part.text->text().toInt() > 255)
    part.text->setText(u"255"_s);
  else if (part.text->text().isEmpty())
    part.text->setText(u"0"_s);
  part.bar->setValue(part.text->text().toInt());
  ui_->txtHTML->setText(htmlOf(colorOfTexts()));
  part.text->setCursorPosition(static_cast<int>(part.text->text().size()));
  showNewColor();
}

void frmClrPicker::vsbPart_Change(const Part& part) {
  part.text->setText(QString::number(part.bar->value()));
}

// What is typed from the left fills the colour part by part.
void frmClrPicker::txtHTML_Change() {
  if (ui_->txtHTML->text().isEmpty()) {
    EchoToHtml = false;
    ui_->txtHTML->setText(u"000000"_s);
    ui_->txtRed->setText(u"0"_s);
  }
  const QString html = ui_->txtHTML->text();
  const ColorValue color = colorValueOf(html);
  const auto& [red, green, blue] = parts_;
  if (html.size() <= 2) {
    takePart(red, color);
    takePart(green, 0);
    takePart(blue, 0);
  } else if (html.size() <= 4) {
    takePart(green, color);
    takePart(blue, 0);
  } else if (html.size() == 5) {
    takePart(blue, color);
  } else {
    for (const Part& part : parts_)
      takePart(part, color);
  }
  ui_->txtHTML->setCursorPosition(static_cast<int>(html.size()));
  showNewColor();
}

void frmClrPicker::takePart(const Part& part, ColorValue color) {
  part.text->setText(QString::number(part.of(color)));
  part.bar->setValue(part.of(color));
}

void frmClrPicker::showParts(ColorValue color) {
  for (const Part& part : parts_)
    part.text->setText(QString::number(part.of(color)));
}

void frmClrPicker::showNewColor() {
  ui_->lblNewColor->setColor(colorOfBars());
}

ColorValue frmClrPicker::colorOfTexts() const {
  return mixed([this](std::size_t i) { return parts_[i].text->text().toInt(); });
}

ColorValue frmClrPicker::colorOfBars() const {
  return mixed([this](std::size_t i) { return parts_[i].bar->value(); });
}

void frmClrPicker::lblOldColor_Click() {
  // The parts are the source here, wherever the focus was last.
  const bool before = std::exchange(EchoToHtml, true);
  showParts(ui_->lblOldColor->color());
  takeColor(ui_->lblOldColor->color());
  EchoToHtml = before;
}

void frmClrPicker::ctrColorPalette_Click() {
  takeColor(ui_->ctrColorPalette->colorAt(ui_->ctrColorPalette->selectedIndex()));
}

void frmClrPicker::takeColor(ColorValue color) {
  ui_->lblNewColor->setColor(color);
  for (const Part& part : parts_)
    part.bar->setValue(part.of(color));
  ui_->txtHTML->setText(htmlOf(color));
}

void frmClrPicker::btnPalette_Click() {
  mnuPopup_->popup(ui_->btnPalette->mapToGlobal(ui_->btnPalette->rect().bottomLeft()));
}

void frmClrPicker::mnuPopupSub_Click(int item) {
  // The click alone has moved the check mark.
  checkItem(checkedItem_);
  loadPalette(u"mnuPopupSub_Click"_s,
              item == 1 ? &frmClrPicker::loadBuiltIn : &frmClrPicker::loadUserPalette);
}

void frmClrPicker::btnOpen_Click() {
  loadPalette(u"btnOpen_Click"_s, &frmClrPicker::openPalette);
}

void frmClrPicker::loadPalette(const QString& event, void (frmClrPicker::*procedure)()) {
  eventProcedure(dialogs_, this, u"in Quillane.frmClrPicker.%1 "_s.arg(event), [&] {
    try {
      (this->*procedure)();
    } catch (const Fault& fault) {
      if (!isPaletteFault(fault)) throw;
      dialogs_.message(this, MessageIcon::Warning, QString(), fault.description());
    }
  });
}

void frmClrPicker::loadBuiltIn() {
  ui_->ctrColorPalette->loadBuiltIn();
  checkItem(1);
}

void frmClrPicker::loadUserPalette() {
  if (!FileExists(state_.UserPalette)) {
    dialogs_.message(this, MessageIcon::Warning, QString(),
                     u"User defined color palette not found."_s);
    return loadBuiltIn();
  }
  ui_->ctrColorPalette->load(state_.UserPalette);
  checkItem(2);
}

void frmClrPicker::openPalette() {
  clsOpenSave request(dialogs_);
  request.DialogTitle = ui_->btnOpen->toolTip();
  request.Filter = u"PAL - Palette File|*.pal"_s;
  request.FileName = u"*.pal"_s;
  request.InitDir = state_.PalettesFolder;
  request.ShowOpen(this);
  ui_->ctrColorPalette->load(request.FileName);
  checkItem(0);
}

void frmClrPicker::checkItem(int item) {
  checkedItem_ = item;
  mnuPopupSub_[0]->setChecked(item == 1);
  mnuPopupSub_[1]->setChecked(item == 2);
}

void frmClrPicker::btnWinCrlPicker_Click() {
  CustomColors none{};
  const std::optional<ColorValue> chosen =
      dialogs_.chooseColor(this, ui_->lblNewColor->color(), none);
  if (!chosen) return;
  ui_->lblNewColor->setColor(*chosen);
  showParts(*chosen);
  ui_->txtHTML->setText(htmlOf(*chosen));
}

bool pickColor(QWidget* owner, PublicState& state, Dialogs& dialogs) {
  if (!state.ColorPicker) state.ColorPicker = std::make_unique<frmClrPicker>(state, dialogs);
  auto& picker = static_cast<frmClrPicker&>(*state.ColorPicker);
  picker.showOver(owner);
  return state.PickerColorOut >= 0;
}

bool pickSystemColor(QWidget* owner, PublicState& state, SettingsStore& settings,
                     Dialogs& dialogs) {
  CustomColors custom = customColorsOf(settings.read(setting::CustomColors));
  const ColorValue before = static_cast<ColorValue>(state.PickerColorIn) & kColorBits;
  const ColorValue after = dialogs.chooseColor(owner, before, custom).value_or(before);
  settings.write(setting::CustomColors, textOf(custom));
  state.PickerColorOut = static_cast<std::int32_t>(after);
  return after != before;
}

}  // namespace quillane

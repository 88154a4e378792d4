// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/frmproperties.h"

#include "browser/tabbutton.h"
#include "forms/bevel.h"
#include "forms/dialogs.h"
#include "forms/eventprocedure.h"
#include "forms/formicons.h"
#include "forms/keypreview.h"
#include "forms/modshfileoperation.h"
#include "preview/picture.h"
#include "shell/files.h"
#include "shell/state.h"
#include "theme/codepage.h"
#include "theme/files.h"
#include "theme/tags.h"
#include "ui_frmproperties.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QShortcut>
#include <QTextBlockFormat>
#include <QTextCursor>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

constexpr int kProgramPicture = 108;
constexpr ButtonPicture kButtonPictures[] = {{"btnOK", 101}};

/// How far the tab of the open page stands out from the others, to its sides and upwards.
constexpr QMargins kRaised(2, 4, 2, 0);
/// Between two details of a file.
constexpr int kDetailGap = 10;
/// Between the longest label of the images and their status.
constexpr int kStatusGap = 24;
/// Of a text file; the archive's index may be as large as any member.
constexpr qint64 kMostText = qint64{1} << 20;

QString orNotThere(const QString& text) {
  return text.isEmpty() ? u"n/a"_s : text;
}

void showLine(QLineEdit& box, const QString& text) {
  box.setText(text);
  box.setCursorPosition(0);
}

/// Shows a text behind the label's tag.
void showTagged(QLabel& label, const QString& text = {}) {
  label.setText(label.property("tag").toString() + text);
}

void placeUnder(QWidget& widget, const QWidget& above) {
  widget.move(widget.x(), above.y() + above.height() + kDetailGap);
}

QString statusText(SlotState state) {
  switch (state) {
    case SlotState::None:
      return u"Not set"_s;
    case SlotState::Found:
      return u"Set"_s;
    case SlotState::Missing:
      break;
  }
  return u"Broken"_s;
}

/// Where the tabs of a row lead: the last one to the column of the status.
QList<QTextOption::Tab> tabPositions(int tabs, int labelWidth, int statusColumn) {
  QList<QTextOption::Tab> positions;
  for (int tab = 1; tab < tabs; ++tab)
    positions << QTextOption::Tab(labelWidth + tab, QTextOption::LeftTab);
  return positions << QTextOption::Tab(statusColumn, QTextOption::LeftTab);
}

}  // namespace

frmProperties::frmProperties(QWidget* owner, PublicState& state, Dialogs& dialogs)
    : QDialog(owner), ui_(std::make_unique<Ui::frmProperties>()), state_(state), dialogs_(dialogs) {
  ui_->setupUi(this);
  tabs_ = {Tab{ui_->btnTabs_0, ui_->picTabs_0}, Tab{ui_->btnTabs_1, ui_->picTabs_1}};
  connectSignals();
  Form_Load();
}

frmProperties::~frmProperties() = default;

void frmProperties::connectSignals() {
  // Some controls would keep the key to themselves.
  new KeyPreview(*this, state_, [this](const QKeyEvent& key) { return takeEscape(key); });
  for (std::size_t index = 0; index < tabs_.size(); ++index)
    connect(tabs_[index].button, &QAbstractButton::clicked, this,
            [this, index] { btnTabs_Click(index); });
  for (const QKeySequence::StandardKey key : {QKeySequence::NextChild, QKeySequence::PreviousChild})
    connect(new QShortcut(key, this), &QShortcut::activated, this,
            [this] { btnTabs_Click(1 - ActiveTab); });
  connect(ui_->picCoverLine, &FormArea::Paint, this, &frmProperties::Form_Paint);
  connect(ui_->filFiles, &FileListBox::Click, this, &frmProperties::filFiles_Click);
  connect(ui_->btnExtract, &QAbstractButton::clicked, this, &frmProperties::btnExtract_Click);
  connect(ui_->btnOK, &QAbstractButton::clicked, this, &QWidget::hide);
}

void frmProperties::Form_Load() {
  dressButtons(*this, kButtonPictures);
  ui_->imgIcon->setPixmap(formPixmap(kProgramPicture));
  ui_->btnTabs_1->setForegroundRole(QPalette::Dark);
  ui_->filFiles->setHiddenFiles(HiddenFiles::List);
  ui_->filFiles->setPath(state_.AppTempFolder);
  setFixedSize(size());
}

void frmProperties::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  // One of the desktop's own only brings the window back, for instance from an icon.
  if (event->spontaneous()) return;
  Form_Activate();
  // What went wrong is told when the window is there.
  QMetaObject::invokeMethod(this, &frmProperties::showFaults, Qt::QueuedConnection);
}

void frmProperties::Form_Activate() {
  escapeDown_ = false;
  btnTabs_Click(0);
  ui_->btnTabs_0->setFocus();
  ui_->filFiles->clearSelection();
  faults_ = {};
  try {
    ui_->filFiles->refresh();
  } catch (const Fault& fault) {
    faults_.reporter()(fault);
  }
  clearDetails();
  ui_->btnExtract->setEnabled(false);
  showLine(*ui_->lblThemeFile, SplitPath(state_.ThemeFilePath, PathPart::Name));
  ui_->lblThemeSize->setText(FormatFileSize(state_.ThemeFilePath));
  names_ = namesOf(state_);
  showImages();
  showTags();
}

void frmProperties::showFaults() {
  faults_.show(dialogs_, this, u"in Quillane.frmProperties.Form_Activate "_s);
  parseFaults_.show(dialogs_, this, u"in Quillane.modMain.ParseXML "_s);
}

void frmProperties::Form_Paint(Bevel& bevel) {
  const int right = ui_->picCoverLine->width() - 1;
  const int bottom = ui_->picCoverLine->height();
  bevel.midlight(0, 0, 0, bottom);
  bevel.shadow(right, 0, right, bottom);
}

void frmProperties::btnTabs_Click(std::size_t index) {
  lowerTab(tabs_.at(ActiveTab));
  raiseTab(tabs_.at(index));
  ActiveTab = index;
}

void frmProperties::lowerTab(const Tab& tab) {
  tab.button->lower();
  tab.button->setGeometry(tab.button->geometry() - kRaised);
  tab.button->setForegroundRole(QPalette::Dark);
  tab.button->setChecked(false);
  tab.page->hide();
}

void frmProperties::raiseTab(const Tab& tab) {
  const QRect place = tab.button->geometry() + kRaised;
  tab.button->setGeometry(place);
  tab.button->raise();
  ui_->picCoverLine->move(place.x() + 1, place.y() + place.height());
  ui_->picCoverLine->resize(place.width() - 2, ui_->picCoverLine->height());
  ui_->picCoverLine->raise();
  tab.button->setForegroundRole(QPalette::ButtonText);
  tab.button->setChecked(true);
  tab.page->show();
}

void frmProperties::showTags() {
  parseFaults_ = {};
  const auto [name, creator, modifiedBy, created] =
      readThemeTags(state_.ThemeXml, parseFaults_.reporter());
  showLine(*ui_->txtThemeName, orNotThere(name));
  showLine(*ui_->txtThemeAuthor, orNotThere(creator));
  showLine(*ui_->txtThemeModifiedBy, orNotThere(modifiedBy));
  const QString stamp = tagTime(state_.ThemeXmlPath);
  showLine(*ui_->lblCreated, created.isEmpty() ? stamp : created);
  showLine(*ui_->lblModified, created.isEmpty() ? orNotThere({}) : stamp);
}

void frmProperties::showImages() {
  const std::span<const ImageRow> rows = imageRows(state_.ThemeGeneration);
  const QFontMetrics metrics = ui_->txtImages->fontMetrics();
  int widest = 0;
  for (const ImageRow& row : rows)
    widest = qMax(widest, metrics.horizontalAdvance(QLatin1String(row.label)));

  ui_->txtImages->clear();
  QTextCursor cursor(ui_->txtImages->document());
  for (const ImageRow& row : rows) {
    const QString label = QLatin1String(row.label);
    if (!cursor.atStart()) cursor.insertBlock();
    QTextBlockFormat format;
    format.setTabPositions(
        tabPositions(row.tabs, metrics.horizontalAdvance(label), widest + kStatusGap));
    cursor.setBlockFormat(format);
    cursor.insertText(label + QString(row.tabs, u'\t') + statusText(imageStateOf(row, state_)));
  }
}

void frmProperties::filFiles_Click() {
  const QList<int> selected = ui_->filFiles->selectedItems();
  if (selected.size() > 1) clearDetails();
  if (selected.size() == 1) showDetails(ui_->filFiles->item(selected.first()));
}

void frmProperties::clearDetails() {
  for (QLabel* label : {ui_->lblFileDescription, ui_->lblFileSize, ui_->lblDimension})
    showTagged(*label);
  placeDetails();
  hidePreviews();
}

void frmProperties::showDetails(const QString& file) {
  const QString path = state_.AppTempFolder + file;
  const std::optional<FileRole> role = roleOf(file, names_);
  hidePreviews();
  if (role) showPreview(role->preview, path);
  showTagged(*ui_->lblFileDescription, role ? role->description : QString());
  const QSize size = ui_->imgPreview->picture().size();
  showTagged(*ui_->lblDimension, ui_->imgPreview->isHidden()
                                     ? QString()
                                     : u"%1 x %2 pixels"_s.arg(size.width()).arg(size.height()));
  showTagged(*ui_->lblFileSize, FormatFileSize(path));
  placeDetails();
  ui_->btnExtract->setEnabled(true);
}

// A message box would come up again with each step through the list.
void frmProperties::showPreview(FilePreview preview, const QString& path) {
  try {
    if (preview == FilePreview::Picture) {
      ui_->imgPreview->setPicture(LoadPicture(path).image());
      ui_->imgPreview->show();
    } else {
      const QString cut = fileSize(path) > kMostText ? u"\u2026"_s : QString();
      ui_->txtPreview->setPlainText(fromCodePage(readFileStart(path, kMostText)) + cut);
      ui_->txtPreview->show();
    }
  } catch (const Fault& fault) {
    ui_->lblFault->setText(widgetText(fault.description()));
    ui_->lblFault->show();
  }
}

void frmProperties::hidePreviews() {
  for (QWidget* preview :
       std::initializer_list<QWidget*>{ui_->txtPreview, ui_->imgPreview, ui_->lblFault})
    preview->hide();
}

void frmProperties::placeDetails() {
  for (QLabel* label : {ui_->lblFileDescription, ui_->lblFileSize, ui_->lblDimension})
    label->resize(label->width(), label->heightForWidth(label->width()));
  placeUnder(*ui_->lblFileSize, *ui_->lblFileDescription);
  placeUnder(*ui_->lblDimension, *ui_->lblFileSize);
}

void frmProperties::btnExtract_Click() {
  eventProcedure(dialogs_, this, u"in Quillane.frmProperties.btnExtract_Click "_s, [this] {
    if (!askFolder(dialogs_, this, u"Extract file(s) to:"_s, state_.ExtractFolder)) return;
    QStringList sources;
    for (const int index : ui_->filFiles->selectedItems())
      sources << state_.AppTempFolder + ui_->filFiles->item(index);
    SHFileCopy(this, dialogs_, sources, state_.ExtractFolder);
  });
}

void frmProperties::closeEvent(QCloseEvent* event) {
  ui_->imgPreview->setPicture({});
  hide();
  event->ignore();
}

// It closes the window when it is let go, so that no other window sees its second half. One that
// went down in a dialog above is not meant.
bool frmProperties::takeEscape(const QKeyEvent& key) {
  if (key.key() != Qt::Key_Escape) return false;
  if (key.isAutoRepeat()) return true;
  const bool isDown = key.type() == QEvent::KeyPress;
  if (!isDown && escapeDown_) hide();
  escapeDown_ = isDown;
  return true;
}

}  // namespace quillane

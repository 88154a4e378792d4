// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/dialogs.h"

#include "forms/chourglass.h"
#include "forms/clsopensave.h"
#include "forms/formcolors.h"
#include "shell/files.h"

#include <QApplication>
#include <QCheckBox>
#include <QColorDialog>
#include <QCursor>
#include <QDesktopServices>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QTextDocument>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

QMessageBox::Icon iconOf(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::Stop:
      return QMessageBox::Critical;
    case MessageIcon::Warning:
      return QMessageBox::Warning;
    case MessageIcon::Question:
      return QMessageBox::Question;
    case MessageIcon::Information:
      break;
  }
  return QMessageBox::Information;
}

/// The filters of a request for Qt, which reads the patterns from the end of the caption.
QStringList nameFilters(const QString& filter) {
  const QStringList parts = filter.split(u'|');
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2)
    filters << (parts[i].endsWith(u')') ? parts[i] : u"%1 (%2)"_s.arg(parts[i], parts[i + 1]));
  return filters;
}

void show(QMessageBox& box) {
  // File names come from strangers and are no markup.
  box.setTextFormat(Qt::PlainText);
  // Whoever is to answer should not see the wait pointer of the work that asks.
  const PointerOverride arrow(Qt::ArrowCursor);
  box.exec();
}

constexpr qsizetype kLongestText = 20000;
constexpr qsizetype kLongestLine = 1000;
constexpr qsizetype kMostLines = 20;
constexpr qsizetype kLongestWord = 50;
const QChar kCut(0x2026);
const QChar kMayBreak(0x200B);

/// A text for a box, where a long word without a blank, as names of files are, may be broken.
QString boxText(const QString& text) {
  QString broken;
  qsizetype length = 0;
  for (const QChar character : widgetText(text)) {
    length = character.isSpace() || character == u'/' ? 0 : length + 1;
    if (length > kLongestWord && !character.isLowSurrogate() && !character.isMark()) {
      broken += kMayBreak;
      length = 1;
    }
    broken += character;
  }
  return broken;
}

}  // namespace

QString widgetText(const QString& text) {
  QStringList lines = text.left(kLongestText).replace("\r\n"_L1, "\n"_L1).split(u'\n');
  for (QString& line : lines)
    if (line.size() > kLongestLine) line = line.left(kLongestLine) + kCut;
  if (lines.size() > kMostLines) lines = lines.mid(0, kMostLines) << kCut;
  return lines.join(u'\n');
}

QString tipText(const QString& text) {
  return Qt::convertFromPlainText(boxText(text), Qt::WhiteSpaceNormal);
}

QString oneLine(QString text) {
  for (QChar& character : text)
    if (character.category() == QChar::Other_Control) character = u' ';
  return text;
}

void showLine(QLabel& label, const QString& text) {
  const QString line = oneLine(widgetText(text));
  label.setText(label.fontMetrics().elidedText(line, Qt::ElideMiddle, label.width()));
  label.setToolTip(label.text() == text ? QString() : tipText(text));
}

QString titleText(QString text) {
  return text.replace("[*]"_L1, "[*][*]"_L1);
}

QString suffixOf(const QString& nameFilter) {
  static const QRegularExpression one(u"\\(\\*\\.(\\w+)\\)$"_s);
  return one.match(nameFilter).captured(1);
}

bool askFolder(Dialogs& dialogs, QWidget* owner, const QString& prompt, QString& remembered) {
  const QString folder = dialogs.BrowseForFolder(owner, remembered, prompt);
  if (folder.isEmpty()) return false;
  remembered = folder;
  return true;
}

void DesktopDialogs::message(QWidget* owner, MessageIcon icon, const QString& title,
                             const QString& text) {
  QMessageBox box(iconOf(icon), title, boxText(text), QMessageBox::Ok, owner);
  show(box);
}

Answer DesktopDialogs::ask(QWidget* owner, const Question& question) {
  QMessageBox box(iconOf(question.icon), question.title, boxText(question.text),
                  QMessageBox::NoButton, owner);
  QList<QAbstractButton*> buttons;
  // One role for all keeps them in the order told, on every desktop.
  for (const QString& caption : question.buttons)
    buttons << box.addButton(caption, QMessageBox::ActionRole);
  box.setEscapeButton(buttons.last());
  box.setDefaultButton(static_cast<QPushButton*>(buttons[question.standard]));
  QCheckBox* tick = nullptr;
  if (!question.checkBox.isEmpty()) {
    tick = new QCheckBox(question.checkBox, &box);
    box.setCheckBox(tick);
  }
  show(box);
  // Nothing was clicked when the program itself closed the box.
  const auto clicked = buttons.indexOf(box.clickedButton());
  return {static_cast<int>(clicked < 0 ? buttons.size() - 1 : clicked), tick && tick->isChecked()};
}

QString DesktopDialogs::BrowseForFolder(QWidget* owner, const QString& startFolder,
                                        const QString& prompt) {
  return QFileDialog::getExistingDirectory(owner, prompt, startFolder);
}

namespace {

/// Whether a file can lie where it was asked for; says so when its folder is not there.
bool folderExists(Dialogs& dialogs, QWidget* owner, const QString& path) {
  const QString folder = QFileInfo(path).path();
  if (FolderExists(folder)) return true;
  dialogs.message(owner, MessageIcon::Warning, QString(),
                  u"The folder \"%1\" does not exist. Choose another one."_s.arg(folder));
  return false;
}

}  // namespace

bool DesktopDialogs::chooseFile(QWidget* owner, clsOpenSave& request, FileQuestion question) {
  QFileDialog dialog(owner, request.DialogTitle, request.InitDir);
  const bool saving = question == FileQuestion::Save;
  dialog.setAcceptMode(saving ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog.setFileMode(saving ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  dialog.setDefaultSuffix(request.DefaultExt);
  const QStringList filters = nameFilters(request.Filter);
  dialog.setNameFilters(filters);
  dialog.selectNameFilter(filters.value(request.FilterIndex - 1));
  // A name typed without an ending gets that of the kind that was chosen.
  QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&](const QString& chosen) {
    if (!suffixOf(chosen).isEmpty()) dialog.setDefaultSuffix(suffixOf(chosen));
  });
  // A pattern offers no file.
  if (!request.FileName.contains(u'*')) dialog.selectFile(request.FileName);
  do {
    if (dialog.exec() != QDialog::Accepted) return false;
    request.FileName = dialog.selectedFiles().constFirst();
  } while (!folderExists(*this, owner, request.FileName));
  // A desktop's own dialog may answer with a filter of its own.
  request.FilterIndex = static_cast<int>(qMax(0, filters.indexOf(dialog.selectedNameFilter()))) + 1;
  return true;
}

std::optional<ColorValue> DesktopDialogs::chooseColor(QWidget* owner, ColorValue initial,
                                                      CustomColors& custom) {
  QColorDialog dialog(colorOf(initial), owner);
  // The dialog keeps its custom colours for all programs of the desktop; ours are on loan.
  std::array<QColor, std::tuple_size_v<CustomColors>> kept;
  for (std::size_t i = 0; i < custom.size(); ++i) {
    kept[i] = QColorDialog::customColor(static_cast<int>(i));
    QColorDialog::setCustomColor(static_cast<int>(i), colorOf(custom[i]));
  }
  const bool accepted = dialog.exec() == QDialog::Accepted;
  for (std::size_t i = 0; i < custom.size(); ++i) {
    custom[i] = colorValueOf(QColorDialog::customColor(static_cast<int>(i)));
    QColorDialog::setCustomColor(static_cast<int>(i), kept[i]);
  }
  if (!accepted) return {};
  return colorValueOf(dialog.selectedColor());
}

bool DesktopDialogs::openPage(const QUrl& page) {
  return QDesktopServices::openUrl(page);
}

void DesktopDialogs::beep() {
  QApplication::beep();
}

}  // namespace quillane

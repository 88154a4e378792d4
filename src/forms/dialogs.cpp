// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/dialogs.h"

#include <QApplication>
#include <QCursor>
#include <QFileDialog>
#include <QMessageBox>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

QMessageBox::Icon iconOf(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::Stop:
      return QMessageBox::Critical;
    case MessageIcon::Warning:
      return QMessageBox::Warning;
    case MessageIcon::Information:
      break;
  }
  return QMessageBox::Information;
}

constexpr qsizetype kLongestText = 20000;
constexpr qsizetype kLongestLine = 1000;
constexpr qsizetype kMostLines = 20;
const QChar kCut(0x2026);

}  // namespace

QString widgetText(const QString& text) {
  QStringList lines = text.left(kLongestText).replace("\r\n"_L1, "\n"_L1).split(u'\n');
  for (QString& line : lines)
    if (line.size() > kLongestLine) line = line.left(kLongestLine) + kCut;
  if (lines.size() > kMostLines) lines = lines.mid(0, kMostLines) << kCut;
  return lines.join(u'\n');
}

QString titleText(QString text) {
  return text.replace("[*]"_L1, "[*][*]"_L1);
}

void DesktopDialogs::message(QWidget* owner, MessageIcon icon, const QString& title,
                             const QString& text) {
  QMessageBox box(iconOf(icon), title, widgetText(text), QMessageBox::Ok, owner);
  // File names come from strangers and are no markup.
  box.setTextFormat(Qt::PlainText);
  // Whoever is to answer should not see the wait pointer of the work that asks.
  QGuiApplication::setOverrideCursor(Qt::ArrowCursor);
  box.exec();
  QGuiApplication::restoreOverrideCursor();
}

QString DesktopDialogs::chooseFolder(QWidget* owner, const QString& prompt, const QString& start) {
  return QFileDialog::getExistingDirectory(owner, prompt, start);
}

void DesktopDialogs::beep() {
  QApplication::beep();
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/dialogs.h"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>

namespace quillane {

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

}  // namespace

QString widgetText(QString text) {
  return text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
}

void DesktopDialogs::message(QWidget* owner, MessageIcon icon, const QString& title,
                             const QString& text) {
  QMessageBox box(iconOf(icon), title, widgetText(text), QMessageBox::Ok, owner);
  // File names come from strangers and are no markup.
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

QString DesktopDialogs::chooseFolder(QWidget* owner, const QString& prompt, const QString& start) {
  return QFileDialog::getExistingDirectory(owner, prompt, start);
}

void DesktopDialogs::beep() {
  QApplication::beep();
}

}  // namespace quillane

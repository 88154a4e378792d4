// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
// The least that a program with a window can do. With WINDOW_MENU the window has a menu of that
// name, so that the toolkit looks for fonts as it does for every window with words.
#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  QMainWindow window;
  window.setWindowTitle(QStringLiteral("Empty"));
  const QString menu = qEnvironmentVariable("WINDOW_MENU");
  if (!menu.isEmpty()) window.menuBar()->addMenu(menu);
  window.show();
  return QApplication::exec();
}

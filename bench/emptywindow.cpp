// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
// The least that a program with a window can do: emptywindow [TEXT]. With a text the window has a
// menu of that name, so that the toolkit looks for fonts as it does for every window with words.
#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  const QStringList words = QApplication::arguments().mid(1);
  QMainWindow window;
  window.setWindowTitle(QStringLiteral("Empty"));
  if (!words.isEmpty()) window.menuBar()->addMenu(words.first());
  window.show();
  return QApplication::exec();
}

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/places.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

// Programs of freedesktop systems that take file paths and find the phone themselves: two that push
// over Bluetooth, after asking which phone, and one for machines that still have an infrared port.
constexpr const char* kSenders[] = {"bluetooth-sendto", "blueman-sendto", "ircp"};

QString programFolder() {
  const QString home = qEnvironmentVariable("QUILLANE_HOME");
  if (!home.isEmpty()) return QDir(home).absolutePath();
  return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/quillane"_L1;
}

}  // namespace

Places placesOfDesktop(const QString& applicationFolder) {
  const QString config = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
  return {programFolder(), QDir::cleanPath(applicationFolder + "/../share/quillane"_L1),
          u"/usr/bin"_s, config + "/Quillane/Quillane 3G.ini"_L1};
}

QString findSender(const QString& systemFolder) {
  for (const char* sender : kSenders) {
    QString path = systemFolder + u'/' + QLatin1String(sender);
    const QFileInfo program(path);
    if (program.isFile() && program.isExecutable()) return path;
  }
  return {};
}

}  // namespace quillane

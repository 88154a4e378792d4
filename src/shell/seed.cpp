// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/seed.h"

#include "shell/places.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QSet>

namespace quillane {

namespace {

QSet<QString> readNotes(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return {};
  const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
  return {lines.begin(), lines.end()};
}

void writeNotes(const QString& path, const QSet<QString>& copied) {
  QStringList lines(copied.begin(), copied.end());
  lines.removeAll(QString());
  lines.sort();
  QSaveFile file(path);
  const QByteArray text = lines.join(QLatin1Char('\n')).toUtf8() + '\n';
  if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.commit())
    throw Fault(FaultNumber::DeviceFault,
                QStringLiteral("\"%1\" cannot be written: %2.").arg(path, file.errorString()));
}

// Shipped files may be read-only; the user's copies are not.
void copyFile(const QString& from, const QString& to) {
  QFile source(from);
  if (!QDir().mkpath(QFileInfo(to).path()) || !source.copy(to))
    throw Fault(FaultNumber::DeviceFault, QStringLiteral("\"%1\" cannot be copied to \"%2\": %3.")
                                              .arg(from, to, source.errorString()));
  QFile::setPermissions(to, QFile::permissions(to) | QFile::WriteOwner);
}

}  // namespace

void seedProgramFolder(const Places& places, const FaultReporter& report) {
  const QDir shipped(places.shippedFolder);
  const QDir home(places.programFolder);
  const QString notes = home.filePath(QStringLiteral("seeded.txt"));
  QSet<QString> copied = readNotes(notes);
  const QSet<QString> before = copied;
  QDirIterator files(shipped.path(), QDir::Files, QDirIterator::Subdirectories);
  while (files.hasNext()) {
    const QString from = files.next();
    const QString name = shipped.relativeFilePath(from);
    const QString to = home.filePath(name);
    if (copied.contains(name)) continue;
    try {
      if (!QFileInfo::exists(to)) copyFile(from, to);
      copied.insert(name);
    } catch (const Fault& fault) {
      report(fault);
    }
  }
  try {
    if (copied != before) writeNotes(notes, copied);
  } catch (const Fault& fault) {
    report(fault);
  }
}

}  // namespace quillane

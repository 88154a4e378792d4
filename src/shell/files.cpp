// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

QStringList matches(const QString& pattern) {
  QString name = SplitPath(pattern, PathPart::Name);
  if (name == "*.*"_L1) name = u"*"_s;
  const QDir folder(SplitPath(pattern, PathPart::Folder));
  QStringList paths;
  const auto kinds = QDir::Files | QDir::Hidden | QDir::System;
  for (const QString& entry : folder.entryList({name}, kinds))
    paths << withSeparator(folder.path()) + entry;
  return paths;
}

}  // namespace

bool FileExists(const QString& path) {
  const QFileInfo file(path);
  if (file.exists()) return !file.isDir();
  const QString name = SplitPath(path, PathPart::Name);
  const bool isPattern = name.contains(u'*') || name.contains(u'?');
  return isPattern && !matches(path).isEmpty();
}

bool FolderExists(const QString& path) {
  return !path.isEmpty() && QFileInfo(path).isDir();
}

void DeleteFiles(const QString& pattern) {
  for (const QString& path : matches(pattern))
    QFile::remove(path);
}

QString SplitPath(const QString& path, PathPart part) {
  const qsizetype behind = path.lastIndexOf(u'/') + 1;
  return part == PathPart::Name ? path.mid(behind) : path.left(behind);
}

QString sizeText(qint64 bytes) {
  const QString kilobytes = QString::number(static_cast<double>(bytes) / 1024.0, 'f', 1);
  return u"%1 KB (%2 bytes)"_s.arg(kilobytes).arg(bytes);
}

QString FormatFileSize(const QString& path) {
  const QFileInfo file(path);
  return file.isFile() ? sizeText(file.size()) : QString();
}

QString withSeparator(const QString& folder) {
  return folder.endsWith(u'/') ? folder : folder + u'/';
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "theme/files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStorageInfo>

#include <algorithm>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

Fault fileFault(FaultNumber number, const QString& words, const QString& path,
                int line = __builtin_LINE()) {
  return Fault(number, words.arg(QDir::toNativeSeparators(path)), line);
}

Fault unwritable(const QString& path, qint64 size) {
  const QString folder = QFileInfo(path).absolutePath();
  const QFileInfo info(folder);
  if (!info.isDir()) return folderNotFound(folder);
  const QFileInfo file(path);
  if (!info.isWritable() || (file.exists() && !file.isWritable()))
    return noPermission("write"_L1, path);
  const QStorageInfo storage(folder);
  if (storage.isValid() && storage.bytesTotal() > 0 && storage.bytesAvailable() < size)
    return noRoom("write"_L1, path);
  return fileFault(FaultNumber::DeviceFault, u"File \"%1\" could not be written."_s, path);
}

template <typename Read>
QByteArray readBy(const QString& path, Read read) {
  fileSize(path);
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) throw unreadable(path);
  QByteArray bytes = read(file);
  if (file.error() != QFileDevice::NoError) throw unreadable(path);
  return bytes;
}

}  // namespace

Fault notFound(const QString& path, int line) {
  return fileFault(FaultNumber::FileNotFound, u"File \"%1\" not found."_s, path, line);
}

Fault folderNotFound(const QString& folder, int line) {
  return fileFault(FaultNumber::FileNotFound, u"Folder \"%1\" not found."_s, folder, line);
}

Fault noPermission(QLatin1String verb, const QString& path, int line) {
  return Fault(FaultNumber::NoPermission,
               u"No permission to %1 \"%2\"."_s.arg(verb, QDir::toNativeSeparators(path)), line);
}

Fault noRoom(QLatin1String verb, const QString& path, int line) {
  return Fault(FaultNumber::DiskFull,
               u"No room left to %1 \"%2\". Make room on the disk and try again."_s.arg(
                   verb, QDir::toNativeSeparators(path)),
               line);
}

Fault irreplaceable(const QString& path, int line) {
  return fileFault(FaultNumber::NoPermission, u"\"%1\" is no file that can be replaced."_s, path,
                   line);
}

Fault unreadable(const QString& path, int line) {
  const QFileInfo file(path);
  if (!file.exists()) return notFound(path, line);
  return file.isReadable()
             ? fileFault(FaultNumber::DeviceFault, u"File \"%1\" could not be read."_s, path, line)
             : noPermission("read"_L1, path, line);
}

QByteArray readFile(const QString& path) {
  return readBy(path, [](QFile& file) { return file.readAll(); });
}

QByteArray readFileStart(const QString& path, qint64 most) {
  return readBy(path, [most](QFile& file) { return file.read(std::min(file.size(), most)); });
}

void saveFile(const QString& path, const QByteArray& bytes) {
  // A rename would put a file in the place of a device or a pipe.
  if (QFileInfo::exists(path) && !QFileInfo(path).isFile()) throw irreplaceable(path);
  QSaveFile file(path);
  // The commit alone does not notice that the last buffer could not be written.
  const bool saved = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() &&
                     file.flush() && file.commit();
  if (!saved) throw unwritable(path, bytes.size());
}

qint64 fileSize(const QString& path) {
  const QFileInfo info(path);
  if (!info.isFile()) throw notFound(path);
  return info.size();
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "theme/files.h"

#include "theme/files_platform.h"

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

Fault unwritable(const QString& path, qint64 size, const QString& reason) {
  const QString folder = QFileInfo(path).absolutePath();
  const QFileInfo info(folder);
  if (!info.isDir()) return folderNotFound(folder);
  const QFileInfo file(path);
  if (!info.isWritable() || (file.exists() && !file.isWritable()))
    return noPermission("write"_L1, path);
  const QStorageInfo storage(folder);
  if (storage.isValid() && storage.bytesTotal() > 0 && storage.bytesAvailable() < size)
    return noRoom("write"_L1, path);
  return Fault(FaultNumber::DeviceFault, u"File \"%1\" could not be written: %2."_s.arg(
                                             QDir::toNativeSeparators(path), reason));
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
  // The commit alone notices neither a last buffer that could not be written nor a disk that could
  // not keep the bytes.
  const bool written =
      file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
  const std::errc lost = written ? flushFile(file.handle()) : std::errc{};
  if (lost == std::errc::no_space_on_device) throw noRoom("write"_L1, path);
  if (lost != std::errc{})
    throw unwritable(path, bytes.size(),
                     QString::fromLocal8Bit(std::make_error_code(lost).message()));
  if (!written || !file.commit()) throw unwritable(path, bytes.size(), file.errorString());
}

qint64 fileSize(const QString& path) {
  const QFileInfo info(path);
  if (!info.isFile()) throw notFound(path);
  return info.size();
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/listing.h"

#include "theme/fault.h"

#include <QFile>

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>
#include <vector>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

namespace fs = std::filesystem;

bool isListed(const fs::directory_entry& entry, const QString& name, const QString& ending) {
  if (!name.endsWith(ending, Qt::CaseInsensitive)) return false;
  std::error_code error;
  return entry.is_regular_file(error);
}

bool isLeftOut(const QString& name, HiddenFiles hidden) {
  return hidden == HiddenFiles::LeaveOut && name.startsWith(u'.');
}

[[noreturn]] void refuse(const QString& folder, const std::error_code& error) {
  throw Fault(FaultNumber::NoPermission, u"The folder \"%1\" cannot be read: %2."_s.arg(
                                             folder, QString::fromStdString(error.message())));
}

}  // namespace

QStringList listFiles(const QString& folder, const QString& ending, HiddenFiles hidden) {
  std::vector<std::pair<QString, QString>> found;  // folded name, name
  std::error_code error;
  fs::directory_iterator entry(QFile::encodeName(folder).toStdString(), error);
  if (error) refuse(folder, error);
  for (const fs::directory_iterator end; entry != end; entry.increment(error)) {
    const QByteArray bytes(entry->path().filename().c_str());
    const QString name = QFile::decodeName(bytes);
    if (QFile::encodeName(name) == bytes && !isLeftOut(name, hidden) &&
        isListed(*entry, name, ending))
      found.emplace_back(name.toCaseFolded(), name);
  }
  // A step that fails ends the walk.
  if (error) refuse(folder, error);
  std::sort(found.begin(), found.end());
  QStringList names;
  names.reserve(static_cast<qsizetype>(found.size()));
  for (auto& [folded, name] : found)
    names.push_back(std::move(name));
  return names;
}

}  // namespace quillane

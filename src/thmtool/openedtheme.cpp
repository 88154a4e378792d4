// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "thmtool/openedtheme.h"

#include "thmtool/folders.h"

#include <QFileInfo>

namespace quillane {

using namespace Qt::StringLiterals;

QString UnreadableTheme::complaint() const {
  // Below the first line stands what to do in the window.
  return u"\"%1\": %2"_s.arg(path_, error_.text.section(u'\n', 0, 0).trimmed());
}

QList<ArchiveMember> extractTheme(const QString& path, const QString& folder) {
  const ArchiveResult result = extractArchive(pathOf(path), folder);
  if (result.code == 0) return result.members;
  throw UnreadableTheme(path, archiveError(result.code, QFileInfo(pathOf(path)).fileName()));
}

OpenedTheme openTheme(const QString& path, const FaultReporter& report) {
  OpenedTheme opened{.folder = makeWorkFolder()};
  opened.fileName = QFileInfo(pathOf(path)).fileName();
  opened.members = extractTheme(path, opened.folder.path());
  std::optional<LoadedTheme> theme = loadTheme(opened.folder.path(), opened.states, report);
  if (!theme) throw UnreadableTheme(path, missingXmlError(opened.fileName));
  opened.theme = *std::move(theme);
  return opened;
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "theme/tags.h"

#include "theme/parsexml.h"

#include <QDateTime>
#include <QFileInfo>

#include <algorithm>

namespace quillane {

using namespace Qt::StringLiterals;

ThemeTagTexts readThemeTags(const QString& themeXml, const FaultReporter& report) {
  ThemeTagTexts texts;
  std::transform(kThemeTags.begin(), kThemeTags.end(), texts.begin(), [&](const ThemeTag& tag) {
    return ParseXML(QString(tag.element), themeXml, report);
  });
  return texts;
}

QString tagTime(const QString& path) {
  return QFileInfo(path).lastModified().toString(u"d.M.yyyy HH:mm"_s);
}

}  // namespace quillane

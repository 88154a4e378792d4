// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "theme/tags.h"

#include "theme/parsexml.h"

#include <algorithm>

namespace quillane {

ThemeTagTexts readThemeTags(const QString& themeXml, const FaultReporter& report) {
  ThemeTagTexts texts;
  std::transform(kThemeTags.begin(), kThemeTags.end(), texts.begin(), [&](const ThemeTag& tag) {
    return ParseXML(QString(tag.element), themeXml, report);
  });
  return texts;
}

}  // namespace quillane

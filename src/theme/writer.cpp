// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "theme/writer.h"

#include "theme/version.h"

#include <QFileInfo>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

constexpr auto kLineEnd = "\r\n"_L1;

QString tag(QLatin1String element, QLatin1String attribute, const QString& value) {
  return u'<' + element + u' ' + attribute + "=\""_L1 + value + "\"/>"_L1;
}

/// The comment below the root: its mark, the version without points, and the tags, none of which
/// begins the line that closes it.
QString comment(const ThemeTagTexts& tags) {
  QString text =
      u"<!--CreatedWithQuillane"_s + QString(QLatin1String(kVersion)).remove(u'.') + u'>';
  for (std::size_t at = 0; at < tags.size(); ++at) {
    const ThemeTag& row = kThemeTags.at(at);
    if (!tags.at(at).isEmpty()) text += kLineEnd + tag(row.element, row.attribute, tags.at(at));
  }
  return text + "-->"_L1;
}

}  // namespace

QString generateXml(const ThemeValues& values, const ThemeTagTexts& tags) {
  const ThemeSchema& schema = values.schema();
  QString xml = u"<?xml version=\"1.0\"?>"_s + kLineEnd;
  xml += u'<' + schema.root + u'>' + kLineEnd;
  xml += comment(tags) + kLineEnd;
  int slot = 0;
  for (const ImageElement& image : schema.images) {
    const QString& path = values.image(slot++);
    if (path.isEmpty()) continue;
    xml += tag(image.element, "Source"_L1, QFileInfo(path).fileName().toLower()) + kLineEnd;
  }
  int index = 0;
  for (const ColorElement& color : schema.colors)
    xml += tag(color.element, "Color"_L1, u"0x"_s + values.color(index++)) + kLineEnd;
  return xml + "</"_L1 + schema.root + u'>';
}

QString compressXml(QString xml) {
  return xml.replace(">\r\n<"_L1, "><"_L1);
}

}  // namespace quillane

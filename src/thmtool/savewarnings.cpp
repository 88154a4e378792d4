// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "thmtool/savewarnings.h"

#include "theme/archive_reader.h"
#include "theme/check.h"
#include "theme/codepage.h"
#include "theme/load.h"

#include <QFileInfo>
#include <QHash>

#include <algorithm>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

QString nameInTheme(const QString& image) {
  return QFileInfo(image).fileName().toLower();
}

/// Whether a reader finds an image by its name in the XML.
bool canBeNamed(const QString& name) {
  return name != kNoImage && memberName(toCodePage(name)) == name && !namesNoFile(name) &&
         !name.contains(u'"');
}

/// Images that the archive cannot tell apart or that the XML cannot name.
QStringList imageTroubles(const ThemeValues& values) {
  QStringList troubles;
  QHash<QString, QFileInfo> known;
  for (int slot = 0; slot < static_cast<int>(values.schema().images.size()); ++slot) {
    if (values.image(slot).isEmpty()) continue;
    const QFileInfo file(values.image(slot));
    const QString name = nameInTheme(values.image(slot));
    if (!canBeNamed(name))
      troubles += u"The image \"%1\" will not be seen: no theme can hold such a name."_s.arg(name);
    else if (known.contains(name) && known.value(name) != file)
      troubles += u"Different images are named \"%1\"; one will be seen for all."_s.arg(name);
    known.insert(name, file);
  }
  troubles.removeDuplicates();
  return troubles;
}

/// Compares what a reader will find in a theme's text with what was meant.
class ReadBack {
 public:
  explicit ReadBack(const QString& xml) : text_(normaliseThemeXml(fromCodePage(toCodePage(xml)))) {}

  QStringList troubles(const ThemeValues& values, const ThemeTagTexts& tags) && {
    if (generationOf(text_) != values.schema().generation)
      troubles_ += u"The theme will be read as one of the other generation."_s;
    int slot = 0;
    for (const ImageElement& image : values.schema().images) {
      const QString name = nameInTheme(values.image(slot++));
      if (name.isEmpty() || canBeNamed(name)) compare(image.element, name);
    }
    int index = 0;
    for (const ColorElement& color : values.schema().colors)
      compare(color.element, values.color(index++));
    for (std::size_t at = 0; at < tags.size(); ++at)
      compare(kThemeTags.at(at).element, tags.at(at));
    return std::move(troubles_);
  }

 private:
  void compare(QLatin1String element, const QString& meant) {
    // What a reader would complain of shows in what it reads.
    const QString trouble = misreading(element, text_, meant, [](const Fault&) {});
    if (!trouble.isEmpty()) troubles_ += trouble;
  }

  QString text_;
  QStringList troubles_;
};

}  // namespace

QStringList saveWarnings(const ThemeValues& values, const ThemeTagTexts& tags, const QString& xml) {
  return imageTroubles(values) + ReadBack(xml).troubles(values, tags);
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "theme/load.h"

#include "theme/archive.h"
#include "theme/codepage.h"
#include "theme/files.h"
#include "theme/parsexml.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

bool inNameOrder(const QString& left, const QString& right) {
  const int order = left.compare(right, Qt::CaseInsensitive);
  return order != 0 ? order < 0 : left < right;
}

QString pathIn(const QString& folder, const QString& name) {
  return folder.endsWith(u'/') ? folder + name : folder + u'/' + name;
}

QString replaced(const QString& text, QLatin1String before, QLatin1String after) {
  QString result;
  result.reserve(text.size());
  qsizetype taken = 0;
  for (qsizetype at; (at = text.indexOf(before, taken)) >= 0; taken = at + before.size()) {
    result += QStringView(text).sliced(taken, at - taken);
    result += after;
  }
  result += QStringView(text).sliced(taken);
  return result;
}

/// Fills a theme's values from its text, element by element.
class ValueLoad {
 public:
  ValueLoad(LoadedTheme& theme, const QString& folder, ImageStates& states,
            const FaultReporter& report)
      : theme_(theme), folder_(folder), states_(states), report_(report) {}

  void run() {
    const int colors = static_cast<int>(theme_.values.schema().colors.size());
    const std::vector<int> images = imagesByRank();
    for (int color = 0; color < colors; ++color) {
      loadColor(color);
      for (const int image : images) {
        if (imageElement(image).readAfter == color) loadImage(image);
      }
    }
  }

 private:
  const ImageElement& imageElement(int index) const {
    return theme_.values.schema().images[static_cast<std::size_t>(index)];
  }

  std::vector<int> imagesByRank() const {
    std::vector<int> images(theme_.values.schema().images.size());
    for (std::size_t at = 0; at < images.size(); ++at)
      images[at] = static_cast<int>(at);
    std::sort(images.begin(), images.end(), [this](int left, int right) {
      return imageElement(left).loadRank < imageElement(right).loadRank;
    });
    return images;
  }

  QString valueOf(QLatin1String element) const {
    return ParseXML(QString(element), theme_.xml, report_);
  }

  void loadColor(int index) {
    const ColorElement& color = theme_.values.schema().colors[static_cast<std::size_t>(index)];
    theme_.values.setColor(index, valueOf(color.element));
  }

  void loadImage(int index) {
    const ImageElement& image = imageElement(index);
    const QString name = valueOf(image.element);
    const bool named = !name.isEmpty() && name != kNoImage;
    const QString path = named ? findThemeImage(folder_, name) : QString();
    theme_.values.setImage(index, path);
    states_.at(static_cast<std::size_t>(image.state)) = !named           ? SlotState::None
                                                        : path.isEmpty() ? SlotState::Missing
                                                                         : SlotState::Found;
    if (named && path.isEmpty()) theme_.warnings += missingImageText(image, name);
  }

  LoadedTheme& theme_;
  const QString& folder_;
  ImageStates& states_;
  const FaultReporter& report_;
};

}  // namespace

bool namesNoFile(const QString& name) {
  return std::any_of(name.begin(), name.end(), [](QChar sign) {
    return sign == u'/' || sign == u'\\' || sign == u'*' || sign == u'?' || sign.isNull();
  });
}

QString themeXmlName(const QStringList& names) {
  QString first;
  for (const QString& name : names) {
    if (isXmlName(name) && (first.isEmpty() || inNameOrder(name, first))) first = name;
  }
  return first;
}

QString missingImageText(const ImageElement& image, const QString& name) {
  return QString(image.missingWords) + u'"' + name + u"\" not found."_s;
}

QString findThemeXml(const QString& folder) {
  const QStringList names =
      QDir(folder).entryList(QDir::Files | QDir::Hidden | QDir::NoSymLinks, QDir::Unsorted);
  const QString first = themeXmlName(names);
  return first.isEmpty() ? QString() : pathIn(folder, first);
}

QString normaliseThemeXml(QString xml) {
  xml = replaced(xml, "><"_L1, ">\r\n<"_L1);
  if (xml.contains("\r\r"_L1))
    xml = replaced(replaced(xml, "\r"_L1, "\r\n"_L1), "\n"_L1, "\r\n"_L1);
  return xml;
}

QString findThemeImage(const QString& folder, const QString& name) {
  if (name.isEmpty() || namesNoFile(name)) return {};
  const QFileInfo file(pathIn(folder, name));
  return file.isFile() && !file.isSymLink() ? file.filePath() : QString();
}

std::optional<LoadedTheme> loadTheme(const QString& folder, ImageStates& states,
                                     const FaultReporter& report) {
  LoadedTheme theme;
  theme.xmlPath = findThemeXml(folder);
  if (theme.xmlPath.isEmpty()) return std::nullopt;
  theme.xml = normaliseThemeXml(fromCodePage(readFile(theme.xmlPath)));
  theme.values = ThemeValues(generationOf(theme.xml));
  ValueLoad(theme, folder, states, report).run();
  return theme;
}

}  // namespace quillane

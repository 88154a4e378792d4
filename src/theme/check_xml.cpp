// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "theme/check.h"
#include "theme/contrast.h"
#include "theme/load.h"
#include "theme/parsexml.h"
#include "theme/tags.h"
#include "theme/tagscan.h"

#include <QRegularExpression>

#include <algorithm>
#include <utility>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kMostNames = 20;

/// Names in a row; many are counted only.
QString listed(const QStringList& names) {
  QString text = names.first(std::min(names.size(), kMostNames)).join(", "_L1);
  if (names.size() > kMostNames) text += u" and %1 more"_s.arg(names.size() - kMostNames);
  return text;
}

/// How often an element stands in the text, and what the first says.
struct Written {
  int times = 0;
  QString value;
  bool isHidden = true;  ///< It stands in comments alone.
};

/// Looks at the elements of one theme.
class XmlCheck {
 public:
  explicit XmlCheck(const QString& xml)
      : text_(normaliseThemeXml(xml)), schema_(schemaOf(generationOf(text_))) {
    checked_.values = ThemeValues(schema_.generation);
    for (const ScannedTag& tag : scanTags(xml))
      take(tag);
  }

  CheckedXml run() && {
    int slot = 0;
    for (const ImageElement& image : schema_.images)
      checkImage(image, slot++);
    int index = 0;
    for (const ColorElement& color : schema_.colors)
      checkColor(color, index++);
    for (const ThemeTag& tag : kThemeTags)
      if (written_.contains(tag.element) || !unknown_.contains(tag.element))
        checkReading(tag.element, written_.value(tag.element).value);
    checkElements();
    checked_.findings += closeColorFindings(checked_.values);
    return std::move(checked_);
  }

 private:
  template <typename Rows>
  static bool isRow(const Rows& rows, QStringView name) {
    return std::any_of(rows.begin(), rows.end(),
                       [name](const auto& row) { return row.element == name; });
  }

  void take(const ScannedTag& tag) {
    const bool isKnown = isRow(schema_.colors, tag.name) || isRow(schema_.images, tag.name) ||
                         (tag.inComment && isRow(kThemeTags, tag.name));
    if (isKnown) {
      Written& element = written_[tag.name.toString()];
      if (element.times++ == 0) element.value = tag.value.toString();
      element.isHidden &= tag.inComment;
    } else if (!tag.inComment && tag.name == schema_.root) {
      hasRoot_ = true;
    } else if (!tag.inComment) {
      unknown_.insert(clipped(tag.name));
    }
  }

  void add(Severity severity, const QString& text) { checked_.findings += {severity, text}; }

  /// Tells when a reader finds something else than is meant, or meets a fault, of which the first
  /// is told; true when it does neither.
  bool checkReading(QLatin1String element, const QString& meant) {
    bool isFaulty = false;
    const QString trouble = misreading(element, text_, meant, [&](const Fault& fault) {
      if (!isFaulty) add(Severity::Error, fault.description());
      isFaulty = true;
    });
    if (!isFaulty && !trouble.isEmpty()) add(Severity::Error, trouble);
    return !isFaulty && trouble.isEmpty();
  }

  void checkImage(const ImageElement& image, int slot) {
    const QString source = written_.value(image.element).value;
    checked_.sources.emplace_back();
    checked_.named.insert(source);
    if (!checkReading(image.element, source) || source.isEmpty() || source == kNoImage) return;
    if (namesNoFile(source))
      add(Severity::Error,
          u"%1: %2 cannot be the name of a file."_s.arg(image.element, quoted(source)));
    else
      checked_.sources[static_cast<std::size_t>(slot)] = source;
  }

  void checkColor(const ColorElement& color, int index) {
    static const QRegularExpression kForm(u"\\A0x[0-9A-Fa-f]{6}\\z"_s);
    const auto element = written_.constFind(color.element);
    const bool isWritten = element != written_.cend();
    const QString value = isWritten ? element->value : QString();
    if (!isWritten) missing_ += color.element;
    const bool isSame = checkReading(color.element, value.mid(2));
    if (isSame) checked_.values.setColor(index, value.mid(2));
    if (isSame && isWritten && !kForm.match(value).hasMatch())
      add(Severity::Error, u"%1: %2 is no colour, which is 0x and six hexadecimal digits."_s.arg(
                               color.element, quoted(value)));
  }

  void checkElements() {
    if (!hasRoot_) add(Severity::Error, u"The root element \"%1\" is missing."_s.arg(schema_.root));
    if (!missing_.isEmpty())
      add(Severity::Warning, u"Colours that are missing: %1."_s.arg(listed(missing_)));
    QStringList doubled;
    QStringList hidden;
    for (auto element = written_.cbegin(); element != written_.cend(); ++element) {
      if (element->times > 1) doubled += element.key();
      if (element->isHidden && !isRow(kThemeTags, element.key())) hidden += element.key();
    }
    tellNames(doubled, u"Elements that come again, of which the first counts: %1."_s);
    tellNames(hidden,
              u"Elements that stand in a comment, which only some readers look into: %1."_s);
    tellNames(QStringList(unknown_.cbegin(), unknown_.cend()), u"Elements that are unknown: %1."_s);
  }

  void tellNames(QStringList names, const QString& words) {
    if (names.isEmpty()) return;
    names.sort();
    add(Severity::Warning, words.arg(listed(names)));
  }

  QString text_;
  const ThemeSchema& schema_;
  QHash<QString, Written> written_;
  QSet<QString> unknown_;
  QStringList missing_;
  bool hasRoot_ = false;
  CheckedXml checked_;
};

}  // namespace

CheckedXml checkXml(const QString& xml) {
  return XmlCheck(xml).run();
}

QList<Finding> closeColorFindings(const ThemeValues& values) {
  QStringList close;
  for (const int index : closeColors(values))
    close += values.schema().colors[static_cast<std::size_t>(index)].element;
  if (close.isEmpty()) return {};
  return {{Severity::Warning,
           u"Colours that are too close to tell apart: %1."_s.arg(close.join(", "_L1))}};
}

QString misreading(QLatin1String element, const QString& text, const QString& meant,
                   const FaultReporter& report) {
  const QString read = ParseXML(QString(element), text, report);
  if (read == meant) return {};
  return u"\"%1\" will be read as %2 and not as %3."_s.arg(element, quoted(read), quoted(meant));
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/themecheck.h"

#include "shell/imagerules.h"
#include "shell/picturefacts.h"

#include <QFileInfo>
#include <QMap>

#include <utility>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

/// What a fact says against a picture.
struct FactWords {
  bool PictureFacts::*fact;
  bool odd;
  QLatin1String words;
};

constexpr FactWords kFactWords[] = {
    {&PictureFacts::isDamaged, true, "%1 is damaged."_L1},
    {&PictureFacts::isInterlaced, true, "%1 is interlaced, which phones do not show."_L1},
    {&PictureFacts::isAnimated, true, "%1 is animated, and phones show still pictures."_L1},
    {&PictureFacts::isBaseline, false,
     "%1 is no baseline JPEG but a progressive one or the like, which phones do not show."_L1},
};

/// Looks at each picture once, and at its size for each slot that shows it.
class PictureCheck {
 public:
  explicit PictureCheck(const CheckedTheme& theme) : theme_(theme) {}

  QList<Finding> run() && {
    std::size_t slot = 0;
    for (const ImageElement& image : theme_.schema->images) {
      const QString& source = theme_.sources[slot++];
      if (!source.isEmpty()) checkSize(image, source, factsOf(source).size);
    }
    return std::move(findings_);
  }

 private:
  const PictureFacts& factsOf(const QString& source) {
    const auto known = facts_.constFind(source);
    if (known != facts_.cend()) return *known;
    const PictureFacts facts = pictureFacts(theme_.files[source]);
    if (takesForm(*theme_.schema, facts.form))
      checkFacts(facts, source);
    else
      add(wrongFormText(*theme_.schema, clipped(source)));
    return *facts_.insert(source, facts);
  }

  void checkFacts(const PictureFacts& facts, const QString& source) {
    for (const FactWords& row : kFactWords)
      if (facts.*row.fact == row.odd) add(QString(row.words).arg(quoted(source)));
  }

  /// A size that nothing tells is no finding of its own.
  void checkSize(const ImageElement& image, const QString& source, QSize size) {
    if (!size.isValid() || takesSize(image, size)) return;
    add(u"%1: %2 has %3 pixels and must have %4%5."_s.arg(
        image.element, quoted(source), pixelsText(size),
        image.rule == SizeRule::Exact ? QString() : u"at most "_s, pixelsText(image.size)));
  }

  void add(const QString& text) { findings_.append(Finding{Severity::Error, text}); }

  const CheckedTheme& theme_;
  QMap<QString, PictureFacts> facts_;
  QList<Finding> findings_;
};

}  // namespace

QList<Finding> checkPictures(const CheckedTheme& theme) {
  return theme.schema == nullptr ? QList<Finding>() : PictureCheck(theme).run();
}

CheckedTheme checkTheme(const QString& themePath) {
  CheckedTheme theme = checkContents(readContents(themePath), QFileInfo(themePath).fileName());
  theme.findings += checkPictures(theme);
  return theme;
}

}  // namespace quillane

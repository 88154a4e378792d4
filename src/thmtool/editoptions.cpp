// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "thmtool/editoptions.h"

#include <QCommandLineParser>
#include <QRegularExpression>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

constexpr OptionRow kRows[] = {
    {"set"_L1, "ELEMENT=RRGGBB"_L1, "set a colour; without digits, its default (3G: empty)"_L1},
    {"image"_L1, "ELEMENT=PATH"_L1, "set an image; without a path, none"_L1},
    {"tag"_L1, "ELEMENT=TEXT"_L1, "set an authoring tag, as in Theme_name=Tea"_L1},
    {"no-index"_L1, ""_L1, "leave out index.txt"_L1},
    {"no-compress"_L1, ""_L1, "keep the line ends of the XML"_L1},
    {"no-tags"_L1, ""_L1, "leave out the authoring tags"_L1},
};

QList<Assignment> readAssignments(const QCommandLineParser& given, const QString& option) {
  QList<Assignment> assignments;
  for (const QString& word : given.values(option)) {
    const qsizetype sign = word.indexOf(u'=');
    if (sign < 0)
      throw UsageError(u"\"%1\" of --%2 has no \"=\" behind its element."_s.arg(word, option));
    assignments.append({word.left(sign), word.mid(sign + 1)});
  }
  return assignments;
}

void checkColors(const QList<Assignment>& colors) {
  static const QRegularExpression kDigits(u"\\A([0-9A-Fa-f]{6})?\\z"_s);
  for (const Assignment& color : colors)
    if (!kDigits.match(color.text).hasMatch())
      throw UsageError(
          u"\"%1\" of --set is no colour, which is six hexadecimal digits."_s.arg(color.text));
}

void checkTags(const QList<Assignment>& tags) {
  for (const Assignment& tag : tags)
    if (rowOfElement(kThemeTags, tag.element) < 0)
      throw UsageError(u"There is no authoring tag \"%1\"."_s.arg(tag.element));
}

}  // namespace

const std::span<const OptionRow> kEditOptions{kRows};

EditOptions readEditOptions(const QCommandLineParser& given) {
  EditOptions options;
  options.colors = readAssignments(given, u"set"_s);
  checkColors(options.colors);
  options.images = readAssignments(given, u"image"_s);
  options.tags = readAssignments(given, u"tag"_s);
  checkTags(options.tags);
  options.includeIndex = !given.isSet(u"no-index"_s);
  options.compress = !given.isSet(u"no-compress"_s);
  options.writeTags = !given.isSet(u"no-tags"_s);
  return options;
}

}  // namespace quillane

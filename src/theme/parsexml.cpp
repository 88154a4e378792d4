// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "theme/parsexml.h"

#include <QStringMatcher>

#include <algorithm>
#include <optional>
#include <utility>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

/// The next place of something at or after a position that only grows, the text's end for none.
/// All questions together search the text once.
template <typename Find>
class Cursor {
 public:
  Cursor(QStringView text, Find find) : text_(text), find_(std::move(find)) {}

  qsizetype next(qsizetype from) {
    if (at_ < from) {
      const qsizetype found = find_(text_, from);
      at_ = found < 0 ? text_.size() : found;
    }
    return at_;
  }

 private:
  QStringView text_;
  Find find_;
  qsizetype at_ = -1;
};

auto cursorOf(QStringView text, QLatin1String word) {
  return Cursor(text, [word](QStringView in, qsizetype from) { return in.indexOf(word, from); });
}

auto cursorOfNoBlank(QStringView text) {
  return Cursor(text, [](QStringView in, qsizetype from) {
    const auto* const found = std::find_if(in.begin() + std::min(from, in.size()), in.end(),
                                           [](QChar sign) { return sign != u' '; });
    return static_cast<qsizetype>(found - in.begin());
  });
}

Fault brokenTag(const QString& name, const QString& words, int line = __builtin_LINE()) {
  return Fault(FaultNumber::BadCall, u"The element \"%1\" %2."_s.arg(name, words), line);
}

/// Walks the matches of a name up to the first that is a tag of that name.
class TagSearch {
 public:
  TagSearch(const QString& name, QStringView text)
      : name_(name),
        text_(text),
        close_(cursorOf(text, "/>"_L1)),
        tab_(cursorOf(text, "\t"_L1)),
        blank_(cursorOf(text, " "_L1)),
        noBlank_(cursorOfNoBlank(text)) {}

  /// The tag from its name to its end mark, or nothing.
  std::optional<QStringView> find(const FaultReporter& report) {
    const QStringMatcher matcher(name_);
    for (qsizetype at = matcher.indexIn(text_); at >= 0; at = matcher.indexIn(text_, at + 1)) {
      const qsizetype stop = close_.next(at);
      if (stop == text_.size()) {
        reportUnclosed(matcher, at, report);
        break;
      }
      if (firstPieceIsName(at, stop)) return text_.sliced(at, stop - at);
    }
    return std::nullopt;
  }

 private:
  /// Reports a match that nothing closes, and so every match after it.
  void reportUnclosed(const QStringMatcher& matcher, qsizetype first,
                      const FaultReporter& report) const {
    const Fault fault = brokenTag(name_, u"is never closed by \"/>\""_s);
    for (qsizetype at = first; at >= 0; at = matcher.indexIn(text_, at + 1))
      report(fault);
  }

  /// Whether only blanks stand between the match and the first tab; without a tab before `stop`,
  /// whether the match ends at the first blank.
  bool firstPieceIsName(qsizetype at, qsizetype stop) {
    const qsizetype tab = tab_.next(at);
    const qsizetype pieceEnd = tab < stop ? tab : std::min(blank_.next(at), stop);
    const qsizetype nameEnd = at + name_.size();
    return nameEnd <= pieceEnd && noBlank_.next(nameEnd) >= pieceEnd;
  }

  using WordCursor = decltype(cursorOf({}, {}));
  using NoBlankCursor = decltype(cursorOfNoBlank({}));

  const QString& name_;
  QStringView text_;
  WordCursor close_;
  WordCursor tab_;
  WordCursor blank_;
  NoBlankCursor noBlank_;
};

/// The first quoted text at or after a position, however far it is.
std::optional<QStringView> quotedAfter(QStringView text, qsizetype from) {
  const qsizetype open = text.indexOf(u'"', from);
  const qsizetype close = open < 0 ? -1 : text.indexOf(u'"', open + 1);
  if (close < 0) return std::nullopt;
  return text.sliced(open + 1, close - open - 1);
}

/// A name with a blank at an end answers to no piece, since pieces are stripped.
bool canAnswer(const QString& name) {
  return !name.isEmpty() && name.front() != u' ' && name.back() != u' ';
}

}  // namespace

QString ParseXML(const QString& name, const QString& themeXml, const FaultReporter& report) {
  if (!canAnswer(name)) return {};
  const QStringView text(themeXml);
  const std::optional<QStringView> tag = TagSearch(name, text).find(report);
  if (!tag) return {};
  const std::optional<QStringView> value = quotedAfter(text, tag->begin() - text.begin());
  if (!value) {
    report(brokenTag(name, u"has no value in double quotes"_s));
    return {};
  }
  const qsizetype prefix = tag->contains("Color="_L1) ? 2 : 0;
  return value->sliced(std::min(prefix, value->size())).toString();
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "theme/tagscan.h"

#include <QLatin1String>

#include <algorithm>
#include <utility>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1String kNameEnds(" \t\r\n/>=<\"'");
constexpr QLatin1String kValueMarks("\"'><");

/// The first place at or after a position where one of the signs stands, the text's end for none.
qsizetype firstOf(QLatin1String signs, QStringView text, qsizetype from) {
  const auto* const found = std::find_if(text.begin() + from, text.end(),
                                         [signs](QChar sign) { return signs.contains(sign); });
  return found - text.begin();
}

class TagScan {
 public:
  explicit TagScan(QStringView text) : text_(text) {}

  QList<ScannedTag> run() {
    for (qsizetype at = 0; at < text_.size();)
      at = step(at);
    return std::move(tags_);
  }

 private:
  /// Looks at one place and returns the next to look at.
  qsizetype step(qsizetype at) {
    const QStringView rest = text_.sliced(at);
    if (rest.startsWith("<!--"_L1)) inComment_ = true;
    if (rest.startsWith("-->"_L1)) inComment_ = false;
    const bool isTag =
        rest.size() > 1 && rest[0] == u'<' && (rest[1].isLetter() || rest[1] == u'_');
    return isTag ? tag(at + 1) : at + 1;
  }

  qsizetype tag(qsizetype at) {
    const qsizetype nameEnd = firstOf(kNameEnds, text_, at);
    ScannedTag tag{text_.sliced(at, nameEnd - at), {}, inComment_};
    const qsizetype open = firstOf(kValueMarks, text_, nameEnd);
    qsizetype end = open;
    if (open < text_.size() && text_[open] != u'>' && text_[open] != u'<') {
      const qsizetype close = text_.indexOf(text_[open], open + 1);
      if (close >= 0) tag.value = text_.sliced(open + 1, close - open - 1);
      end = close < 0 ? open + 1 : close + 1;
    }
    tags_.append(tag);
    return end;
  }

  QStringView text_;
  QList<ScannedTag> tags_;
  bool inComment_ = false;
};

}  // namespace

QList<ScannedTag> scanTags(QStringView text) {
  return TagScan(text).run();
}

}  // namespace quillane

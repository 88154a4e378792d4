// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "theme/check.h"

#include "theme/codepage.h"
#include "theme/load.h"

#include <algorithm>
#include <utility>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kLongestText = 80;

// What no theme needs more than. A picture of 256 colours for each slot, all of them noise that the
// compression of GIFs makes half as large again, with palettes, XML, index and the blocks of the
// archive, comes to 55 KiB in generation 2 and to 112 KiB in 3G. What the phones themselves refuse
// is not known to us; what is larger carries something that no phone shows.
constexpr qint64 kMostBytes2 = 64 << 10;
constexpr qint64 kMostBytes3G = 128 << 10;

qint64 mostBytes(Generation generation) {
  return generation == Generation::Two ? kMostBytes2 : kMostBytes3G;
}

class ContentsCheck {
 public:
  ContentsCheck(const ArchiveContents& contents, QString fileName)
      : contents_(contents), fileName_(std::move(fileName)) {
    for (qsizetype at = 0; at < contents.bytes.size(); ++at)
      theme_.files.insert(contents.result.members[at].name, contents.bytes[at]);
  }

  CheckedTheme run() && {
    if (const int code = contents_.result.code; code != 0) {
      // Below the first line stands what to do in the window.
      add(Severity::Error, archiveError(code, fileName_).text.section(u'\n', 0, 0).trimmed());
      return std::move(theme_);
    }
    theme_.findings += memberFindings(contents_.result);
    const QString xmlName = checkXmlNames();
    if (xmlName.isEmpty()) return std::move(theme_);
    CheckedXml xml = checkXml(fromCodePage(theme_.files[xmlName]));
    theme_.schema = &xml.values.schema();
    theme_.sources = std::move(xml.sources);
    theme_.findings += xml.findings;
    checkDoubles();
    checkUnnamed(xml.named);
    theme_.findings += indexFindings(contents_, unlistedImage());
    checkSources();
    checkSize();
    return std::move(theme_);
  }

 private:
  void add(Severity severity, const QString& text) { theme_.findings += {severity, text}; }

  /// The name of the XML that is taken.
  QString checkXmlNames() {
    QStringList xmls;
    for (const QString& name : theme_.files.keys())
      if (isXmlName(name)) xmls += name;
    QString taken = themeXmlName(xmls);
    if (taken.isEmpty())
      add(Severity::Error, missingXmlError(fileName_).text);
    else if (xmls.size() > 1)
      add(Severity::Warning,
          u"There are %1 XML files, of which %2 is taken."_s.arg(xmls.size()).arg(quoted(taken)));
    return taken;
  }

  /// A save stores a file once for each slot that shows it.
  void checkDoubles() {
    QHash<QString, int> times;
    QSet<QString> told;
    for (qsizetype at = 0; at < contents_.bytes.size(); ++at) {
      const QString& name = contents_.result.members[at].name;
      const auto uses = std::count(theme_.sources.begin(), theme_.sources.end(), name);
      const bool isSame = contents_.bytes[at] == theme_.files.value(name);
      if ((++times[name] <= std::max<qsizetype>(uses, 1) && isSame) || told.contains(name))
        continue;
      told.insert(name);
      add(Severity::Warning,
          u"%1 is in the archive several times; the last one counts."_s.arg(quoted(name)));
    }
  }

  /// The small title image of generation 2, unless its file is in the index for another slot.
  QString unlistedImage() const {
    if (theme_.schema->generation != Generation::Two) return {};
    const QString& small = theme_.sources.at(gen2::TitleImageSmall);
    const QList<ArchiveMember>& members = contents_.result.members;
    const auto times =
        std::count_if(members.begin(), members.end(),
                      [&small](const ArchiveMember& member) { return member.name == small; });
    const auto uses = std::count(theme_.sources.begin(), theme_.sources.end(), small);
    return times == 1 && uses > 1 ? QString() : small;
  }

  void checkUnnamed(const QSet<QString>& named) {
    QSet<QString> told;
    for (const ArchiveMember& member : contents_.result.members) {
      const QString& name = member.name;
      if (isXmlName(name) || isIndexName(name) || told.contains(name)) continue;
      told.insert(name);
      if (!named.contains(name))
        add(Severity::Note, u"No element names the file %1."_s.arg(quoted(name)));
      else if (name == kNoImage)
        add(Severity::Error,
            u"%1 stands for no image; the file of that name is not shown."_s.arg(quoted(name)));
    }
  }

  /// Tells the images that are not there and empties their slots.
  void checkSources() {
    std::size_t slot = 0;
    for (const ImageElement& image : theme_.schema->images) {
      QString& source = theme_.sources[slot++];
      if (source.isEmpty() || theme_.files.contains(source)) continue;
      add(Severity::Error, missingImageText(image, clipped(source)));
      source.clear();
    }
  }

  void checkSize() {
    const qint64 most = mostBytes(theme_.schema->generation);
    if (contents_.fileSize > most)
      add(Severity::Warning, u"The theme has %1 bytes; phones may refuse more than %2."_s.arg(
                                 QString::number(contents_.fileSize), QString::number(most)));
  }

  const ArchiveContents& contents_;
  QString fileName_;
  CheckedTheme theme_;
};

}  // namespace

QString clipped(QStringView text) {
  return text.size() > kLongestText ? text.first(kLongestText).toString() + u"..."_s
                                    : text.toString();
}

QString quoted(QStringView text) {
  return u'"' + clipped(text) + u'"';
}

CheckedTheme checkContents(const ArchiveContents& contents, const QString& fileName) {
  return ContentsCheck(contents, fileName).run();
}

}  // namespace quillane

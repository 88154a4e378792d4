// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "theme/archive_reader.h"
#include "theme/check.h"

#include <QMap>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

struct PassedWords {
  Severity severity;
  QLatin1String words;
};

/// By `PassedReason`.
constexpr PassedWords kPassedWords[] = {
    {Severity::Note, "%1 is a folder, which a theme does not need."_L1},
    {Severity::Warning, "%1 is a link and is passed over."_L1},
    {Severity::Warning, "%1 is a device or the like and is passed over."_L1},
    {Severity::Warning, "%1 is passed over: no file can have such a name."_L1},
};

/// Names that are the same but for letter case.
QList<Finding> caseFindings(const QMap<QString, QStringList>& alike) {
  QList<Finding> findings;
  for (const QStringList& names : alike)
    for (const QString& name : names.sliced(1))
      findings += {Severity::Warning,
                   u"%1 and %2 differ in letter case only."_s.arg(quoted(names[0]), quoted(name))};
  return findings;
}

/// The entries of an index, one for each line; its last line may have an end.
QStringList entriesOf(const QByteArray& index) {
  QStringList entries;
  QList<QByteArray> lines = index.split('\n');
  if (lines.constLast().isEmpty()) lines.removeLast();
  for (QByteArray& line : lines) {
    if (line.endsWith('\r')) line.chop(1);
    const qsizetype size = line.lastIndexOf(" <");
    // Names are read like those of the members.
    entries += size < 0 ? QString::fromLatin1(line)
                        : memberName(QByteArrayView(line).first(size)) +
                              QString::fromLatin1(line.sliced(size));
  }
  return entries;
}

Finding indexFinding(const QString& words) {
  return {Severity::Note, u"\"%1\" %2."_s.arg(kIndexName, words)};
}

/// Compares the entries with the members and tells the first that is wrong.
QList<Finding> entryFindings(const QStringList& entries, const QList<ArchiveMember>& members,
                             const QString& mayBeUnlisted) {
  qsizetype next = 0;
  for (const ArchiveMember& member : members) {
    if (isIndexName(member.name)) continue;
    const QString entry = u"%1 <%2>"_s.arg(member.name, QString::number(member.size));
    if (entries.value(next) == entry)
      ++next;
    else if (member.name != mayBeUnlisted || entries.value(next).startsWith(member.name + " <"_L1))
      return {indexFinding(next < entries.size() ? u"says %1 where %2 belongs"_s.arg(
                                                       quoted(entries[next]), quoted(entry))
                                                 : u"ends before %1"_s.arg(quoted(entry)))};
  }
  if (next == entries.size()) return {};
  return {indexFinding(u"says %1, which is not in the archive"_s.arg(quoted(entries[next])))};
}

}  // namespace

QList<Finding> memberFindings(const ArchiveResult& archive) {
  QList<Finding> findings;
  QMap<QString, QStringList> alike;
  for (const PassedMember& passed : archive.passed) {
    const PassedWords& row = kPassedWords[static_cast<std::size_t>(passed.reason)];
    findings += {row.severity, QString(row.words).arg(quoted(passed.path))};
  }
  for (const auto& [name, size, path] : archive.members) {
    const QString lower = name.toLower();
    if (path != name)
      findings +=
          {Severity::Warning,
           u"%1 lies in a folder; all files of a theme lie side by side."_s.arg(quoted(path))};
    QStringList& names = alike[lower];
    if (names.contains(name)) continue;
    names += name;
    if (lower != name)
      findings += {Severity::Warning, u"The name %1 is not in lower case."_s.arg(quoted(name))};
  }
  return findings + caseFindings(alike);
}

QList<Finding> indexFindings(const ArchiveContents& contents, const QString& mayBeUnlisted) {
  const QList<ArchiveMember>& members = contents.result.members;
  for (qsizetype at = members.size() - 1; at >= 0; --at)
    if (isIndexName(members[at].name))
      return entryFindings(entriesOf(contents.bytes[at]), members, mayBeUnlisted);
  return {};
}

}  // namespace quillane

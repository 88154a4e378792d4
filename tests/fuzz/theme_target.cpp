// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/targets.h"
#include "shell/themecheck.h"
#include "theme/archive_reader.h"
#include "theme/contrast.h"
#include "theme/load.h"
#include "theme/tags.h"

#include <QFileInfo>
#include <QHash>

#include <algorithm>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

/// A link that lies in the work folder and leads out of it, and what it leads to.
const auto kLink = u"back.gif"_s;
const auto kOutside = u"outside.txt"_s;
constexpr QByteArrayView kUntouched = "untouched";

/// A work folder as a theme finds it, with nothing in it but the link.
class WorkFolder {
 public:
  WorkFolder() {
    scratch_.write(kOutside, kUntouched);
    QDir(scratch_.path()).mkdir(u"work"_s);
  }

  QString path() const { return scratch_.path(u"work"_s); }

  QString start(QByteArrayView archive) const {
    for (const QString& name : names(path()))
      QFile::remove(path() + u'/' + name);
    QFile::link(u"../"_s + kOutside, path() + u'/' + kLink);
    return scratch_.write(u"some.thm"_s, archive);
  }

  void expectUntouchedOutside() const {
    expect(names(scratch_.path()) == QStringList{kOutside, u"some.thm"_s, u"work"_s},
           "nothing comes into the folder above");
    expect(scratch_.read(kOutside) == kUntouched, "nothing is written through a link");
  }

  static QStringList names(const QString& folder) {
    return QDir(folder).entryList(
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
  }

 private:
  Scratch scratch_;
};

bool isBareName(const QString& name) {
  return !name.isEmpty() && name != u"." && name != u".." && !name.contains(u'/') &&
         !name.contains(u'\\') && !name.contains(QChar()) && name.toUtf8().size() <= 255;
}

bool isReaderCode(int code) {
  constexpr int codes[] = {Success,   UnexpectedEnd, Damaged,
                           NoArchive, BadChecksum,   WrongCompression};
  return std::find(std::begin(codes), std::end(codes), code) != std::end(codes);
}

void expectWithinLimits(const ArchiveResult& result) {
  expect(isReaderCode(result.code), "a code that bytes can have");
  expect(result.members.size() <= ArchiveLimits::kHeaders, "at most 1,000 members");
  qint64 total = 0;
  for (const ArchiveMember& member : result.members) {
    expect(isBareName(member.name), "a bare name");
    expect(member.size >= 0 && member.size <= ArchiveLimits::ofMember(member.name),
           "a member within its limit");
    total += member.size;
  }
  expect(total <= ArchiveLimits::kTotal, "members within the limit of all");
}

/// Everything in the folder is a member's file, and of every member the last file is there.
void expectMembersIn(const QString& folder, const ArchiveResult& result) {
  QHash<QString, qint64> sizes;
  for (const ArchiveMember& member : result.members)
    sizes[member.name] = member.size;
  // The member that an error came in is shorter than it says.
  const QString broken =
      result.code == Success || result.members.isEmpty() ? QString() : result.members.last().name;
  const bool linkStays = !sizes.contains(kLink);
  const QStringList names = WorkFolder::names(folder);
  expect(names.size() == sizes.size() + (linkStays ? 1 : 0), "a file for each name");
  for (const QString& name : names) {
    const QFileInfo file(folder + u'/' + name);
    if (linkStays && name == kLink) continue;
    expect(file.isFile() && !file.isSymLink(), "regular files alone");
    expect((file.permissions() & QFile::Permissions(0x7777)) == QFile::Permissions(0x6644),
           "files of mode 0644");
    expect(sizes.contains(name), "a file that a member brings");
    expect(file.size() == sizes[name] || (name == broken && file.size() < sizes[name]),
           "a file of the last size");
  }
}

void expectSameListing(const QString& theme, const ArchiveResult& extracted) {
  const ArchiveResult listed = listArchive(theme);
  expect(listed.code == extracted.code, "a listing ends as the extraction does");
  expect(std::equal(listed.members.begin(), listed.members.end(), extracted.members.begin(),
                    extracted.members.end(),
                    [](const ArchiveMember& left, const ArchiveMember& right) {
                      return left.name == right.name && left.size == right.size;
                    }),
         "a listing names what is extracted");
}

/// The regular files of the folder as a new archive. Large ones would take most of the time.
void expectPackable(const QString& folder) {
  static const Scratch scratch;
  constexpr qint64 kMost = 1 << 18;
  QStringList files;
  QList<qint64> sizes;
  qint64 total = 0;
  for (const QFileInfo& file :
       QDir(folder).entryInfoList(QDir::Files | QDir::Hidden | QDir::NoSymLinks, QDir::Name)) {
    files += file.filePath();
    sizes += file.size();
    total += file.size();
  }
  if (total > kMost) return;
  const QString packed = scratch.path(u"packed.thm"_s);
  packArchive(packed, files);
  const ArchiveResult listed = listArchive(packed);
  expect(listed.code == Success, "what was extracted can be packed and read");
  expect(std::equal(listed.members.begin(), listed.members.end(), sizes.begin(), sizes.end(),
                    [](const ArchiveMember& member, qint64 size) { return member.size == size; }),
         "a packed archive holds all files");
}

void expectImages(const LoadedTheme& theme, const ImageStates& states, const QString& folder) {
  const std::span<const ImageElement> slots = theme.values.schema().images;
  qsizetype missing = 0;
  for (std::size_t at = 0; at < slots.size(); ++at) {
    const QString& path = theme.values.image(static_cast<int>(at));
    const SlotState state = states[static_cast<std::size_t>(slots[at].state)];
    missing += state == SlotState::Missing ? 1 : 0;
    expect(path.isEmpty() == (state != SlotState::Found), "a path for what was found alone");
    if (path.isEmpty()) continue;
    const QFileInfo image(path);
    expect(image.path() == folder && image.isFile() && !image.isSymLink(),
           "an image that lies in the folder");
  }
  expect(theme.warnings.size() == missing, "a warning for each missing image");
}

void expectToldOf(const LoadedTheme& theme) {
  const int colors = static_cast<int>(theme.values.schema().colors.size());
  for (const int close : closeColors(theme.values))
    expect(close >= 0 && close < colors, "a close colour of the generation");
  readThemeTags(theme.xml, [](const Fault&) {});
  tagTime(theme.xmlPath);
}

}  // namespace

void themeTarget(QByteArrayView bytes) {
  static const WorkFolder work;
  const QString path = work.start(bytes);
  const ArchiveResult extracted = extractArchive(path, work.path());
  work.expectUntouchedOutside();
  expectWithinLimits(extracted);
  expectMembersIn(work.path(), extracted);
  expectSameListing(path, extracted);
  expectPackable(work.path());
  const QList<Finding> findings = checkTheme(path).findings;
  expect(extracted.code == Success || !findings.isEmpty(), "a finding for what cannot be read");
  expectBrief(findings);

  ImageStates states{};
  const std::optional<LoadedTheme> theme = loadTheme(work.path(), states, [](const Fault&) {});
  const bool hasXml = std::any_of(extracted.members.begin(), extracted.members.end(),
                                  [](const ArchiveMember& member) {
                                    return member.name.endsWith(".xml"_L1, Qt::CaseInsensitive);
                                  });
  expect(theme.has_value() == hasXml, "a theme wherever there is an XML");
  if (!theme) return;
  expectImages(*theme, states, work.path());
  expectToldOf(*theme);
}

}  // namespace quillane

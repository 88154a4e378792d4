// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <cstdint>

namespace quillane {

class ThemeValues;

/// Name of the member that lists the others.
inline constexpr QLatin1String kIndexName{"index.txt"};

/// Whether a member of this name is taken for the index, or for an XML; letter case does not count.
bool isIndexName(const QString& name);
bool isXmlName(const QString& name);

/// A regular member of a theme archive as the reader takes it: bare name, size in
/// bytes, and path.
struct ArchiveMember {
  QString name;
  qint64 size = 0;
  QString path{};  ///< As the archive has it, cut after what a name may have.
};

/// Why the reader passes over a member.
enum class PassedReason : std::uint8_t { Folder, Link, Device, Name };

/// A member that the reader does not take.
struct PassedMember {
  QString path;
  PassedReason reason;
};

/// Outcome of reading an archive; code 0 is success, `archiveError` has words for the others.
struct ArchiveResult {
  int code = 0;
  /// The members in archive order, repeats included.
  QList<ArchiveMember> members;
  QList<PassedMember> passed{};
};

/// Extracts the regular members of a theme into `folder` under their bare names, with the member's
/// time and mode 0644, later ones of the same name winning. Nothing is written outside the folder
/// or through a link that lies in it. What came before an error stays in the folder.
ArchiveResult extractArchive(const QString& themePath, const QString& folder);

/// Lists the members without writing anything.
ArchiveResult listArchive(const QString& themePath);

/// A theme archive in memory.
struct ArchiveContents {
  ArchiveResult result;
  /// The bytes of each member of the result; of a theme that is damaged, those that came before.
  QList<QByteArray> bytes;
  qint64 fileSize = 0;
};

/// Reads an archive and what its members hold, at most as much as the reader takes.
ArchiveContents readContents(const QString& themePath);

/// Why a theme cannot be shown, in the words of the window and of the tool.
struct ThemeError {
  int code = 0;  ///< The reader's, 0 for an archive without an XML file.
  QString title;
  QString text;
};

/// The error of a reader's code other than 0; `fileName` is the bare name of the theme file.
ThemeError archiveError(int code, const QString& fileName);

/// The error of an archive in which no XML file lies.
ThemeError missingXmlError(const QString& fileName);

/// Packs files into a new archive beside `themePath` and renames it over it. Members are the bare
/// file names in lower case with their files' times, in the order given. Throws `Fault`, also for
/// what the reader would refuse as too much; the old archive is then untouched.
void packArchive(const QString& themePath, const QStringList& files);

/// Version of the library that reads and writes archives, as it is in memory: "3.6.2".
QString archiveLibraryVersion();

/// The images that a saved theme packs: those of the filled slots in their order. Generation 2
/// leaves out a desktop image that is the background's too and an Asian title that is the large
/// one's, letter case aside; 3G lists a file once for each slot.
QStringList themeImages(const ThemeValues& values);

/// How the last line of an `index.txt` ends: bare in a saved theme, with CR LF from the TAR wizard.
enum class IndexEnd { Bare, LineEnd };

/// The bytes of `index.txt`: a line for each file, its lower-case name and its size in bytes as
/// "name <size>". Throws `Fault` for a file that cannot be measured.
QByteArray themeIndex(const QStringList& files, IndexEnd end);

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/modassociate.h"
#include "theme/files.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QList>
#include <QProcess>
#include <QStandardPaths>
#include <QStringList>
#include <QTemporaryFile>

#include <utility>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1String kEntryFile{"applications/quillane.desktop"};
constexpr QLatin1String kTypeFile{"mime/packages/quillane-theme.xml"};
constexpr QLatin1String kIconFolder{"icons/hicolor/"};
constexpr QLatin1String kIcons[] = {"/apps/quillane.png"_L1,
                                    "/mimetypes/application-x-quillane-theme.png"_L1};

/// Names the files that were added, one a line, so that the removal takes no others.
constexpr QLatin1String kNotes{"quillane/association"};

/// Programs that renew what desktops have read of a folder, where they are installed.
constexpr std::pair<QLatin1String, QLatin1String> kIndexers[] = {
    {"update-mime-database"_L1, "mime"_L1}, {"update-desktop-database"_L1, "applications"_L1}};

constexpr const char* kSection = "[Default Applications]";
constexpr const char* kType = "application/x-quillane-theme";
constexpr const char* kEntry = "quillane.desktop";

QDir dataFolder() {
  return QDir(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
}

QString defaultsFile() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
         "/mimeapps.list"_L1;
}

void saveWithFolder(const QString& path, const QByteArray& bytes) {
  const QString folder = QFileInfo(path).path();
  if (!QDir().mkpath(folder)) throw noPermission("write"_L1, folder);
  saveFile(path, bytes);
}

void removeFile(const QString& path) {
  const QFileInfo file(path);
  if ((file.exists() || file.isSymLink()) && !QFile::remove(path))
    throw noPermission("delete"_L1, path);
}

// The program's entry.

/// A text as the value of a desktop entry's key.
QString escaped(QString text) {
  constexpr std::pair<char16_t, QLatin1String> kEscapes[] = {
      {u'\\', "\\\\"_L1}, {u'\n', "\\n"_L1}, {u'\t', "\\t"_L1}, {u'\r', "\\r"_L1}};
  for (const auto& [letter, escape] : kEscapes)
    text.replace(letter, escape);
  return text;
}

/// A path as a word of a desktop entry's command.
QString quoted(const QString& path) {
  QString word;
  for (const QChar letter : path) {
    if (u"\"`$\\"_s.contains(letter)) word += u'\\';
    if (letter == u'%') word += letter;
    word += letter;
  }
  return u'"' + word + u'"';
}

/// The entry with the program's own path in place of its bare name.
QByteArray entryFor(const QByteArray& entry, const QString& program) {
  QList<QByteArray> lines = entry.split('\n');
  for (QByteArray& line : lines) {
    if (line.startsWith("TryExec=")) line = "TryExec=" + escaped(program).toUtf8();
    if (!line.startsWith("Exec=")) continue;
    const QByteArray arguments = line.contains(' ') ? line.mid(line.indexOf(' ')) : QByteArray();
    line = "Exec=" + escaped(quoted(program)).toUtf8() + arguments;
  }
  return lines.join('\n');
}

// The defaults: lines "type=entry;entry;", of which the first entry that is installed counts.

/// Numbers of the lines with the defaults for our type.
QList<qsizetype> linesOfType(const QList<QByteArray>& lines) {
  QList<qsizetype> found;
  bool inside = false;
  for (qsizetype at = 0; at < lines.size(); ++at) {
    const QByteArray line = lines[at].trimmed();
    if (line.startsWith('[')) inside = line == kSection;
    const qsizetype sign = line.indexOf('=');
    if (inside && sign > 0 && line.left(sign).trimmed() == kType) found += at;
  }
  return found;
}

QByteArray keyOf(const QByteArray& line) {
  return line.left(line.indexOf('=') + 1);
}

/// The entries of a line but ours.
QByteArray othersOf(const QByteArray& line) {
  QList<QByteArray> entries = line.mid(keyOf(line).size()).split(';');
  entries.removeIf([](const QByteArray& entry) { return entry.trimmed() == kEntry; });
  return entries.join(';');
}

QByteArray withDefault(const QByteArray& text) {
  const QByteArray ours = QByteArray(kType) + '=' + kEntry;
  QList<QByteArray> lines = text.split('\n');
  const QList<qsizetype> found = linesOfType(lines);
  for (const qsizetype at : found) {
    const QByteArray others = othersOf(lines[at]);
    lines[at] = keyOf(lines[at]) + kEntry + (others.trimmed().isEmpty() ? "" : ';' + others);
  }
  if (!found.isEmpty()) return lines.join('\n');
  const qsizetype section = lines.indexOf(kSection);
  // A section of our own goes on top, where it comes off again whatever the rest ends with.
  if (section < 0) return QByteArray(kSection) + '\n' + ours + "\n\n" + text;
  lines.insert(section + 1, ours);
  return lines.join('\n');
}

QByteArray withoutDefault(const QByteArray& text) {
  QList<QByteArray> lines = text.split('\n');
  const QList<qsizetype> found = linesOfType(lines);
  for (auto at = found.rbegin(); at != found.rend(); ++at) {
    const QByteArray others = othersOf(lines[*at]);
    if (others.trimmed().isEmpty())
      lines.removeAt(*at);
    else
      lines[*at] = keyOf(lines[*at]) + others;
  }
  const QByteArray rest = lines.join('\n');
  const QByteArray top = QByteArray(kSection) + "\n\n";
  return rest != text && rest.startsWith(top) ? rest.mid(top.size()) : rest;
}

void changeDefaults(QByteArray (*changed)(const QByteArray&)) {
  const QString path = defaultsFile();
  const QByteArray before = QFileInfo::exists(path) ? readFile(path) : QByteArray();
  const QByteArray after = changed(before);
  if (after == before) return;
  if (after.isEmpty())
    removeFile(path);
  else
    saveWithFolder(path, after);
}

// The files.

QStringList addedFiles() {
  const QString notes = dataFolder().filePath(kNotes);
  if (!QFileInfo::exists(notes)) return {};
  return QString::fromUtf8(readFile(notes)).split(u'\n', Qt::SkipEmptyParts);
}

QStringList shippedFiles(const QDir& share) {
  QStringList files{kTypeFile, kEntryFile};
  const QDir icons(share.filePath(kIconFolder));
  for (const QString& size : icons.entryList({u"*x*"_s}, QDir::Dirs))
    for (const QLatin1String icon : kIcons)
      if (icons.exists(size + icon)) files += kIconFolder + size + icon;
  return files;
}

/// Lets desktops notice what changed. They read the same files without that, only later or more
/// slowly, and a package of somebody else's can make an indexer fail: what comes of it is not ours.
void renewIndexes() {
  const QDir home = dataFolder();
  for (const auto& [name, folder] : kIndexers) {
    const QString indexer = QStandardPaths::findExecutable(name);
    if (indexer.isEmpty() || !home.exists(folder)) continue;
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(indexer, {home.filePath(folder)});
    process.waitForFinished();
  }
  // Icons are looked for anew when the time of their folder changes.
  QTemporaryFile passing(home.filePath(kIconFolder + ".quillane-XXXXXX"_L1));
  if (passing.open()) passing.fileName();  // It has no place in the folder until it is asked for.
}

}  // namespace

void CreateFileAssociation(const QString& program) {
  const QDir share(QFileInfo(program).path() + "/../share"_L1);
  const QDir home = dataFolder();
  QStringList added = addedFiles();
  QList<std::pair<QString, QByteArray>> copies;
  for (const QString& file : shippedFiles(share)) {
    if (home.exists(file) && !added.contains(file)) continue;
    const QByteArray bytes = readFile(share.filePath(file));
    copies.push_back({file, file == kEntryFile ? entryFor(bytes, program) : bytes});
    if (!added.contains(file)) added += file;
  }
  if (!copies.isEmpty()) saveWithFolder(home.filePath(kNotes), added.join(u'\n').toUtf8() + '\n');
  for (const auto& [file, bytes] : copies)
    saveWithFolder(home.filePath(file), bytes);
  changeDefaults(&withDefault);
  renewIndexes();
}

void RemoveFileAssociation() {
  const QDir home = dataFolder();
  changeDefaults(&withoutDefault);
  for (const QString& file : addedFiles())
    removeFile(home.filePath(file));
  removeFile(home.filePath(kNotes));
  renewIndexes();
}

}  // namespace quillane

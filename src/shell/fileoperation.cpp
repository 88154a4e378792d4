// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/fileoperation.h"

#include "shell/fileoperation_platform.h"
#include "shell/files.h"
#include "theme/files.h"
#include "theme/files_platform.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>
#include <QUuid>

#include <algorithm>
#include <filesystem>
#include <utility>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kChunk = 262144;
/// The disk is made to follow from time to time, or the last flush would take all the time.
constexpr qint64 kFlushEvery = 64 * kChunk;
constexpr int kLongestName = 255;
const QString kHidden = u".quillane-"_s;

/// What a step does to a file, as words of its faults.
struct Doing {
  QLatin1String verb, participle;
};
constexpr Doing kWriting{"write"_L1, "written"_L1};
constexpr Doing kMoving{"move"_L1, "moved"_L1};
constexpr Doing kDeleting{"delete"_L1, "deleted"_L1};
constexpr Doing kRenaming{"rename"_L1, "renamed"_L1};

/// Whether a name is taken, be it by a link that leads nowhere.
bool isTaken(const QFileInfo& file) {
  return file.exists() || file.isSymLink();
}

bool isPermission(std::errc error) {
  return error == std::errc::permission_denied || error == std::errc::operation_not_permitted ||
         error == std::errc::read_only_file_system;
}

Fault missing(const QString& path, int line = __builtin_LINE()) {
  const QString folder = QFileInfo(path).path();
  return FolderExists(folder) ? notFound(path, line) : folderNotFound(folder, line);
}

Fault faultOf(std::errc error, const Doing& doing, const QString& path,
              int line = __builtin_LINE()) {
  if (error == std::errc::no_such_file_or_directory) return missing(path, line);
  if (isPermission(error)) return noPermission(doing.verb, path, line);
  if (error == std::errc::no_space_on_device) return noRoom(doing.verb, path, line);
  const QString reason = QString::fromLocal8Bit(std::make_error_code(error).message());
  return Fault(FaultNumber::DeviceFault,
               u"File \"%1\" could not be %2: %3."_s.arg(path, doing.participle, reason), line);
}

/// A rename fails on account of either end.
Fault renameFault(std::errc error, const QString& from, const QString& to,
                  int line = __builtin_LINE()) {
  const bool barsSource = isPermission(error) && QFileInfo(QFileInfo(to).path()).isWritable();
  return barsSource || !isTaken(QFileInfo(from)) ? faultOf(error, kMoving, from, line)
                                                 : faultOf(error, kWriting, to, line);
}

Fault uncreated(const QString& path, const QString& reason, int line = __builtin_LINE()) {
  const QFileInfo folder(QFileInfo(path).path());
  if (!folder.isDir()) return folderNotFound(folder.filePath(), line);
  if (!folder.isWritable()) return noPermission(kWriting.verb, path, line);
  return Fault(FaultNumber::DeviceFault,
               u"File \"%1\" could not be written: %2."_s.arg(path, reason), line);
}

void check(std::errc error, const Doing& doing, const QString& path, int line = __builtin_LINE()) {
  if (error != std::errc{}) throw faultOf(error, doing, path, line);
}

/// Throws for what is no file. A link counts as what it leads to.
void checkFile(const QString& path) {
  const QFileInfo file(path);
  if (!file.exists()) throw missing(path);
  if (file.isDir())
    throw Fault(FaultNumber::NoPermission, u"\"%1\" is a folder, no file."_s.arg(path));
  if (!file.isFile())
    throw Fault(FaultNumber::NoPermission, u"\"%1\" is a device or a pipe, no file."_s.arg(path));
}

/// Throws for what is neither a file nor a link, wherever that leads.
void checkFileOrLink(const QString& path) {
  if (!QFileInfo(path).isSymLink()) checkFile(path);
}

/// Throws for what no file may replace.
void checkReplaced(const QString& path) {
  const QFileInfo file(path);
  if (file.isDir())
    throw Fault(FaultNumber::NoPermission,
                u"A folder \"%1\" is in the way. Move it or give it another name."_s.arg(path));
  if (!file.isFile() && !file.isSymLink()) throw irreplaceable(path);
}

bool isEquivalent(const QString& path, const QString& other) {
  std::error_code oneIsMissing;
  return std::filesystem::equivalent(QFileInfo(path).filesystemFilePath(),
                                     QFileInfo(other).filesystemFilePath(), oneIsMissing);
}

/// Whether a file would meet itself in a folder: by its place, or because its content is what lies
/// there. A link in the folder is not what it leads to.
bool isSame(const QString& source, const QString& target) {
  return isEquivalent(QFileInfo(source).path(), QFileInfo(target).path()) ||
         (!QFileInfo(target).isSymLink() && isEquivalent(source, target));
}

/// The path of a written file, which has no name on the disk until it is asked for one.
QString nameWritten(QTemporaryFile& file, const QString& target) {
  QString path = file.fileName();
  if (path.isEmpty()) throw uncreated(target, file.errorString());
  return path;
}

/// What tells whether a file was written to meanwhile.
std::pair<qint64, QDateTime> stampOf(const QString& path) {
  const QFileInfo file(path);
  return {file.size(), file.lastModified()};
}

/// What may be done with the name of a target.
enum class Claim {
  Free,     ///< Nobody has it; it may be taken as long as this is so.
  Replace,  ///< Whoever has it gives way.
  Skip,
  Stop
};

bool isGranted(Claim claim) {
  return claim == Claim::Free || claim == Claim::Replace;
}

class Operation {
 public:
  Operation(FileVerb verb, const QStringList& sources, const QString& targetFolder,
            FileOperationWatcher& watcher);

  FileOperationResult run();

 private:
  struct Placed {
    Claim claim;
    std::errc error{};
  };

  // What returns bool returns false when the watcher stops the operation.
  bool workOnOrReport(const QString& source);
  bool workOn(const QString& source);
  bool copy(const QString& source, const QString& target);
  bool move(const QString& source, const QString& target);
  bool trash(const QString& source);

  bool carry(const QString& source, const QString& target, Claim claim);
  Claim copyAs(const QString& source, const QString& target, Claim claim);
  bool copyBytes(QFile& from, QTemporaryFile& to, const QString& target);
  Claim claimOf(const QString& source, const QString& target);
  Placed place(const QString& from, const QString& source, const QString& target, Claim claim);

  FileVerb verb_;
  const QStringList& sources_;
  QString targetFolder_;
  FileOperationWatcher& watcher_;
  FileOperationResult result_;
  QList<qint64> weights_;  ///< What each source counts in the progress.
  qint64 done_ = 0;        ///< With the sources before this one.
  qint64 all_ = 0;
  qsizetype kept_ = 0;  ///< Files that the trash refused and the watcher did not give up.
  bool left_ = false;
};

Operation::Operation(FileVerb verb, const QStringList& sources, const QString& targetFolder,
                     FileOperationWatcher& watcher)
    : verb_(verb), sources_(sources), targetFolder_(targetFolder), watcher_(watcher) {
  const bool copies = verb == FileVerb::Copy || verb == FileVerb::Move;
  if (copies && !FolderExists(targetFolder)) throw folderNotFound(targetFolder);
  for (const QString& source : sources) {
    weights_ << (copies ? QFileInfo(source).size() : 1);
    all_ += weights_.last();
  }
}

FileOperationResult Operation::run() {
  for (qsizetype i = 0; i < sources_.size(); ++i) {
    left_ = i + 1 < sources_.size();
    if (!workOnOrReport(sources_[i])) {
      result_.stopped = true;
      break;
    }
    done_ += weights_[i];
  }
  result_.allKept = kept_ != 0 && kept_ == sources_.size();
  return result_;
}

bool Operation::workOnOrReport(const QString& source) {
  try {
    return watcher_.progress(source, done_, all_) && workOn(source);
  } catch (const Fault& fault) {
    result_.failed = true;
    if (left_) return watcher_.goOnAfter(fault);
    watcher_.report(fault);
    return true;
  }
}

bool Operation::workOn(const QString& source) {
  if (verb_ == FileVerb::Copy)
    checkFile(source);
  else
    checkFileOrLink(source);
  const QString target = withSeparator(targetFolder_) + SplitPath(source, PathPart::Name);
  switch (verb_) {
    case FileVerb::Copy:
      return copy(source, target);
    case FileVerb::Move:
      return move(source, target);
    case FileVerb::Trash:
      return trash(source);
    case FileVerb::Delete:
      break;
  }
  check(removeFile(source), kDeleting, source);
  return true;
}

bool Operation::copy(const QString& source, const QString& target) {
  if (isSame(source, target))
    throw Fault(FaultNumber::FileAlreadyThere,
                u"File \"%1\" is already there. It cannot be copied onto itself."_s.arg(target));
  return copyAs(source, target, claimOf(source, target)) != Claim::Stop;
}

bool Operation::move(const QString& source, const QString& target) {
  if (isSame(source, target)) return true;
  const Placed placed = place(source, source, target, claimOf(source, target));
  if (placed.error == std::errc::cross_device_link) return carry(source, target, placed.claim);
  if (placed.error != std::errc{}) throw renameFault(placed.error, source, target);
  return placed.claim != Claim::Stop;
}

bool Operation::trash(const QString& source) {
  // Where nothing can be removed, there is nothing to ask either.
  if (!QFileInfo(QFileInfo(source).path()).isWritable()) throw noPermission(kDeleting.verb, source);
  const QString reason = refusalOfTrash(source);
  if (reason.isEmpty()) return true;
  if (watcher_.deleteForGood(source, reason, left_))
    check(removeFile(source), kDeleting, source);
  else
    ++kept_;
  return true;
}

/// Moves to another file system.
bool Operation::carry(const QString& source, const QString& target, Claim claim) {
  checkFile(source);
  const auto stamp = stampOf(source);
  claim = copyAs(source, target, claim);
  if (!isGranted(claim)) return claim != Claim::Stop;
  if (stampOf(source) != stamp)
    throw Fault(FaultNumber::DeviceFault,
                u"File \"%1\" changed while it was copied to \"%2\". Both files stay."_s.arg(
                    source, target));
  if (removeFile(source) != std::errc{})
    throw Fault(FaultNumber::NoPermission,
                u"File \"%1\" was copied to \"%2\" but could not be removed. Both files "
                "stay."_s.arg(source, target));
  return true;
}

/// Copies by way of a hidden file, which goes away unless it gets the target's name.
Claim Operation::copyAs(const QString& source, const QString& target, Claim claim) {
  if (!isGranted(claim)) return claim;
  QFile from(source);
  if (!from.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) throw unreadable(source);
  QTemporaryFile to(SplitPath(target, PathPart::Folder) + kHidden + "XXXXXX"_L1);
  if (!to.open()) throw uncreated(target, to.errorString());
  if (!copyBytes(from, to, target)) return Claim::Stop;
  check(copyPermissionsAndTime(from.handle(), to.handle()), kWriting, target);
  check(flushFile(to.handle()), kWriting, target);
  const Placed placed = place(nameWritten(to, target), source, target, claim);
  if (!isGranted(placed.claim)) return placed.claim;
  check(placed.error, kWriting, target);
  to.setAutoRemove(false);
  check(flushFolder(SplitPath(target, PathPart::Folder)), kWriting, target);
  return placed.claim;
}

bool Operation::copyBytes(QFile& from, QTemporaryFile& to, const QString& target) {
  QByteArray chunk(kChunk, Qt::Uninitialized);
  for (qint64 copied = 0, unflushed = 0;;) {
    const qint64 count = from.read(chunk.data(), kChunk);
    if (count < 0) throw unreadable(from.fileName());
    if (count == 0) return true;
    check(appendBytes(to.handle(), QByteArrayView(chunk).first(count)), kWriting, target);
    copied += count;
    unflushed += count;
    if (unflushed >= kFlushEvery) {
      check(flushFile(to.handle()), kWriting, target);
      unflushed = 0;
    }
    if (!watcher_.progress(from.fileName(), std::min(done_ + copied, all_), all_)) return false;
  }
}

Claim Operation::claimOf(const QString& source, const QString& target) {
  if (!isTaken(QFileInfo(target))) return Claim::Free;
  checkReplaced(target);
  switch (watcher_.targetExists(source, target, left_)) {
    case Overwrite::Replace:
      return Claim::Replace;
    case Overwrite::Skip:
      return Claim::Skip;
    case Overwrite::Cancel:
      break;
  }
  return Claim::Stop;
}

/// Gives a file the target's name, and asks again when somebody took it meanwhile.
Operation::Placed Operation::place(const QString& from, const QString& source,
                                   const QString& target, Claim claim) {
  while (isGranted(claim)) {
    const bool replaces = claim == Claim::Replace;
    const std::errc error = replaces ? renameOver(from, target) : renameFresh(from, target);
    if (replaces || error != std::errc::file_exists) return {claim, error};
    claim = claimOf(source, target);
  }
  return {claim};
}

/// Throws when a path cannot be another name in the folder of a file.
void checkName(const QString& source, const QString& target) {
  const auto refuse = [](const QString& words, int line = __builtin_LINE()) {
    throw Fault(FaultNumber::BadFileName, words, line);
  };
  const QString name = SplitPath(target, PathPart::Name);
  if (SplitPath(source, PathPart::Folder) != SplitPath(target, PathPart::Folder))
    refuse(u"The name of a file cannot hold \"/\"."_s);
  if (target.contains(QChar::Null)) refuse(u"The name of a file cannot hold a zero character."_s);
  if (name.isEmpty()) refuse(u"A file needs a name."_s);
  if (name == "."_L1 || name == ".."_L1)
    refuse(u"\"%1\" cannot be the name of a file."_s.arg(name));
  const auto length = QFile::encodeName(name).size();
  if (length > kLongestName)
    refuse(u"The name is too long: it takes %1 bytes, and %2 fit."_s.arg(length).arg(kLongestName));
}

/// Whether a name is taken by the source alone, on a file system that ignores letter case.
bool isTakenByItself(const QString& source, const QString& target) {
  if (source.compare(target, Qt::CaseInsensitive) != 0) return false;
  const auto kinds = QDir::AllEntries | QDir::Hidden | QDir::System;
  const QStringList names = QDir(SplitPath(target, PathPart::Folder)).entryList(kinds);
  return !names.contains(SplitPath(target, PathPart::Name));
}

/// Changes the letter case of a name, by way of a hidden one: some file systems take the plain
/// rename for no change.
std::errc renameCase(const QString& source, const QString& target) {
  const QString hidden = SplitPath(source, PathPart::Folder) + kHidden +
                         QUuid::createUuid().toString(QUuid::WithoutBraces);
  std::errc error = renameFresh(source, hidden);
  if (error != std::errc{}) return error;
  error = renameFresh(hidden, target);
  if (error != std::errc{}) check(renameFresh(hidden, source), kRenaming, hidden);
  return error;
}

}  // namespace

FileOperationResult runFileOperation(FileVerb verb, const QStringList& sources,
                                     const QString& targetFolder, FileOperationWatcher& watcher) {
  return Operation(verb, sources, targetFolder, watcher).run();
}

void renameFile(const QString& source, const QString& target) {
  checkName(source, target);
  checkFileOrLink(source);
  if (source == target) return;
  std::errc error = renameFresh(source, target);
  if (error == std::errc::file_exists && isTakenByItself(source, target))
    error = renameCase(source, target);
  if (error == std::errc::file_exists)
    throw Fault(
        FaultNumber::FileAlreadyThere,
        u"\"%1\" is already there. Choose another name."_s.arg(SplitPath(target, PathPart::Name)));
  check(error, kRenaming, source);
}

}  // namespace quillane

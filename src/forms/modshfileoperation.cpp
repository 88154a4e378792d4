// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/modshfileoperation.h"

#include "forms/chourglass.h"
#include "forms/eventprocedure.h"
#include "shell/fileoperation.h"
#include "shell/files.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDeadlineTimer>
#include <QDir>
#include <QFileInfo>
#include <QFontMetrics>
#include <QLabel>
#include <QLocale>
#include <QProgressDialog>

#include <optional>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

constexpr int kPatience = 1000;  ///< Milliseconds without a window.
constexpr int kRefresh = 50;
constexpr int kSteps = 1000;
constexpr int kWindowWidth = 420;
constexpr int kWindowMargin = 12;
constexpr qsizetype kLongestName = 44;
const QString kForAll = u"Do this for all"_s;
const QString kNoReturn = u"It cannot be brought back."_s;

/// Words for what is done.
struct Words {
  QString title;    ///< Of the window of progress.
  QString doing;    ///< Before the name of a file.
  QString failure;  ///< Title of a message.
};

Words wordsOf(FileVerb verb) {
  switch (verb) {
    case FileVerb::Copy:
      return {u"Copying Files"_s, u"Copying"_s, u"Copy File"_s};
    case FileVerb::Move:
      return {u"Moving Files"_s, u"Moving"_s, u"Move File"_s};
    case FileVerb::Trash:
    case FileVerb::Delete:
      break;
  }
  return {u"Deleting Files"_s, u"Deleting"_s, u"Delete File"_s};
}

/// A name on one line of a length that a box can show.
QString shortName(const QString& text) {
  QString name = oneLine(text);
  if (name.size() <= kLongestName) return name;
  return name.left(kLongestName / 2) + QChar(0x2026) + name.right(kLongestName / 2);
}

QString nameOf(const QString& path) {
  return shortName(SplitPath(path, PathPart::Name));
}

QString folderOf(const QString& path) {
  return shortName(QDir::toNativeSeparators(QFileInfo(path).path()));
}

/// Size and date of a file, by which one chooses between two.
QString factsText(const QString& path) {
  const QFileInfo file(path);
  return u"%1, %2"_s.arg(sizeText(file.size()),
                         QLocale::system().toString(file.lastModified(), QLocale::ShortFormat));
}

/// What a running operation does and how far it is, with a button to stop it. Shown as long as it
/// lives or until it is cancelled.
class ProgressWindow : public QProgressDialog {
 public:
  ProgressWindow(QWidget* owner, const QString& title);

  void tell(const QStringList& lines, qint64 done, qint64 all);

 private:
  /// The wait pointer of the operation would forbid the button.
  PointerOverride arrow_{Qt::ArrowCursor};
};

ProgressWindow::ProgressWindow(QWidget* owner, const QString& title) : QProgressDialog(owner) {
  setWindowTitle(title);
  setWindowModality(Qt::WindowModal);
  setAutoReset(false);
  setAutoClose(false);
  setRange(0, kSteps);
  auto* label = new QLabel;
  label->setTextFormat(Qt::PlainText);
  label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  setLabel(label);
}

void ProgressWindow::tell(const QStringList& lines, qint64 done, qint64 all) {
  QStringList shown;
  for (const QString& line : lines)
    shown << fontMetrics().elidedText(line, Qt::ElideMiddle, kWindowWidth - 2 * kWindowMargin);
  setLabelText(shown.join(u'\n'));
  setFixedSize(kWindowWidth, sizeHint().height());
  if (!wasCanceled()) show();
  setValue(all > 0 ? static_cast<int>(static_cast<double>(done) / static_cast<double>(all) * kSteps)
                   : 0);
}

/// Shows an operation to a person and asks what it cannot decide.
class Watcher final : public FileOperationWatcher {
 public:
  Watcher(QWidget* owner, Dialogs& dialogs, FileVerb verb, const QString& targetFolder = {})
      : owner_(owner), dialogs_(dialogs), words_(wordsOf(verb)), targetFolder_(targetFolder) {}

  Overwrite targetExists(const QString& source, const QString& target, bool left) override;
  bool goOnAfter(const Fault& fault) override;
  void report(const Fault& fault) override;
  bool deleteForGood(const QString& path, const QString& reason, bool left) override;
  bool progress(const QString& path, qint64 done, qint64 all) override;

 private:
  int ask(const Question& question, std::optional<int>* forAll = nullptr);
  QWidget* asker() { return window_ ? &*window_ : owner_; }

  QWidget* owner_;
  Dialogs& dialogs_;
  Words words_;
  QString targetFolder_;
  std::optional<ProgressWindow> window_;
  QDeadlineTimer nextTelling_{kPatience};
  std::optional<int> conflicts_, refusals_;  ///< The answers that count for all.
};

int Watcher::ask(const Question& question, std::optional<int>* forAll) {
  if (forAll && *forAll) return **forAll;
  const Answer answer = dialogs_.ask(asker(), question);
  if (forAll && answer.ticked) *forAll = answer.button;
  // The time of the person is none of the operation's.
  if (!window_) nextTelling_.setRemainingTime(kPatience);
  return answer.button;
}

Overwrite Watcher::targetExists(const QString& source, const QString& target, bool left) {
  const QString text =
      u"\"%1\" is already in the folder \"%2\".\n\nThere:\t%3\nNew:\t%4\n\nReplace it?"_s.arg(
          nameOf(target), folderOf(target), factsText(target), factsText(source));
  const Question question{MessageIcon::Question,
                          u"Replace File?"_s,
                          text,
                          {u"Replace"_s, u"Skip"_s, u"Cancel"_s},
                          1,
                          left ? kForAll : QString()};
  constexpr Overwrite kAnswers[] = {Overwrite::Replace, Overwrite::Skip, Overwrite::Cancel};
  return kAnswers[ask(question, &conflicts_)];
}

bool Watcher::goOnAfter(const Fault& fault) {
  const QStringList answers{u"Go On"_s, u"Stop"_s};
  return ask({MessageIcon::Stop, words_.failure, fault.description(), answers, 0, {}}) == 0;
}

void Watcher::report(const Fault& fault) {
  dialogs_.message(asker(), MessageIcon::Stop, words_.failure, fault.description());
}

bool Watcher::deleteForGood(const QString& path, const QString& reason, bool left) {
  const QString text = u"\"%1\" cannot be moved to the trash: %2.\n\nDelete it for good? %3"_s.arg(
      nameOf(path), reason, kNoReturn);
  const Question question{
      MessageIcon::Warning,      u"Delete File?"_s, text, {u"Delete"_s, u"Keep"_s}, 1,
      left ? kForAll : QString()};
  return ask(question, &refusals_) == 0;
}

bool Watcher::progress(const QString& path, qint64 done, qint64 all) {
  if (nextTelling_.hasExpired()) {
    if (!window_) window_.emplace(owner_, words_.title);
    QStringList lines{u"%1 \"%2\""_s.arg(words_.doing, oneLine(SplitPath(path, PathPart::Name)))};
    if (!targetFolder_.isEmpty()) lines << u"to \"%1\""_s.arg(oneLine(targetFolder_));
    window_->tell(lines, done, all);
    QCoreApplication::processEvents();
    nextTelling_.setRemainingTime(kRefresh);
  }
  return !window_ || !window_->wasCanceled();
}

/// Runs an operation in front of a person.
FileOperationResult run(QWidget* owner, Dialogs& dialogs, FileVerb verb, const QStringList& sources,
                        const QString& target = {}) {
  const cHourglass hourglass;
  Watcher watcher(owner, dialogs, verb, target);
  return runFileOperation(verb, sources, target, watcher);
}

/// Asks before files are deleted.
bool isConfirmed(QWidget* owner, Dialogs& dialogs, const QStringList& sources, DeleteKind kind) {
  const bool one = sources.size() == 1;
  const QString files =
      one ? u"\"%1\""_s.arg(nameOf(sources.first())) : u"these %1 files"_s.arg(sources.size());
  const QString noReturn = one ? kNoReturn : u"They cannot be brought back."_s;
  Question question{MessageIcon::Question,
                    one ? u"Delete File?"_s : u"Delete Files?"_s,
                    u"Move %1 to the trash?"_s.arg(files),
                    {u"Move to Trash"_s, u"Cancel"_s},
                    0,
                    {}};
  if (kind == DeleteKind::ForGood) {
    question.icon = MessageIcon::Warning;
    question.text = u"Delete %1 for good? %2"_s.arg(files, noReturn);
    question.buttons.first() = u"Delete"_s;
    question.standard = 1;
  }
  return dialogs.ask(owner, question).button == 0;
}

QString tagOf(const char16_t* procedure) {
  return u"in Quillane.modSHFileOperation.%1 "_s.arg(QStringView(procedure));
}

}  // namespace

void SHFileCopy(QWidget* owner, Dialogs& dialogs, const QStringList& sources,
                const QString& target) {
  if (sources.isEmpty()) return;
  eventProcedure(dialogs, owner, tagOf(u"SHFileCopy"),
                 [&] { run(owner, dialogs, FileVerb::Copy, sources, target); });
}

bool SHFileMove(QWidget* owner, Dialogs& dialogs, const QStringList& sources,
                const QString& target) {
  if (sources.isEmpty()) return false;
  bool moved = false;
  eventProcedure(dialogs, owner, tagOf(u"SHFileMove"), [&] {
    const FileOperationResult result = run(owner, dialogs, FileVerb::Move, sources, target);
    moved = !result.failed && !result.stopped;
  });
  return moved;
}

bool SHFileDelete(QWidget* owner, Dialogs& dialogs, const QStringList& sources, DeleteKind kind) {
  if (sources.isEmpty() || !isConfirmed(owner, dialogs, sources, kind)) return false;
  const FileVerb verb = kind == DeleteKind::ToTrash ? FileVerb::Trash : FileVerb::Delete;
  bool deleted = false;
  eventProcedure(dialogs, owner, tagOf(u"SHFileDelete"), [&] {
    const FileOperationResult result = run(owner, dialogs, verb, sources);
    deleted = !result.stopped && !result.allKept;
  });
  return deleted;
}

bool SHFileRename(QWidget* owner, Dialogs& dialogs, const QString& source, const QString& target) {
  bool renamed = false;
  eventProcedure(dialogs, owner, tagOf(u"SHFileRename"), [&] {
    try {
      const cHourglass hourglass;
      renameFile(source, target);
      renamed = true;
    } catch (const Fault& fault) {
      // What the person can mend needs no place in the program.
      if (fault.number() == FaultNumber::DeviceFault) throw;
      dialogs.message(owner, MessageIcon::Stop, u"Rename File"_s, fault.description());
    }
  });
  return renamed;
}

}  // namespace quillane

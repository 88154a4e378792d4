// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "faults/interpose.h"
#include "faults/savepaths.h"

#include <QRegularExpression>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <sys/wait.h>
#include <unistd.h>

namespace quillane {

namespace {

using Content = QMap<QString, QByteArray>;

/// A deed that something happens to: the `at`th of a save, and those after it where told.
struct Meddling {
  int at = 0;
  bool onward = false;
  std::function<int()> act = [] { return 0; };  ///< Answers as a `DeedHook` does.
  bool countsRemovals = true;                   ///< Else a removal neither counts nor fails.
};

/// What came of it.
struct Meddled {
  QString told;
  int acts = 0;
  Deed deed = Deed::Open;  ///< The first that was met.
  bool unsafe = false;     ///< It met bytes on their way to the disk.
};

/// A whole or begun file beside its target, or a folder of the tool among the temporary files: what
/// a killed process cannot take away.
bool isLeftover(const QString& name) {
  static const QRegularExpression kPassing(
      "^(t/(.*/)?(\\.quillane-|[^/]+\\.)[A-Za-z]{6}|tmp/thmtool-.*)$");
  return kPassing.match(name).hasMatch();
}

class Faults : public SaveFolders {
 protected:
  Meddled save(const SavePath& row, const Meddling& meddling) {
    Meddled result;
    int count = 0;
    bool crosses = row.crossesDisks;
    interpose([&](Deed deed, bool unsafe) {
      if (crosses && deed == Deed::Name) {
        crosses = false;
        return EXDEV;
      }
      if (deed == Deed::Remove && !meddling.countsRemovals) return 0;
      ++count;
      if (meddling.onward ? count < meddling.at : count != meddling.at) return 0;
      if (result.acts++ == 0) {
        result.deed = deed;
        result.unsafe = unsafe && (deed == Deed::Flush || deed == Deed::Close);
      }
      return meddling.act();
    });
    result.told = row.save(*this);
    interpose({});
    return result;
  }
  Meddled saveUntouched(const SavePath& row) { return save(row, {}); }

  void prepare(const SavePath& row) {
    interpose([](Deed, bool) { return 0; });  // Nothing is to be flushed for this.
    reset(row.target);
    row.prepare(*this);
    interpose({});
  }

  /// What lies there before and after an untouched save.
  std::pair<Content, Content> oldAndNew(const SavePath& row) {
    prepare(row);
    Content before = content();
    EXPECT_EQ(saveUntouched(row).told, QString());
    return {before, content()};
  }

  /// The next save; where all was done, there may be nothing left to move.
  void saveRest(const SavePath& row, const Content& after) {
    if (!oddities(content(), after, after).isEmpty()) {
      EXPECT_EQ(saveUntouched(row).told, QString()) << "the next save";
    }
    QStringList odd = oddities(content(), after, after);
    odd.removeIf(isLeftover);
    EXPECT_EQ(odd, QStringList()) << "the next save";
  }

  /// The files that are neither as before nor as after, and what lies there beside them.
  static QStringList oddities(const Content& found, const Content& before, const Content& after) {
    QStringList odd;
    for (auto file = found.begin(); file != found.end(); ++file) {
      const bool known = (before.contains(file.key()) && before[file.key()] == *file) ||
                         (after.contains(file.key()) && after[file.key()] == *file);
      if (!known) odd << file.key();
    }
    for (const QString& name : before.keys())
      if (after.contains(name) && !found.contains(name)) odd << "lost: " + name;
    return odd;
  }
};

TEST_F(Faults, LeaveWhatWasThereAndAreTold) {
  int faults = 0;
  for (const SavePath& row : savePaths()) {
    const auto [before, after] = oldAndNew(row);
    int calls = 0;
    for (const int error : {ENOSPC, EIO, EACCES})
      for (const bool onward : {false, true})
        for (int at = 1;; ++at) {
          SCOPED_TRACE(testing::Message() << row.name << ", " << std::strerror(error)
                                          << (onward ? " from " : " at ") << at);
          prepare(row);
          const Meddled result = save(row, {at, onward, [error] { return error; }, false});
          if (result.acts == 0) break;
          faults += result.acts;
          calls = at;
          SCOPED_TRACE(testing::Message() << "deed " << static_cast<int>(result.deed) << ", told "
                                          << result.told.toStdString());
          const Content found = content();
          if (result.told.isEmpty()) {
            EXPECT_EQ(oddities(found, after, after), QStringList());
            EXPECT_TRUE(!result.unsafe) << "untold";
          } else {
            EXPECT_TRUE(result.told.contains(path())) << "names no file";
            const bool mayMix = row.several || result.deed == Deed::FlushFolder;
            QStringList odd = oddities(found, before, mayMix ? after : before);
            odd.removeAll(row.notes);
            EXPECT_TRUE(odd.isEmpty() || row.extracts) << odd.join(' ').toStdString();
            EXPECT_TRUE(!row.extracts || error != ENOSPC || result.deed == Deed::MakeFolder ||
                        result.told.contains("17") || result.told.contains("Disk full."));
          }
          saveRest(row, after);
        }
    std::cout << row.name << ": " << calls << " calls\n";
  }
  std::cout << "faults: " << faults << '\n';
  RecordProperty("faults", faults);
}

TEST_F(Faults, KilledSavesLeaveTheOldFileOrTheNew) {
  int kills = 0;
  int leftovers = 0;
  for (const SavePath& row : savePaths()) {
    const auto [before, after] = oldAndNew(row);
    for (int at = 1;; ++at) {
      SCOPED_TRACE(testing::Message() << row.name << ", killed at " << at);
      prepare(row);
      const pid_t child = ::fork();
      ASSERT_GE(child, 0);
      if (child == 0) {
        save(row, {at, false, [] { return ::raise(SIGKILL); }, true});
        std::_Exit(0);
      }
      int status = 0;
      ASSERT_EQ(::waitpid(child, &status, 0), child);
      if (WIFEXITED(status)) break;
      ++kills;
      startAgain(*this);
      EXPECT_EQ(listOf("home/temp"), QStringList());
      QStringList odd = oddities(content(), before, after);
      leftovers += static_cast<int>(odd.removeIf(isLeftover));
      odd.removeAll(row.notes);
      EXPECT_TRUE(odd.isEmpty() || row.extracts) << odd.join(' ').toStdString();
      saveRest(row, after);
    }
  }
  std::cout << "kills: " << kills << ", leftovers: " << leftovers << '\n';
  RecordProperty("kills", kills);
}

}  // namespace

}  // namespace quillane

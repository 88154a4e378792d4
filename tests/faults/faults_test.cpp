// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "faults/interpose.h"
#include "faults/savepaths.h"
#include "support/hindrance.h"

#include <QRegularExpression>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <memory>
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

/// What a killed process cannot take away: a file on its way to its place, or a folder of the tool
/// among the temporary files.
bool isLeftover(const QString& name) {
  static const QRegularExpression kPassing(
      "^(t/(.*/)?(\\.quillane-|[^/]+\\.)[A-Za-z]{6}|tmp/thmtool-.*)$");
  return kPassing.match(name).hasMatch();
}

/// Whether what was told is the reader's code, or its words, for such a fault.
bool tellsExtraction(const Meddled& result, int error) {
  const auto says = [&](const char* code, const char* words) {
    return result.told.endsWith(code) || result.told.contains(words);
  };
  if (result.deed == Deed::MakeFolder) return true;
  if (error == ENOSPC) return says("/17", "Disk full.");
  const bool creates = result.deed == Deed::Open || result.deed == Deed::Facts;
  const bool writes = result.deed != Deed::Open;
  return (creates && says("/8", "Could not create extracted file.")) ||
         (writes && says("/10", "Output file write failure"));
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
            EXPECT_TRUE(!row.extracts || tellsExtraction(result, error));
          }
          saveRest(row, after);
        }
    std::cout << row.name << ": " << calls << " calls\n";
  }
  std::cout << "faults: " << faults << '\n';
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
      const Content found = content();
      QStringList odd = oddities(found, before, after);
      for (const QString& name : odd)
        leftovers +=
            name.startsWith("t/") && isLeftover(name) && after.values().contains(found.value(name));
      odd.removeIf(isLeftover);
      odd.removeAll(row.notes);
      EXPECT_TRUE(odd.isEmpty() || row.extracts) << odd.join(' ').toStdString();
      saveRest(row, after);
    }
  }
  std::cout << "kills: " << kills << ", whole files left beside: " << leftovers << '\n';
}

/// What really keeps a save from its end, for as long as the returned object lives; null where the
/// machine does not let us.
struct Hindrance {
  const char* name;
  std::shared_ptr<void> (*begin)(const SaveFolders& at);
};

const Hindrance kHindrances[] = {
    {"full disk",
     [](const SaveFolders& at) -> std::shared_ptr<void> {
       QFile rest(at.path("t/rest"));
       rest.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
       // Where "t" is no small disk of its own, nothing is filled.
       for (int blocks = 0; blocks < 64 && rest.write(QByteArray(1024, 'x')) == 1024; ++blocks) {
       }
       if (rest.size() == 64 * 1024) return {};
       return std::make_shared<int>();
     }},
    {"size limit",
     [](const SaveFolders&) -> std::shared_ptr<void> {
       return std::make_shared<FileSizeLimit>(16);
     }},
    {"no permission", [](const SaveFolders& at) -> std::shared_ptr<void> {
       QFile::setPermissions(at.path("t"), QFile::Permissions(0x5555));
       return {new WithoutPrivilege, [folder = at.path("t")](WithoutPrivilege* nobody) {
                 delete nobody;
                 QFile::setPermissions(folder, QFile::Permissions(0x7755));
               }};
     }}};

TEST_F(Faults, RealOnesLeaveWhatWasThere) {
  const SmallDisk disk(makeFolder("t"));
  if (!disk.isMounted()) std::cout << "no full disk: a small one cannot be mounted here\n";
  for (const Hindrance& hindrance : kHindrances)
    for (const SavePath& row : savePaths()) {
      SCOPED_TRACE(testing::Message() << row.name << ", " << hindrance.name);
      const Content after = oldAndNew(row).second;
      prepare(row);
      std::shared_ptr<void> hindered = hindrance.begin(*this);
      if (!hindered) break;
      const Content before = content();
      const QString told = row.save(*this);
      hindered.reset();
      const QString name = row.name;
      EXPECT_EQ(told.isEmpty(),
                hindrance.name != QString("no permission") &&
                    (name == "another name" || (name.startsWith("move") && !disk.isMounted())))
          << told.toStdString();
      EXPECT_TRUE(told.isEmpty() || hindrance.name != QString("full disk") ||
                  told.contains("No room") || told.contains("Disk full.") || told.endsWith("/17"))
          << told.toStdString();
      QStringList odd = oddities(content(), before, row.several || told.isEmpty() ? after : before);
      EXPECT_TRUE(odd.isEmpty() || row.extracts) << odd.join(' ').toStdString();
    }
}

/// What others may do to a target while it is saved.
TEST_F(Faults, VanishingTargetsAreTold) {
  const std::pair<const char*, std::function<void(const QString&)>> vanishings[] = {
      {"folder gone", [this](const QString&) { QDir(path("t")).removeRecursively(); }},
      {"folder in its place",
       [this](const QString& target) {
         QFile::remove(path(target));
         makeFolder(target);
       }},
      {"link to nowhere", [this](const QString& target) {
         QFile::remove(path(target));
         QFile::link(path("nowhere/x"), path(target));
       }}};
  for (const SavePath& row : savePaths()) {
    const auto both = oldAndNew(row);
    const Content& before = both.first;
    const Content& after = both.second;
    const QString target = "t/" + row.target;
    // What others do to a file that is given a name or to one of many is theirs.
    if (row.extracts || row.several || !after.contains(target)) continue;
    for (const auto& [what, vanish] : vanishings)
      for (int at = 1;; ++at) {
        SCOPED_TRACE(testing::Message() << row.name << ", " << what << " at " << at);
        prepare(row);
        bool wasNew = false;
        const Meddled result = save(row, {at, false, [&, act = vanish] {
                                            wasNew = content().value(target) == after.value(target);
                                            act(target);
                                            return 0;
                                          }});
        if (result.acts == 0) break;
        // The toolkit gives a new file the rights of what lay there: of such a link, none.
        if (QFileInfo(path(target)).isFile())
          QFile::setPermissions(path(target), QFile::Permissions(0x6644));
        const Content found = content();
        EXPECT_TRUE(!result.told.isEmpty() || wasNew || found.value(target) == after.value(target))
            << "untold";
        EXPECT_FALSE(QFileInfo::exists(path("nowhere")));
        QStringList odd = oddities(found, before, after);
        odd.removeIf(
            [&](const QString& name) { return name == target || name.startsWith("lost: t"); });
        EXPECT_EQ(odd, QStringList());
      }
  }
}

}  // namespace

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/fileoperation.h"

#include "support/hindrance.h"
#include "support/tempfolder.h"

#include <QDateTime>

#include <functional>
#include <sys/stat.h>
#include <unistd.h>

namespace quillane {

namespace {

/// The trash of all tests here lies in a folder of their own; the desktop's library asks for its
/// place once.
class OwnHome : public testing::Environment {
 public:
  void SetUp() override {
    for (const char* variable : {"HOME", "XDG_DATA_HOME"})
      qputenv(variable, folder_.path().toUtf8());
  }
  /// Where the files of the trash lie, seen from a folder.
  static QString trashFrom(const QString& folder) {
    return QDir(folder).relativeFilePath(qEnvironmentVariable("XDG_DATA_HOME") + "/Trash/files");
  }

 private:
  QTemporaryDir folder_;
};
const auto* const kOwnHome = testing::AddGlobalTestEnvironment(new OwnHome);

constexpr qint64 kManyChunks = 1'000'000;

/// Answers from a script; a conflict that it does not expect fails the test.
class ScriptedWatcher : public FileOperationWatcher {
 public:
  QList<Overwrite> answers;
  bool goesOn = true;
  std::function<bool(qint64 done)> atProgress = [](qint64) { return true; };
  QStringList faults;  ///< What was reported.

  Overwrite targetExists(const QString& source, const QString&, bool) override {
    if (!answers.isEmpty()) return answers.takeFirst();
    ADD_FAILURE() << "unexpected conflict of " << source.toStdString();
    return Overwrite::Cancel;
  }
  bool goOnAfter(const Fault& fault) override {
    report(fault);
    return goesOn;
  }
  void report(const Fault& fault) override { faults << fault.description(); }
  bool deleteForGood(const QString&, const QString& reason, bool) override {
    ADD_FAILURE() << "the trash refuses: " << reason.toStdString();
    return false;
  }
  bool progress(const QString&, qint64 done, qint64 all) override {
    EXPECT_LE(done, all);
    return atProgress(done);
  }
};

class FileOperation : public TempFolder {
 protected:
  FileOperation() { makeFolder("to"); }

  /// "ok", "failed", "stopped" or both.
  QString run(FileVerb verb, const QStringList& names, const QString& target = "to") {
    QStringList sources;
    for (const QString& name : names)
      sources << path(name);
    const auto result = runFileOperation(verb, sources, path(target), watcher);
    EXPECT_TRUE(watcher.answers.isEmpty()) << "a conflict was not asked about";
    const QString ending = result.stopped ? "stopped" : "ok";
    return result.failed ? "failed " + ending : ending;
  }

  void makeLink(const QString& target, const QString& name) const {
    ASSERT_TRUE(QFile::link(target, path(name)));
  }

  ScriptedWatcher watcher;
};

TEST_F(FileOperation, BringsEveryByteWhereItBelongs) {
  const QDateTime time({2004, 3, 5}, {10, 11, 12, 345});
  const QStringList names{"-rf",         ".hidden",      ":colon.thm", "\"quo'ted\".thm",
                          "$(x);&*.thm", "a\tb\n c.thm", "a b.thm",    "\u00dcn\u00ef \u20ac.thm"};
  const auto contentOf = [](const QString& name) { return name.toUtf8().repeated(100'000); };
  const std::tuple<FileVerb, QString> cases[] = {{FileVerb::Copy, "to"},
                                                 {FileVerb::Move, "other"},
                                                 {FileVerb::Trash, OwnHome::trashFrom(path())},
                                                 {FileVerb::Delete, ""}};
  makeFolder("other");
  for (const auto& [verb, arrival] : cases) {
    QStringList sources;
    for (const QString& name : names) {
      sources << "from/" + name;
      QFile file(write(sources.last(), contentOf(name)));
      ASSERT_TRUE(file.open(QIODevice::ReadWrite) &&
                  file.setFileTime(time, QFileDevice::FileModificationTime) &&
                  file.setPermissions(QFile::Permissions(0x4440)));
    }
    EXPECT_EQ(run(verb, sources, arrival), "ok");
    EXPECT_EQ(listOf("from").size(), verb == FileVerb::Copy ? names.size() : 0);
    if (verb == FileVerb::Delete) break;
    EXPECT_EQ(listOf(arrival).size(), names.size());
    for (const QString& name : names) {
      SCOPED_TRACE((arrival + '/' + name).toStdString());
      EXPECT_TRUE(read(arrival + '/' + name) == contentOf(name));
      const QFileInfo file(path(arrival + '/' + name));
      EXPECT_EQ(file.lastModified(), time);
      EXPECT_EQ(file.permissions() & 0xF0FF, QFile::Permissions(0x4040));
    }
  }
}

TEST_F(FileOperation, AsksBeforeItReplaces) {
  // The answer, and what then lies in the target folder.
  const std::tuple<Overwrite, const char*, const char*, const char*> cases[] = {
      {Overwrite::Replace, "ok", "new a", "new b"},
      {Overwrite::Skip, "ok", "old a", "new b"},
      {Overwrite::Cancel, "stopped", "old a", ""}};
  for (const FileVerb verb : {FileVerb::Copy, FileVerb::Move})
    for (const auto& [answer, ending, first, second] : cases) {
      SCOPED_TRACE(testing::Message() << int(verb) << ' ' << int(answer));
      QFile::remove(path("to/b"));
      for (const char* name : {"from/a", "from/b", "twin/b"})
        write(name, QByteArray("new ") + name[5]);
      write("to/a", "old a");
      watcher.answers = {answer};
      if (answer != Overwrite::Cancel) watcher.answers << Overwrite::Skip;
      EXPECT_EQ(run(verb, {"from/a", "from/b", "twin/b"}), ending);
      EXPECT_EQ(read("to/a"), first);
      EXPECT_EQ(read("to/b"), second);
      EXPECT_EQ(listOf("to").size(), *second ? 2 : 1);
      const bool left = verb == FileVerb::Copy || answer != Overwrite::Replace;
      EXPECT_EQ(read("from/a"), left ? "new a" : "");
    }
}

TEST_F(FileOperation, AsksWhenANameIsTakenMeanwhile) {
  for (const Overwrite answer : {Overwrite::Replace, Overwrite::Skip, Overwrite::Cancel}) {
    QFile::remove(path("to/a"));
    write("a", "new");
    watcher.atProgress = [&](qint64 done) {
      return done == 0 || !write("to/a", "other").isEmpty();
    };
    watcher.answers = {answer};
    EXPECT_EQ(run(FileVerb::Copy, {"a"}), answer == Overwrite::Cancel ? "stopped" : "ok");
    EXPECT_EQ(read("to/a"), answer == Overwrite::Replace ? "new" : "other");
    EXPECT_EQ(listOf("to"), QStringList{"a"});
  }
}

TEST_F(FileOperation, MeetsItselfUnharmed) {
  write("to/a", "a");
  makeLink(path("to"), "linked");
  makeFolder("hard");
  makeFolder("soft");
  ASSERT_EQ(::link(QFile::encodeName(path("to/a")), QFile::encodeName(path("hard/a"))), 0);
  makeLink(path("to/a"), "soft/a");
  for (const char* source : {"to/a", "to/../to/./a", "linked/a", "hard/a", "soft/a"}) {
    SCOPED_TRACE(source);
    EXPECT_EQ(run(FileVerb::Move, {source}), "ok");
    watcher.faults.clear();
    EXPECT_EQ(run(FileVerb::Copy, {source}), "failed ok");
    EXPECT_TRUE(watcher.faults.value(0).contains(path("to/a") + "\" is already there"));
    EXPECT_EQ(read(source), "a");
    EXPECT_EQ(listOf("to"), QStringList{"a"});
  }
}

TEST_F(FileOperation, LinksAreTreatedAsThemselves) {
  write("real", "content");
  write("from/a", "new");
  makeLink(path("nowhere"), "to/a");
  makeLink(path("nowhere"), "from/c");
  for (const char* name : {"from/b", "from/d", "from/e"})
    makeLink(path("real"), name);
  watcher.answers = {Overwrite::Replace};
  EXPECT_EQ(run(FileVerb::Copy, {"from/a", "from/b"}), "ok");
  EXPECT_EQ(run(FileVerb::Move, {"from/c"}), "ok");
  EXPECT_EQ(run(FileVerb::Delete, {"from/d"}), "ok");
  EXPECT_EQ(run(FileVerb::Trash, {"from/e"}), "ok");
  EXPECT_EQ(read("real"), "content");
  EXPECT_FALSE(QFile::exists(path("nowhere")));
  EXPECT_EQ(read("to/a"), "new");
  EXPECT_FALSE(QFileInfo(path("to/a")).isSymLink());
  EXPECT_EQ(read("to/b"), "content");
  EXPECT_FALSE(QFileInfo(path("to/b")).isSymLink());
  EXPECT_TRUE(QFileInfo(path("to/c")).isSymLink());
  EXPECT_EQ(listOf("from"), (QStringList{"a", "b"}));
}

TEST_F(FileOperation, ReportsWhatFailsAndGoesOn) {
  makeFolder("folder");
  ASSERT_EQ(::mkfifo(QFile::encodeName(path("pipe")), 0666), 0);
  makeLink(path("nowhere"), "dangling");
  write("taken", "x");
  makeFolder("to/taken");
  const std::tuple<FileVerb, const char*, QString> cases[] = {
      {FileVerb::Move, "gone", "File \"%1/gone\" not found."},
      {FileVerb::Delete, "no/gone", "Folder \"%1/no\" not found."},
      {FileVerb::Copy, "dangling", "File \"%1/dangling\" not found."},
      {FileVerb::Copy, "folder", "\"%1/folder\" is a folder, no file."},
      {FileVerb::Delete, "folder", "\"%1/folder\" is a folder, no file."},
      {FileVerb::Move, "pipe", "\"%1/pipe\" is a device or a pipe, no file."},
      {FileVerb::Move, "taken",
       "A folder \"%1/to/taken\" is in the way. Move it or give it another name."}};
  for (const auto& [verb, source, text] : cases) {
    SCOPED_TRACE(source);
    write("next", "x");
    watcher.faults.clear();
    EXPECT_EQ(run(verb, {source, "next"}), "failed ok");
    EXPECT_EQ(watcher.faults, QStringList{text.arg(path())});
    EXPECT_EQ(QFile::exists(path("next")), verb == FileVerb::Copy);
    QFile::remove(path("to/next"));
  }
  EXPECT_EQ(read("taken"), "x");
  watcher.goesOn = false;
  EXPECT_EQ(run(FileVerb::Copy, {"gone", "taken"}), "failed stopped");
  EXPECT_EQ(run(FileVerb::Copy, {"gone"}), "failed ok") << "nothing was left to stop";
  EXPECT_EQ(faultNumberOf([&] { run(FileVerb::Copy, {"taken"}, "missing"); }),
            int(FaultNumber::FileNotFound));
}

TEST_F(FileOperation, ObeysPermissions) {
  write("a", "x");
  write("to/b", "x");
  write("secret", "x");
  QFile::setPermissions(path("secret"), {});
  makeFolder("open");
  QFile::setPermissions(path("open"), QFile::Permissions(0x7777));
  const std::tuple<FileVerb, const char*, const char*, QString> cases[] = {
      {FileVerb::Copy, "a", "to", "write \"%1/to/a\""},
      {FileVerb::Copy, "secret", "open", "read \"%1/secret\""},
      {FileVerb::Move, "a", "to", "write \"%1/to/a\""},
      {FileVerb::Move, "a", "open", "move \"%1/a\""},
      {FileVerb::Trash, "a", "", "delete \"%1/a\""},
      {FileVerb::Delete, "to/b", "", "delete \"%1/to/b\""}};
  const WithoutPrivilege asNobody;
  for (const auto& [verb, source, target, words] : cases) {
    SCOPED_TRACE(words.toStdString());
    watcher.faults.clear();
    EXPECT_EQ(run(verb, {source}, target), "failed ok");
    EXPECT_EQ(watcher.faults, QStringList{"No permission to " + words.arg(path()) + '.'});
    EXPECT_TRUE(QFile::exists(path(source)));
  }
  EXPECT_EQ(listOf("to") + listOf("open"), QStringList{"b"});
}

TEST_F(FileOperation, RemovesAFileFromAnotherDiskOnlyWhereItArrived) {
  const SmallDisk disk(path("to"));
  if (!disk.isMounted()) GTEST_SKIP() << "no second file system here";
  for (const char* name : {"a", "b", "c"})
    write(name, "x");
  EXPECT_EQ(run(FileVerb::Move, {"c"}), "ok");
  watcher.atProgress = [&](qint64 done) { return done == 0 || !write("b", "more").isEmpty(); };
  EXPECT_EQ(run(FileVerb::Move, {"b"}), "failed ok");
  watcher.atProgress = [](qint64) { return true; };
  const WithoutPrivilege asNobody;
  EXPECT_EQ(run(FileVerb::Move, {"a"}), "failed ok");
  ASSERT_EQ(watcher.faults.size(), 2);
  EXPECT_TRUE(watcher.faults[0].contains("changed while it was copied"));
  EXPECT_TRUE(watcher.faults[1].contains("could not be removed. Both files stay."));
  EXPECT_EQ(read("a") + read("b") + read("to/c"), "xmorex");
  EXPECT_FALSE(QFile::exists(path("c")));
  EXPECT_EQ(listOf("to"), (QStringList{"a", "b", "c"}));
}

TEST_F(FileOperation, StopsInTheMiddleOfAFile) {
  write("a", "a");
  write("b", QByteArray(kManyChunks, 'b'));
  watcher.atProgress = [](qint64 done) { return done < kManyChunks / 2; };
  EXPECT_EQ(run(FileVerb::Copy, {"a", "b"}), "stopped");
  EXPECT_EQ(listOf("to"), QStringList{"a"});
}

TEST_F(FileOperation, RenamesWithinTheFolder) {
  write("taken", "t");
  makeFolder("folder");
  const int bad = int(FaultNumber::BadFileName);
  const int taken = int(FaultNumber::FileAlreadyThere);
  const std::tuple<QString, int> cases[] = {{"b c.thm", 0},
                                            {"a", 0},
                                            {"A", 0},
                                            {QString(255, 'n'), 0},
                                            {"taken", taken},
                                            {"folder", taken},
                                            {"folder/a", bad},
                                            {"../a", bad},
                                            {".", bad},
                                            {"..", bad},
                                            {"", bad},
                                            {QString("x") + QChar::Null, bad},
                                            {QString(128, QChar(0xE9)), bad}};
  for (const auto& [name, fault] : cases) {
    SCOPED_TRACE(name.toStdString());
    write("a", "a");
    const QString target = path() + '/' + name;
    EXPECT_EQ(faultNumberOf([&] { renameFile(path("a"), target); }), fault);
    EXPECT_EQ(read(fault ? "a" : name), "a");
    EXPECT_EQ(QFile::exists(path("a")), fault || name == "a");
  }
  EXPECT_EQ(read("taken"), "t");

  // Two names of one file are two files.
  ASSERT_EQ(::link(QFile::encodeName(path("taken")), QFile::encodeName(path("TAKEN"))), 0);
  EXPECT_EQ(faultNumberOf([&] { renameFile(path("taken"), path("TAKEN")); }), taken);
  EXPECT_EQ(faultNumberOf([&] { renameFile(path("gone"), path("x")); }),
            int(FaultNumber::FileNotFound));
  EXPECT_EQ(read("taken") + read("TAKEN"), "tt");
}

}  // namespace

}  // namespace quillane

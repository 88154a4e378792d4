// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/modshfileoperation.h"

#include "support/scripteddialogs.h"
#include "support/tempfolder.h"

#include <QGuiApplication>

namespace quillane {

namespace {

/// Keeps the last question.
class KeptDialogs : public ScriptedDialogs {
 public:
  Question last;

  Answer ask(QWidget* owner, const Question& question) override {
    last = question;
    return ScriptedDialogs::ask(owner, question);
  }
};

class SHFile : public TempFolder {
 protected:
  SHFile() { makeFolder("to"); }
  ~SHFile() override { EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr); }

  /// Files whose names are single letters.
  QStringList files(const QString& letters) const {
    QStringList paths;
    for (const QChar letter : letters)
      paths << path(letter);
    return paths;
  }
  void writeAll(const QString& letters, const QString& folder = {}) const {
    for (const QChar letter : letters)
      write(folder + letter, (folder + letter).toUtf8());
  }

  KeptDialogs dialogs;
};

TEST_F(SHFile, AsksWhatToReplaceOnceForAll) {
  writeAll("abc");
  writeAll("abc", "to/");
  dialogs.expectQuestion("\"a\" is already in the folder*", "Skip");
  dialogs.expectQuestion("\"b\" is already in the folder*", "Replace", true);
  EXPECT_TRUE(SHFileMove(nullptr, dialogs, files("abc"), path("to")));
  EXPECT_EQ(read("to/a") + read("to/b") + read("to/c"), "to/abc");

  dialogs.expectQuestion("\"a\" is already in the folder*", "Cancel");
  EXPECT_FALSE(SHFileMove(nullptr, dialogs, files("a"), path("to")));
  EXPECT_TRUE(dialogs.last.text.contains("There:\t0.0 KB (4 bytes), ")) << "of the old file";
  EXPECT_TRUE(dialogs.last.text.contains("New:\t0.0 KB (1 bytes), "));
  EXPECT_EQ(dialogs.last.buttons[dialogs.last.standard], "Skip");
  EXPECT_EQ(dialogs.last.checkBox, "") << "there is no other file";
}

TEST_F(SHFile, ReportsEachFileThatFails) {
  writeAll("b");
  const QString text = "File \"" + path("x") + "\" not found.";
  dialogs.expectQuestion(text, "Go On");
  dialogs.expectMessage(text);
  EXPECT_FALSE(SHFileMove(nullptr, dialogs, files("xbx"), path("to")));
  EXPECT_EQ(listOf("to"), QStringList{"b"});
  dialogs.expectQuestion(text, "Stop");
  SHFileCopy(nullptr, dialogs, files("xx"), path("to"));
  dialogs.expectMessage("Folder \"" + path("none") +
                        "\" not found.\r\nin Quillane.modSHFileOperation.SHFileMove at line*");
  EXPECT_FALSE(SHFileMove(nullptr, dialogs, files("b"), path("none")));
}

TEST_F(SHFile, ConfirmsWhatItDeletes) {
  const std::tuple<DeleteKind, QString, QString, QString, QString> cases[] = {
      {DeleteKind::ToTrash, "a", "Move \"a\" to the trash?", "Cancel", "Move to Trash"},
      {DeleteKind::ToTrash, "ab", "Move these 2 files to the trash?", "Move to Trash",
       "Move to Trash"},
      {DeleteKind::ForGood, "a", "Delete \"a\" for good? It cannot be brought back.", "Delete",
       "Cancel"},
      {DeleteKind::ForGood, "ab", "Delete these 2 files for good? They cannot be brought back.",
       "Cancel", "Cancel"}};
  for (const auto& [kind, letters, text, button, standard] : cases) {
    SCOPED_TRACE(text.toStdString());
    writeAll(letters);
    dialogs.expectQuestion(text, button);
    const bool deletes = button != "Cancel";
    EXPECT_EQ(SHFileDelete(nullptr, dialogs, files(letters), kind), deletes);
    EXPECT_EQ(dialogs.last.buttons[dialogs.last.standard], standard);
    EXPECT_EQ(QFile::exists(path("a")), !deletes);
  }
  EXPECT_TRUE(SHFileDelete(nullptr, dialogs, {}, DeleteKind::ForGood)) << "asks nothing";
}

TEST_F(SHFile, AsksOnceForAllThatTheTrashRefuses) {
  const QByteArray home = qgetenv("XDG_DATA_HOME");
  qputenv("XDG_DATA_HOME", write("file", "x").toUtf8() + "/home");
  writeAll("abc");
  dialogs.expectQuestion("Move these*", "Move to Trash");
  dialogs.expectQuestion("\"a\" cannot be moved to the trash:*", "Keep");
  dialogs.expectQuestion("\"b\" cannot be moved to the trash:*", "Delete", true);
  EXPECT_FALSE(SHFileDelete(nullptr, dialogs, files("abc"), DeleteKind::ToTrash));
  EXPECT_EQ(dialogs.last.buttons[dialogs.last.standard], "Keep");
  EXPECT_EQ(listOf(""), (QStringList{"a", "file", "to"}));
  EXPECT_FALSE(QFile::exists("files")) << "a trash in the current folder";
  qputenv("XDG_DATA_HOME", home);
}

TEST_F(SHFile, SaysWhyANameCannotBe) {
  writeAll("ab");
  EXPECT_TRUE(SHFileRename(nullptr, dialogs, path("a"), path("c")));
  dialogs.expectMessage("\"b\" is already there. Choose another name.");
  EXPECT_FALSE(SHFileRename(nullptr, dialogs, path("c"), path("b")));
  EXPECT_EQ(read("c") + read("b"), "ab");
}

}  // namespace

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/modshfileoperation.h"

#include "support/scripteddialogs.h"
#include "support/tempfolder.h"

#include <QApplication>
#include <QProgressDialog>
#include <QPushButton>
#include <QTimer>

namespace quillane {

namespace {

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

  ScriptedDialogs dialogs;
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
  EXPECT_TRUE(dialogs.lastQuestion.text.contains("There:\t0.0 KB (4 bytes), "))
      << "of the old file";
  EXPECT_TRUE(dialogs.lastQuestion.text.contains("New:\t0.0 KB (1 bytes), "));
  EXPECT_EQ(dialogs.lastQuestion.buttons[dialogs.lastQuestion.standard], "Skip");
  EXPECT_EQ(dialogs.lastQuestion.checkBox, "") << "there is no other file";
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
    EXPECT_EQ(dialogs.lastQuestion.buttons[dialogs.lastQuestion.standard], standard);
    EXPECT_EQ(QFile::exists(path("a")), !deletes);
  }
}

TEST_F(SHFile, DoesNothingWithoutFiles) {
  EXPECT_FALSE(SHFileMove(nullptr, dialogs, {}, path("none")));
  EXPECT_FALSE(SHFileDelete(nullptr, dialogs, {}, DeleteKind::ForGood));
}

TEST_F(SHFile, StopsByTheButtonOfItsWindow) {
  writeAll("ab");
  // One file again and again: it takes no room, but longer than the window waits.
  const QStringList sources = QStringList(50'000, path("a")) << path("b");
  dialogs.expectQuestion("\"a\" is already in the folder*", "Replace", true);
  QTimer timer;
  QString shown;
  QObject::connect(&timer, &QTimer::timeout, [&] {
    for (QWidget* window : QApplication::topLevelWidgets())
      if (const auto* progress = qobject_cast<QProgressDialog*>(window)) {
        shown = progress->labelText();
        EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::ArrowCursor);
        progress->findChild<QPushButton*>()->click();
      }
  });
  timer.start(0);
  SHFileCopy(nullptr, dialogs, sources, path("to"));
  EXPECT_TRUE(shown.startsWith("Copying \"a\"\nto \"")) << shown.toStdString();
  EXPECT_EQ(listOf("to"), QStringList{"a"}) << "neither the last file nor a hidden one";
}

TEST_F(SHFile, AsksOnceForAllThatTheTrashRefuses) {
  const QString trash = qEnvironmentVariable("XDG_DATA_HOME") + "/Trash";
  ASSERT_TRUE(QDir(trash).removeRecursively() && QFile(trash).open(QIODevice::WriteOnly));
  writeAll("abc");
  dialogs.expectQuestion("Move these*", "Move to Trash");
  dialogs.expectQuestion("\"a\" cannot be moved to the trash:*", "Keep", true);
  EXPECT_FALSE(SHFileDelete(nullptr, dialogs, files("abc"), DeleteKind::ToTrash));
  EXPECT_EQ(listOf(""), (QStringList{"a", "b", "c", "to"}));
  dialogs.expectQuestion("Move these*", "Move to Trash");
  dialogs.expectQuestion("\"a\" cannot be moved to the trash:*", "Keep");
  dialogs.expectQuestion("\"b\" cannot be moved to the trash:*", "Delete", true);
  EXPECT_TRUE(SHFileDelete(nullptr, dialogs, files("abc"), DeleteKind::ToTrash));
  EXPECT_EQ(dialogs.lastQuestion.buttons[dialogs.lastQuestion.standard], "Keep");
  EXPECT_EQ(listOf(""), (QStringList{"a", "to"}));
  EXPECT_TRUE(QFile::remove(trash));
  const QString longest(250, 'x');
  write(longest, "x");
  dialogs.expectQuestion("Move*", "Move to Trash");
  dialogs.expectQuestion("\"xx*", "Keep");
  EXPECT_FALSE(SHFileDelete(nullptr, dialogs, {path(longest)}, DeleteKind::ToTrash));
}

}  // namespace

}  // namespace quillane

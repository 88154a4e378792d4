// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/modassociate.h"

#include "support/tempfolder.h"

#include <QDateTime>
#include <QDirIterator>
#include <QMap>
#include <gmock/gmock.h>

#include <fcntl.h>
#include <sys/stat.h>

namespace quillane {

namespace {

/// A user's two folders, and the build's share folder beside the program.
class Association : public TempFolder {
 protected:
  void SetUp() override {
    TempFolder::SetUp();
    qputenv("XDG_DATA_HOME", QFile::encodeName(makeFolder("data")));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(makeFolder("config")));
  }
  void TearDown() override {
    qunsetenv("XDG_DATA_HOME");
    qunsetenv("XDG_CONFIG_HOME");
  }

  /// The path of a program in a folder, which gets its share folder.
  QString program(const QString& folder = "prefix") const {
    makeFolder(folder + "/bin");
    QFile::link(SHARE_FOLDER, path(folder + "/share"));
    return path(folder + "/bin/quillane");
  }

  /// All files of the user, but what the desktop's indexers make of them.
  QMap<QString, QByteArray> files() const {
    QMap<QString, QByteArray> found;
    for (const char* folder : {"data", "config"}) {
      QDirIterator walk(path(folder), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
      while (walk.hasNext()) {
        const QString name = QDir(path()).relativeFilePath(walk.next());
        const bool index = name.startsWith("data/mime/") && !name.contains("/packages/");
        if (!index && !name.endsWith("/mimeinfo.cache")) found[name] = read(name);
      }
    }
    return found;
  }
};

TEST_F(Association, ComesTwiceAndGoesWithoutATrace) {
  write("data/icons/hicolor/16x16/apps/other.png", "other");
  write("data/applications/other.desktop", "[Desktop Entry]\n");
  const auto before = files();
  CreateFileAssociation(program());
  const auto associated = files();
  EXPECT_THAT(associated.keys(),
              testing::IsSupersetOf(
                  {"data/applications/quillane.desktop", "data/mime/packages/quillane-theme.xml",
                   "data/icons/hicolor/256x256/apps/quillane.png",
                   "data/icons/hicolor/48x48/mimetypes/application-x-quillane-theme.png",
                   "config/mimeapps.list"}));
  const timespec longAgo[2] = {};
  const QByteArray icons = QFile::encodeName(path("data/icons/hicolor"));
  ASSERT_EQ(::utimensat(AT_FDCWD, icons.constData(), longAgo, 0), 0);
  CreateFileAssociation(program());
  EXPECT_EQ(files(), associated);
  EXPECT_NE(QFileInfo(icons).lastModified().toSecsSinceEpoch(), 0) << "by which icons are renewed";
  RemoveFileAssociation();
  EXPECT_EQ(files(), before);
  RemoveFileAssociation();
  EXPECT_EQ(files(), before);
}

TEST_F(Association, KeepsWhatTheUserHasInItsPlace) {
  write("data/applications/quillane.desktop", "mine");
  write("data/icons/hicolor/48x48/apps/quillane.png", "my own icon");
  const auto before = files();
  CreateFileAssociation(program());
  EXPECT_EQ(read("data/applications/quillane.desktop"), "mine");
  EXPECT_EQ(read("data/icons/hicolor/48x48/apps/quillane.png"), "my own icon");
  RemoveFileAssociation();
  EXPECT_EQ(files(), before);
}

TEST_F(Association, StartsTheProgramWhereverItLies) {
  const std::pair<const char*, const char*> cases[] = {{"plain", "plain"},
                                                       {"two words", "two words"},
                                                       {"a\"b", R"(a\\"b)"},
                                                       {"$HOME`x`", R"(\\$HOME\\`x\\`)"},
                                                       {"back\\slash", R"(back\\\\slash)"},
                                                       {"50%f", "50%%f"}};
  for (const auto& [folder, escaped] : cases) {
    CreateFileAssociation(program(folder));
    const QByteArray line = "\nExec=\"" + path().toUtf8() + '/' + escaped + "/bin/quillane\" %f\n";
    EXPECT_TRUE(read("data/applications/quillane.desktop").contains(line)) << folder;
  }
  EXPECT_TRUE(read("data/applications/quillane.desktop")
                  .contains("\nTryExec=" + path("50%f/bin/quillane").toUtf8() + '\n'));
}

TEST_F(Association, GivesTheEarlierDefaultBack) {
  const QByteArray type = "application/x-quillane-theme=";
  const QByteArray added = "[Added Associations]\n" + type + "quillane.desktop;\n";
  const QByteArray head = "[Default Applications]\n";
  const std::pair<QByteArray, QByteArray> cases[] = {
      {"# mine\n" + added, head + type + "quillane.desktop\n\n# mine\n" + added},
      {"[X]\na=b", head + type + "quillane.desktop\n\n[X]\na=b"},
      {head + "text/plain=x.desktop\n", head + type + "quillane.desktop\ntext/plain=x.desktop\n"},
      {added + head + type + "b.desktop;a.desktop;\n",
       added + head + type + "quillane.desktop;b.desktop;a.desktop;\n"},
      {head + "application/x-quillane-theme = b.desktop",
       head + "application/x-quillane-theme =quillane.desktop; b.desktop"}};
  for (const auto& [before, after] : cases) {
    write("config/mimeapps.list", before);
    CreateFileAssociation(program());
    EXPECT_EQ(read("config/mimeapps.list"), after);
    RemoveFileAssociation();
    EXPECT_EQ(read("config/mimeapps.list"), before);
  }
  const QByteArray others = head + type + "other.desktop\n";  // chosen by the user in between
  CreateFileAssociation(program());
  write("config/mimeapps.list", others);
  RemoveFileAssociation();
  EXPECT_EQ(read("config/mimeapps.list"), others);
}

TEST_F(Association, TellsWhatItCannotRead) {
  write("config/mimeapps.list", "mine");
  const auto before = files();
  EXPECT_NE(faultNumberOf([&] { CreateFileAssociation(path("nowhere/bin/quillane")); }), 0);
  EXPECT_EQ(files(), before);
}

}  // namespace

}  // namespace quillane

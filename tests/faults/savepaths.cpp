// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "faults/savepaths.h"

#include "shell/converter.h"
#include "shell/fileoperation.h"
#include "shell/ini.h"
#include "shell/modassociate.h"
#include "shell/modmain.h"
#include "shell/palette.h"
#include "shell/places.h"
#include "shell/seed.h"
#include "shell/state.h"
#include "support/stillworld.h"
#include "support/tinygif.h"
#include "theme/archive.h"
#include "theme/files.h"
#include "theme/save.h"
#include "theme/writer.h"
#include "thmtool/tool.h"

#include <QDirIterator>

#include <sstream>
#include <vector>

namespace quillane {

namespace {

constexpr const char* kOld = "what was there before";
constexpr const char* kNew = "what comes in its place";
constexpr QSize kScreen2{101, 80};

/// The bytes of a file without what comes from the clock: in an archive the times of its members
/// and what depends on them, of a picture all but its size.
QByteArray timeless(QByteArray tar) {
  const bool isPicture = tar.startsWith("\x89PNG") && tar.chopped(4).endsWith("IEND");
  if (isPicture) return "picture " + tar.mid(16, 8);
  constexpr qsizetype block = 512;
  for (qsizetype at = 0; at + block <= tar.size() && tar[at] != '\0';) {
    const qsizetype size = tar.mid(at + 124, 11).toLongLong(nullptr, 8);
    tar.replace(at + 136, 20, QByteArray(20, '-'));
    at += block + (size + block - 1) / block * block;
  }
  return tar;
}

template <typename Step>
QString told(Step&& step) {
  try {
    step();
  } catch (const Fault& fault) {
    return fault.description();
  }
  return {};
}

/// Replaces what is there and goes on after faults, which it keeps.
class Replacing : public FileOperationWatcher {
 public:
  QString faults;

  Overwrite targetExists(const QString&, const QString&, bool) override {
    return Overwrite::Replace;
  }
  bool goOnAfter(const Fault& fault) override {
    report(fault);
    return true;
  }
  void report(const Fault& fault) override { faults += fault.description(); }
  bool deleteForGood(const QString&, const QString&, bool) override { return false; }
  bool progress(const QString&, qint64, qint64) override { return true; }
};

class NoScreen : public StartScreen {
 public:
  QSize screenSize() override { return {1024, 768}; }
  void stop(const QString&) override {}
  void showSplash() override {}
  void setStatus(const QString&) override {}
  void loadBrowser() override {}
  void unloadSplash() override {}
};

// The ways to save.

QString saveAs(const SaveFolders& at, Generation generation) {
  ThemeValues values(generation);
  values.setImage(generation == Generation::Two ? int{gen2::DesktopBackgroundImage}
                                                : int{gen3g::WallpaperImage},
                  at.path("in/back.gif"));
  const ThemeSave save{.themePath = at.path("t/a.thm"),
                       .edited = values,
                       .xml = generateXml(values, {}),
                       .workFolder = at.path("home/temp")};
  QString text;
  const FaultReporter report = [&text](const Fault& fault) { text += fault.description(); };
  text += told([&] {
    const bool saved = saveTheme(save, report);
    EXPECT_EQ(saved, text.isEmpty());
  });
  return text;
}

SavePath picturePath(const char* name, PictureKind kind) {
  return {name, "a.picture", [kind](SaveFolders& at) {
            return told([&] {
              savePicture(QImage(at.path("in/back.gif")), at.path("t/a.picture"), kind, {});
            });
          }};
}

QString operate(const SaveFolders& at, FileVerb verb) {
  Replacing watcher;
  const QString faults = told([&] {
    const auto result = runFileOperation(verb, {at.path("in/a.thm")}, at.path("t"), watcher);
    EXPECT_EQ(result.failed, !watcher.faults.isEmpty());
  });
  return watcher.faults + faults;
}

QString keepSettings(SaveFolders& at) {
  at.settings->write(setting::BatteryLevel, "3");
  return told([&] { at.settings->flush(); });
}

QString keepBrokenSettings(SaveFolders& at) {
  QString text;
  IniSettings(at.path("t/x.ini"), [&](const Fault& fault) { text = fault.description(); });
  return text.contains("could not be kept") ? text : QString();
}

QString seed(const SaveFolders& at) {
  QString text;
  seedProgramFolder({at.path("t"), at.path("in"), {}, {}},
                    [&](const Fault& fault) { text = fault.description(); });
  return text;
}

QString extract(const SaveFolders& at) {
  const int code = extractArchive(at.path("in/a.thm"), at.path("t")).code;
  return code == 0 ? QString() : at.path(QString::number(code));
}

/// A run of the tool, words apart by blanks; "%" stands for the folders.
SavePath toolPath(const char* name, const char* target, const char* words, bool several = false) {
  const auto run = [words](SaveFolders& at) {
    std::ostringstream out;
    std::ostringstream err;
    QStringList arguments = QString(words).split(' ');
    const int status = runTool(arguments.replaceInStrings("%", at.path()), out, err);
    EXPECT_TRUE(status == AllWell || !err.str().empty());
    // Findings in a theme that was saved are no fault of the save.
    return status == AllWell ? QString() : QString::fromStdString(err.str());
  };
  return {.name = name, .target = target, .save = run, .several = several};
}

std::vector<SavePath> makePaths() {
  std::vector<SavePath> paths{
      {"theme of generation 2", "a.thm",
       [](SaveFolders& at) { return saveAs(at, Generation::Two); }},
      {"theme of 3G", "a.thm", [](SaveFolders& at) { return saveAs(at, Generation::ThreeG); }},
      {"archive", "a.thm",
       [](SaveFolders& at) {
         return told([&] { packArchive(at.path("t/a.thm"), {at.path("in/back.gif")}); });
       }},
      {"text", "a.xml",
       [](SaveFolders& at) { return told([&] { saveFile(at.path("t/a.xml"), kNew); }); }},
      {"palette", "a.pal",
       [](SaveFolders& at) {
         return told([&] { savePalette(at.path("t/a.pal"), builtInPalette()); });
       }},
      picturePath("GIF", PictureKind::Gif),
      picturePath("JPEG", PictureKind::Jpeg),
      picturePath("PNG", PictureKind::Png),
      picturePath("BMP", PictureKind::Bmp),
      {"entry of an INI file", "a.ini",
       [](SaveFolders& at) {
         return told([&] { WriteIni("PNG", "CompressionLevel", "7", at.path("t/a.ini")); });
       }},
      {.name = "settings",
       .target = "x.ini",
       .save = keepSettings,
       .prepare =
           [](SaveFolders& at) {
             at.settings = std::make_unique<IniSettings>(
                 at.write("t/x.ini", "[%General]\nOperatorName=Ann\n"), [](const Fault&) {});
           }},
      {"broken settings put aside", "x.ini.broken", keepBrokenSettings,
       [](SaveFolders& at) { at.write("t/x.ini", kNew); }},
      {"copy", "a.thm", [](SaveFolders& at) { return operate(at, FileVerb::Copy); }},
      {"move", "a.thm", [](SaveFolders& at) { return operate(at, FileVerb::Move); },
       [](SaveFolders& at) { at.write("in/a.thm", kNew); }},
      {.name = "move to another disk",
       .target = "a.thm",
       .save = [](SaveFolders& at) { return operate(at, FileVerb::Move); },
       .prepare = [](SaveFolders& at) { at.write("in/a.thm", kNew); },
       .crossesDisks = true},
      {"another name", "a.thm",
       [](SaveFolders& at) {
         return told([&] { renameFile(at.path("t/a.thm"), at.path("t/b.thm")); });
       },
       [](SaveFolders& at) { QFile::remove(at.path("t/b.thm")); }},
      {.name = "files of the program",
       .target = "in",
       .save = seed,
       .notes = "t/seeded.txt",
       .several = true},
      {.name = "association",
       .target = "config/mimeapps.list",
       .save =
           [](SaveFolders& at) {
             return told([&] { CreateFileAssociation(at.path("in/bin/quillane")); });
           },
       .prepare =
           [](SaveFolders& at) {
             at.makeFolder("in/bin");
             for (const char* file : {"applications/quillane.desktop", "icons/hicolor/8x8/a.png",
                                      "mime/packages/quillane-theme.xml"})
               at.write(QString("in/share/") + file, "shipped");
           },
       .several = true},
      {.name = "extraction", .target = "back.gif", .save = extract, .extracts = true},
      toolPath("thmtool pack", "a.thm", "pack --index %/t/a.thm %/in/theme.xml %/in/back.gif"),
      toolPath("thmtool new", "a.thm", "new 3g %/t/a.thm --set Title=123456"),
      toolPath("thmtool edit", "a.thm",
               "edit %/in/a.thm %/t/a.thm --tag Theme_created=1 --image Background_image="),
      toolPath("thmtool render", "standby.png",
               "render %/in/a.thm --screens standby,notes --out %/t", true),
      toolPath("thmtool sheet", "a.png", "render %/in/a.thm --screens standby --sheet %/t/a.png"),
      toolPath("thmtool thumbnail", "a.png", "thumbnail %/in/a.thm %/t/a.png 64")};
  paths.push_back(toolPath("thmtool unpack", "back.gif", "unpack %/in/a.thm %/t"));
  paths.back().extracts = true;
  return paths;
}

}  // namespace

void SaveFolders::SetUp() {
  TempFolder::SetUp();
  qputenv("TMPDIR", path("tmp").toUtf8());
  qputenv("XDG_DATA_HOME", path("t/data").toUtf8());
  qputenv("XDG_CONFIG_HOME", path("t/config").toUtf8());
  qputenv("PATH", "");  // What renews the desktop's indexes is no part of a save.
}

void SaveFolders::TearDown() {
  settings.reset();
  qunsetenv("TMPDIR");
}

QMap<QString, QByteArray> SaveFolders::content() const {
  QMap<QString, QByteArray> found;
  QDirIterator walk(path(), QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
  while (walk.hasNext()) {
    const QString name = QDir(path()).relativeFilePath(walk.next());
    found[name] = walk.fileInfo().isFile() ? timeless(read(name)) : "<folder>";
  }
  return found;
}

void SaveFolders::reset(const QString& target) {
  settings.reset();
  for (const char* folder : {"t", "in", "home", "tmp"})
    QDir(path(folder)).removeRecursively();
  for (const char* folder : {"home/temp", "tmp"})
    makeFolder(folder);
  write("t/" + target, kOld);
  write("in/back.gif", tinyGif(kScreen2, {0, 0, kScreen2.width(), kScreen2.height()}, 1));
  write("in/theme.xml", "<Ericsson_theme><Background_image Source=\"back.gif\"/></Ericsson_theme>");
  packArchive(path("in/a.thm"), {path("in/theme.xml"), path("in/back.gif")});
}

std::span<const SavePath> savePaths() {
  static const std::vector<SavePath> paths = makePaths();
  return paths;
}

void startAgain(const SaveFolders& folders) {
  PublicState state;
  MemorySettings settings;
  StillWorld world;
  NoScreen screen;
  const Places places{folders.path("home"), folders.path("none"), folders.path("none"), {}};
  EXPECT_TRUE(Main(state, settings, places, world, screen,
                   [](const Fault& fault) { ADD_FAILURE() << fault.what(); }));
}

}  // namespace quillane

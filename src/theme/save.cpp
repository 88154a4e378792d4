// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "theme/save.h"

#include "theme/archive.h"
#include "theme/codepage.h"
#include "theme/files.h"
#include "theme/writer.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

/// The folder in which a save makes its files: empty at first, gone with the object.
class NewFolder {
 public:
  explicit NewFolder(const QString& workFolder) : folder_(QDir(workFolder).filePath(u"new"_s)) {
    // A link must not lead the emptying into somebody else's folder.
    if (QFileInfo(folder_.path()).isSymLink()) QFile::remove(folder_.path());
    if (!QDir().mkpath(folder_.path()))
      throw Fault(FaultNumber::NoPermission,
                  u"The folder \"%1\" cannot be made; a save needs it."_s.arg(folder_.path()));
    empty();
  }
  ~NewFolder() {
    empty();
    QDir().rmdir(folder_.path());
  }
  Q_DISABLE_COPY(NewFolder)

  /// Makes a file in the folder and returns its path. Throws `Fault`.
  QString make(const QString& name, const QByteArray& bytes) const {
    QString path = folder_.filePath(name);
    saveFile(path, bytes);
    return path;
  }

 private:
  void empty() {
    folder_.refresh();
    for (const QString& name : folder_.entryList(QDir::Files | QDir::Hidden | QDir::System))
      folder_.remove(name);
  }

  QDir folder_;
};

/// The images that have a line in the index: those that are packed, but for the small title image
/// of generation 2. Where the theme on show has one, the edited one must as well.
QStringList indexedImages(const ThemeSave& save) {
  ThemeValues listed = save.edited;
  if (listed.schema().generation == Generation::Two) {
    if (save.shown == nullptr || save.shown->image(gen2::TitleImageSmall).isEmpty())
      listed.setImage(gen2::TitleImageSmall, {});
    else
      fileSize(listed.image(gen2::TitleImageSmall));  // throws for none
  }
  return themeImages(listed);
}

QStringList makeFiles(const ThemeSave& save, const NewFolder& folder) {
  const QString xml = save.compress ? compressXml(save.xml) : save.xml;
  QStringList files{folder.make(themeTitle(save.themePath).toLower() + ".xml"_L1, toCodePage(xml))};
  if (save.includeIndex)
    files += folder.make(u"index.txt"_s, themeIndex(files + indexedImages(save), IndexEnd::Bare));
  return files;
}

}  // namespace

QString themeTitle(const QString& themePath) {
  return QFileInfo(themePath).baseName();
}

QString themeSavePath(const QString& path) {
  return path.left(path.lastIndexOf(u'/') + 1) + themeTitle(path) + ".thm"_L1;
}

bool saveTheme(const ThemeSave& save, const FaultReporter& report) {
  const NewFolder folder(save.workFolder);
  const QStringList files = makeFiles(save, folder);
  try {
    packArchive(save.themePath, files + themeImages(save.edited));
  } catch (const Fault& fault) {
    report(fault);
    return false;
  }
  return true;
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "theme/save.h"

#include "theme/archive.h"
#include "theme/archive_reader.h"
#include "theme/codepage.h"
#include "theme/files.h"
#include "theme/writer.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kLongestName = 255;

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
    QString path = pathOf(name);
    saveFile(path, bytes);
    return path;
  }

 private:
  /// The toolkit's own joining takes a name with a colon in front for no file of the folder.
  QString pathOf(const QString& name) const { return folder_.path() + u'/' + name; }

  void empty() {
    folder_.refresh();
    for (const QString& name : folder_.entryList(QDir::Files | QDir::Hidden | QDir::System))
      QFile::remove(pathOf(name));
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

/// Refuses an image that a reader would take for the XML or the index.
void checkImageName(const QString& image) {
  const QString name = QFileInfo(image).fileName();
  const QString taken = memberName(toCodePage(name)).toLower();
  if (taken.endsWith(".xml"_L1) || taken == kIndexName)
    throw Fault(FaultNumber::BadCall,
                u"The image \"%1\" cannot be packed under this name, which is for other files of a "
                "theme; rename it."_s.arg(name));
}

/// The name of the XML that a save makes. Throws `Fault` for one that no file can have.
QString xmlName(const QString& themePath) {
  QString name = themeTitle(themePath).toLower() + ".xml"_L1;
  if (QFile::encodeName(name).size() > kLongestName)
    throw Fault(FaultNumber::BadCall,
                u"The name of \"%1\" is too long: its XML file could not be named after it."_s.arg(
                    themePath));
  return name;
}

QStringList makeFiles(const ThemeSave& save, const NewFolder& folder) {
  const QString xml = save.compress ? compressXml(save.xml) : save.xml;
  QStringList files{folder.make(xmlName(save.themePath), toCodePage(xml))};
  if (save.includeIndex)
    files += folder.make(kIndexName, themeIndex(files + indexedImages(save), IndexEnd::Bare));
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
  const QStringList images = themeImages(save.edited);
  for (const QString& image : images)
    checkImageName(image);
  const NewFolder folder(save.workFolder);
  const QStringList files = makeFiles(save, folder);
  try {
    packArchive(save.themePath, files + images);
  } catch (const Fault& fault) {
    report(fault);
    return false;
  }
  return true;
}

}  // namespace quillane

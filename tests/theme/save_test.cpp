// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "theme/save.h"

#include "support/tempfolder.h"
#include "theme/archive.h"
#include "theme/load.h"
#include "theme/writer.h"

namespace quillane {

namespace {

class Save : public TempFolder {
 protected:
  struct Options {
    bool includeIndex = true;
    bool compress = true;
  };

  bool save(const QString& file, const ThemeValues& edited, const ThemeTagTexts& tags = {},
            const Options& options = {true, true}, const ThemeValues* shown = nullptr) {
    return saveTheme({.themePath = path(file),
                      .edited = edited,
                      .shown = shown,
                      .xml = generateXml(edited, tags),
                      .includeIndex = options.includeIndex,
                      .compress = options.compress,
                      .workFolder = path("work")},
                     log.reporter());
  }

  /// Extracts and loads a theme; the files lie in `folder`.
  LoadedTheme load(const QString& theme, const QString& folder) {
    EXPECT_EQ(extractArchive(theme, makeFolder(folder)).code, 0);
    return loadTheme(path(folder), states, log.reporter()).value_or(LoadedTheme());
  }

  /// All that a theme sets, images by their bare names.
  QString contentOf(const LoadedTheme& theme) {
    return generateXml(theme.values, readThemeTags(theme.xml, log.reporter()));
  }

  QStringList membersOf(const QString& file) const {
    QStringList names;
    for (const ArchiveMember& member : listArchive(path(file)).members)
      names += member.name;
    return names;
  }

  ThemeValues withImages(Generation generation, const QList<std::pair<int, QString>>& slots_) {
    ThemeValues values(generation);
    for (const auto& [slot, name] : slots_)
      values.setImage(slot, write("pictures/" + name, name.toLatin1()));
    return values;
  }

  FaultLog log;
  ImageStates states{};
};

TEST_F(Save, NamesTheThemeUpToItsFirstPoint) {
  const std::tuple<const char*, const char*, const char*> rows[] = {
      {"/t/New Theme.thm", "New Theme", "/t/New Theme.thm"},
      {"/t.x/A.b.c.thm", "A", "/t.x/A.thm"},
      {"bare", "bare", "bare.thm"},
      {"/t/.thm", "", "/t/.thm"}};
  for (const auto& [chosen, title, target] : rows) {
    EXPECT_EQ(themeTitle(chosen), title);
    EXPECT_EQ(themeSavePath(chosen), target);
    EXPECT_EQ(themeTitle(target), title);
  }
}

TEST_F(Save, PacksAndListsWhatTheSlotsSay) {
  using Two = gen2::Image;
  const ThemeValues withSmall = withImages(Generation::Two, {{Two::TitleImageSmall, "Shown.gif"}});
  const ThemeValues all = withImages(Generation::Two, {{Two::BackgroundImage, "Back.GIF"},
                                                       {Two::DesktopBackgroundImage, "Back.GIF"},
                                                       {Two::TitleImageSmall, "small.gif"},
                                                       {Two::TitleImageLarge, "large.gif"},
                                                       {Two::TitleImageAsian, "asian.gif"}});
  const ThemeValues threeG =
      withImages(Generation::ThreeG, {{gen3g::StatusbarBackgroundImage, "s.jpg"},
                                      {gen3g::WallpaperImage, "w.gif"},
                                      {gen3g::SoftkeysBackgroundImage, "s.jpg"}});
  const ThemeValues bare(Generation::Two);
  const std::tuple<const char*, const ThemeValues&, const ThemeValues*, QString, QString> rows[] = {
      {"no images", bare, nullptr, "", ""},
      {"small title, none shown", all, &bare, "back.gif small.gif large.gif asian.gif",
       "\r\nback.gif <8>\r\nlarge.gif <9>\r\nasian.gif <9>"},
      {"small title shown", all, &withSmall, "back.gif small.gif large.gif asian.gif",
       "\r\nback.gif <8>\r\nsmall.gif <9>\r\nlarge.gif <9>\r\nasian.gif <9>"},
      {"3G", threeG, nullptr, "s.jpg w.gif s.jpg", "\r\ns.jpg <5>\r\nw.gif <5>\r\ns.jpg <5>"}};
  for (const auto& [what, edited, shown, images, lines] : rows)
    for (const Options options : {Options{true, true}, {true, false}, {false, true}}) {
      SCOPED_TRACE(what);
      EXPECT_TRUE(save("My.New.thm", edited, {}, options, shown));
      const QString index = options.includeIndex ? "index.txt " : "";
      EXPECT_EQ(membersOf("My.New.thm"), ("my.xml " + index + images).trimmed().split(' '));
      load(path("My.New.thm"), "out");
      const QString xml = generateXml(edited, {});
      const QString packed = options.compress ? compressXml(xml) : xml;
      EXPECT_EQ(read("out/my.xml"), packed.toLatin1());
      const QByteArray listed = "my.xml <" + QByteArray::number(packed.size()) + '>';
      EXPECT_EQ(read("out/index.txt"),
                options.includeIndex ? listed + lines.toLatin1() : QByteArray());
      QDir(path("out")).removeRecursively();
    }
  EXPECT_EQ(faultNumberOf([&] { save("My.New.thm", bare, {}, {true, true}, &withSmall); }), 53);
  EXPECT_TRUE(save("My.New.thm", bare, {}, {false, true}, &withSmall));
  EXPECT_EQ(log.texts(), QStringList());
}

/// The sample themes are made without the writer, line by line as phones know them.
TEST_F(Save, SampleThemesComeBackByteForByte) {
  const QFileInfoList folders =
      QDir(SAMPLE_FOLDERS).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot);
  ASSERT_GE(folders.size(), 6);
  for (const QFileInfo& folder : folders) {
    const QString name = folder.fileName();
    SCOPED_TRACE(name.toStdString());
    const LoadedTheme before =
        loadTheme(folder.filePath(), states, log.reporter()).value_or(LoadedTheme());
    const ThemeTagTexts tags = readThemeTags(before.xml, log.reporter());
    EXPECT_TRUE(save("1.thm", before.values, tags, {true, false}));
    EXPECT_EQ(contentOf(load(path("1.thm"), name)), contentOf(before));
    QFile source(before.xmlPath);
    ASSERT_TRUE(source.open(QIODevice::ReadOnly));
    EXPECT_EQ(read(name + "/1.xml"), source.readAll());
  }
  EXPECT_EQ(log.texts(), QStringList());
}

/// A tag of a theme's text, and what a save makes of it.
TEST_F(Save, OddTextsComeBackAsFarAsTheFormHoldsThem) {
  write("in/back.gif", "GIF");
  write("in/L\u00C4UD.GIF", "GIF");
  const std::tuple<const char*, QByteArray, QByteArray> rows[] = {
      {"bare marks", "Theme_name Name=\"<&> '\"", "Theme_name Name=\"<&> '\""},
      {"code page", "Theme_name Name=\"\x80\x81\xFC\"", "Theme_name Name=\"\x80\x81\xFC\""},
      {"lower-case colour", "Title Color=\"0xabcdef\"", "Title Color=\"0xabcdef\""},
      {"odd colour", "Title Color=\"red\"", "Title Color=\"0xd\""},
      {"image", "Desktop_background_image Source=\"back.gif\"",
       "Desktop_background_image Source=\"back.gif\""},
      {"image in capitals", "Desktop_background_image Source=\"L\xC4UD.GIF\"",
       "Desktop_background_image Source=\"l\xE4ud.gif\""},
      {"missing image", "Desktop_background_image Source=\"gone.gif\"", ""},
      {"no image", "Desktop_background_image Source=\"xxx.gif\"", ""},
      {"unknown element", "Desktop_sound Source=\"back.gif\"", ""}};
  for (const auto& [what, given, kept] : rows)
    for (const QByteArray root : {"Ericsson_theme", "Sony_Ericsson_theme"}) {
      SCOPED_TRACE(what);
      write("in/a.xml", '<' + root + "><" + given + "/></" + root + '>');
      const LoadedTheme theme = loadTheme(path("in"), states, log.reporter()).value();
      EXPECT_TRUE(save("a.thm", theme.values, readThemeTags(theme.xml, log.reporter())));
      QDir(path("out")).removeRecursively();
      EXPECT_EQ(contentOf(load(path("a.thm"), "out")), contentOf(theme));
      const QByteArray xml = read("out/a.xml");
      EXPECT_TRUE(kept.isEmpty() ? !xml.contains(given) : xml.contains('<' + kept + "/>"))
          << xml.constData();
      EXPECT_EQ(xml.count("Color=\"0x\"/>") > 40, root.startsWith("Sony"));
    }
}

TEST_F(Save, RefusesNamesThatWouldRuinTheTheme) {
  const QString longTheme = "t/" + QString(252, u'l') + ".t";
  const std::tuple<QString, QString, QString> rows[] = {{"t/a.thm", "A.xml", "A.xml"},
                                                        {"t/a.thm", "0.Xml", "0.Xml"},
                                                        {"t/a.thm", "Index.TXT", "Index.TXT"},
                                                        {"t/a.thm", "a\\index.txt", "a\\index.txt"},
                                                        {longTheme, "fine.gif", path(longTheme)}};
  for (const auto& [theme, image, named] : rows) {
    ThemeValues values(Generation::Two);
    values.setImage(gen2::DesktopBackgroundImage, write("pictures/" + image, "GIF"));
    write(theme, "old");
    try {
      save(theme, values, {}, {false, true});
      ADD_FAILURE() << qPrintable(image);
    } catch (const Fault& fault) {
      EXPECT_TRUE(fault.description().contains('"' + named + '"')) << fault.what();
    }
    EXPECT_EQ(read(theme), "old");
  }
}

TEST_F(Save, CleansItsFolderAndNoOther) {
  const ThemeValues values(Generation::Two);
  write("work/back.gif", "kept");
  write("work/new/left.gif", "old");
  write("work/new/:left.gif", "old");
  makeFolder("t");
  EXPECT_TRUE(save("t/:A.thm", values));
  EXPECT_EQ(membersOf("t/:A.thm"), QStringList({":a.xml", "index.txt"}));
  EXPECT_FALSE(QDir().exists("./:a.xml")) << "in the current folder";
  EXPECT_TRUE(save("a.thm", values));
  EXPECT_EQ(membersOf("a.thm"), QStringList({"a.xml", "index.txt"}));
  EXPECT_EQ(listOf("work"), QStringList("back.gif"));

  write("elsewhere/precious.txt", "kept");
  ASSERT_TRUE(QFile::link(path("elsewhere"), path("work/new")));
  EXPECT_TRUE(save("a.thm", values));
  EXPECT_EQ(listOf("elsewhere"), QStringList("precious.txt"));

  write("work/new", "an image of the theme");
  EXPECT_EQ(faultNumberOf([&] { save("a.thm", values); }), 70);
  EXPECT_EQ(read("work/new"), "an image of the theme");
}

}  // namespace

}  // namespace quillane

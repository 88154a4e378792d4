// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "theme/load.h"

#include "support/temp_folder.h"
#include "support/text.h"

namespace quillane {
namespace {

using namespace Qt::StringLiterals;

/// A theme's text with every element: colours count up from 000001, images are "<element>.gif".
QByteArray fullTheme(const ThemeSchema& schema) {
  QByteArray xml = QByteArray("<") + schema.root.data() + '>';
  int count = 0;
  for (const ColorElement& color : schema.colors)
    xml += QByteArray("<") + color.element.data() + " Color=\"0x" +
           QByteArray::number(++count, 16).rightJustified(6, '0') + "\"/>";
  for (const ImageElement& image : schema.images)
    xml +=
        QByteArray("<") + image.element.data() + " Source=\"" + image.element.data() + ".gif\"/>";
  return xml + "</" + schema.root.data() + '>';
}

class Load : public TempFolder {
 protected:
  LoadedTheme load() {
    std::optional<LoadedTheme> theme = loadTheme(path(), states, log.reporter());
    EXPECT_TRUE(theme.has_value());
    return theme.value_or(LoadedTheme());
  }

  ImageStates states{};
  FaultLog log;
};

TEST_F(Load, FillsEveryValueOfBothGenerations) {
  for (const Generation generation : {Generation::Two, Generation::ThreeG}) {
    const ThemeSchema& schema = schemaOf(generation);
    write(u"theme.xml"_s, fullTheme(schema));
    for (const ImageElement& image : schema.images)
      write(QString(image.element) + u".gif"_s, "GIF");
    states.fill(SlotState::None);
    const LoadedTheme theme = load();
    ASSERT_EQ(&theme.values.schema(), &schema);
    for (int at = 0; at < static_cast<int>(schema.colors.size()); ++at)
      EXPECT_EQ(theme.values.color(at).toInt(nullptr, 16), at + 1);
    for (std::size_t at = 0; at < schema.images.size(); ++at) {
      const ImageElement& image = schema.images[at];
      EXPECT_EQ(theme.values.image(static_cast<int>(at)), path(QString(image.element) + u".gif"_s));
      EXPECT_EQ(states.at(static_cast<std::size_t>(image.state)), SlotState::Found);
    }
    EXPECT_EQ(static_cast<std::size_t>(std::count(states.begin(), states.end(), SlotState::Found)),
              schema.images.size());
    EXPECT_TRUE(theme.warnings.isEmpty() && log.texts().isEmpty());
  }
}

TEST_F(Load, WarnsInLoadOrder) {
  write(u"theme.xml"_s, fullTheme(schemaOf(Generation::Two)));
  EXPECT_EQ(
      load().warnings,
      QStringList({u"Background image defined, file \"Background_image.gif\" not found."_s,
                   u"Desktop image defined, file \"Desktop_background_image.gif\" not found."_s,
                   u"Title small image defined, file \"Title_image_small.gif\" not found."_s,
                   u"Title medium image defined, file \"Title_image_medium.gif\" not found."_s,
                   u"Title large image defined, file \"Title_image_large.gif\" not found."_s,
                   u"Title asian image defined, file \"Title_image_asian.gif\" not found."_s}));
  EXPECT_EQ(states[5], SlotState::Missing);

  write(u"theme.xml"_s, fullTheme(schemaOf(Generation::ThreeG)));
  QStringList firstWords;
  for (const QString& warning : load().warnings)
    firstWords += warning.section(u" image"_s, 0, 0);
  EXPECT_EQ(firstWords,
            QStringList({u"Wallpaper"_s, u"Desktop background"_s, u"Statusbar background"_s,
                         u"Softkeys background"_s, u"Title"_s, u"Highlight"_s,
                         u"General background"_s, u"Morelist title"_s, u"Morelist highlight"_s}));
}

TEST_F(Load, TakesAnImageValueForOneFileOfTheFolder) {
  write(u"a.gif"_s, "GIF");
  write(u"sub/b.gif"_s, "GIF");
  write(u"\u00E4.gif"_s, "GIF");
  write(u"[1].gif"_s, "GIF");
  ASSERT_TRUE(QFile::link(path(u"a.gif"_s), path(u"link.gif"_s)));
  const struct {
    QByteArray value;
    SlotState state;
    QString found = {};
  } rows[] = {
      {"", SlotState::None},
      {"xxx.gif", SlotState::None},
      {"XXX.gif", SlotState::Missing},
      {"a.gif", SlotState::Found, u"a.gif"_s},
      {"A.GIF", SlotState::Missing},
      {"\xE4.gif", SlotState::Found, u"\u00E4.gif"_s},
      {"[1].gif", SlotState::Found, u"[1].gif"_s},
      {"sub/b.gif", SlotState::Missing},
      {"sub\\b.gif", SlotState::Missing},
      {"./a.gif", SlotState::Missing},
      {"*.gif", SlotState::Missing},
      {"?.gif", SlotState::Missing},
      {QByteArray("a.gif\0", 6), SlotState::Missing},
      {"sub", SlotState::Missing},
      {"..", SlotState::Missing},
      {"link.gif", SlotState::Missing},
      {":a.gif", SlotState::Missing},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.value.toPercentEncoding().constData());
    write(u"theme.xml"_s, "<Background_image Source=\"" + row.value + "\"/>");
    const LoadedTheme theme = load();
    EXPECT_EQ(states[0], row.state);
    EXPECT_EQ(theme.values.image(gen2::BackgroundImage),
              row.found.isEmpty() ? QString() : path(row.found));
    EXPECT_EQ(theme.warnings.size(), row.state == SlotState::Missing ? 1 : 0);
  }
}

TEST_F(Load, LeavesAbsentElementsToTheGeneration) {
  write(u"theme.xml"_s, "text without elements");
  LoadedTheme theme = load();
  EXPECT_EQ(theme.values.schema().generation, Generation::Two);
  EXPECT_EQ(theme.values.color(gen2::TitleColor), u"0000FF"_s);
  states[7] = SlotState::Found;
  states[4] = SlotState::Missing;
  write(u"theme.xml"_s, "<!-- Sony_Ericsson_theme -->");
  theme = load();
  EXPECT_EQ(theme.values.schema().generation, Generation::ThreeG);
  EXPECT_EQ(theme.values.color(gen3g::TitleColor), u""_s);
  EXPECT_EQ(states[7], SlotState::None);
  EXPECT_EQ(states[4], SlotState::Missing) << "a slot of the other generation";
}

TEST_F(Load, TakesTheFirstXmlInNameOrder) {
  EXPECT_FALSE(loadTheme(path(), states, log.reporter()).has_value());
  makeFolder(u"0.xml"_s);
  write(u"a.xml.bak"_s, "");
  EXPECT_EQ(findThemeXml(path()), u""_s);
  for (const char* const name : {"c.xml", "B.XML", "b.xml", "a.Xml", ".xml"}) {
    write(QString::fromLatin1(name), "");
    const QString expected =
        QByteArrayView(name) == "b.xml" ? u"B.XML"_s : QString::fromLatin1(name);
    EXPECT_EQ(findThemeXml(path() + u'/'), path(expected));
  }
}

TEST_F(Load, ReadsTheTextInTheCodePageOneTagALine) {
  const QString file = write(u"theme.xml"_s, "<a><Theme_name Name=\"\x80\x81\"/></a>");
  const LoadedTheme theme = load();
  EXPECT_EQ(theme.xmlPath, file);
  EXPECT_EQ(theme.xml, u"<a>\r\n<Theme_name Name=\"\u20AC\u0081\"/>\r\n</a>"_s);
}

TEST(NormaliseThemeXml, BreaksTagsAndRepairsDoubleReturns) {
  const struct {
    const char* what;
    const char* xml;
    const char* normal;
  } rows[] = {
      {"unbroken", "<a><b/><c/>", "<a>\r\n<b/>\r\n<c/>"},
      {"bare returns stay", "<a>\r<b/><c>\r", "<a>\r<b/>\r\n<c>\r"},
      {"bare line feeds stay", "<a>\n<b/>\n\n", "<a>\n<b/>\n\n"},
      {"two returns", "a\r\rb", "a\r\r\n\r\r\nb"},
      {"two returns, tags and line ends", "\r\r<a><b>\r\n",
       "\r\r\n\r\r\n<a>\r\r\n\r\n<b>\r\r\n\r\n"},
      {"empty", "", ""},
  };
  for (const auto& row : rows)
    EXPECT_EQ(normaliseThemeXml(QString::fromLatin1(row.xml)), QString::fromLatin1(row.normal))
        << row.what;
}

}  // namespace
}  // namespace quillane

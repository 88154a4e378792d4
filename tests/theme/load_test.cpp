// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "theme/load.h"

#include "support/tempfolder.h"

#include <algorithm>
#include <ctime>
#include <limits>

namespace quillane {

namespace {

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
    write("theme.xml", fullTheme(schema));
    for (const ImageElement& image : schema.images)
      write(QString(image.element) + ".gif", "GIF");
    states.fill(SlotState::None);
    const LoadedTheme theme = load();
    ASSERT_EQ(&theme.values.schema(), &schema);
    for (int at = 0; at < static_cast<int>(schema.colors.size()); ++at)
      EXPECT_EQ(theme.values.color(at).toInt(nullptr, 16), at + 1);
    for (std::size_t at = 0; at < schema.images.size(); ++at) {
      const ImageElement& image = schema.images[at];
      EXPECT_EQ(theme.values.image(static_cast<int>(at)), path(QString(image.element) + ".gif"));
      EXPECT_EQ(states.at(static_cast<std::size_t>(image.state)), SlotState::Found);
    }
    EXPECT_EQ(static_cast<std::size_t>(std::count(states.begin(), states.end(), SlotState::Found)),
              schema.images.size());
    EXPECT_TRUE(theme.warnings.isEmpty() && log.texts().isEmpty());
  }
}

TEST_F(Load, WarnsInLoadOrder) {
  const std::pair<Generation, QStringList> rows[] = {
      {Generation::Two,
       {"Background", "Desktop", "Title small", "Title medium", "Title large", "Title asian"}},
      {Generation::ThreeG,
       {"Wallpaper", "Desktop background", "Statusbar background", "Softkeys background", "Title",
        "Highlight", "General background", "Morelist title", "Morelist highlight"}}};
  for (const auto& [generation, names] : rows) {
    write("theme.xml", fullTheme(schemaOf(generation)));
    QStringList warned;
    for (const QString& warning : load().warnings)
      warned += warning.section(" image", 0, 0);
    EXPECT_EQ(warned, names);
  }
  write("theme.xml", "<Title_image_small Source=\"a.gif\"/>");
  EXPECT_EQ(load().warnings, QStringList{"Title small image defined, file \"a.gif\" not found."});
}

TEST_F(Load, TakesAnImageValueForOneFileOfTheFolder) {
  for (const char* name : {"a.gif", "sub/b.gif", "\u00E4.gif", "[1].gif"})
    write(name, "GIF");
  ASSERT_TRUE(QFile::link(path("a.gif"), path("link.gif")));
  const std::pair<SlotState, QByteArrayList> rows[] = {
      {SlotState::None, {"", "xxx.gif"}},
      {SlotState::Found, {"a.gif", "\xE4.gif", "[1].gif"}},
      {SlotState::Missing,
       {"Xxx.gif", "A.GIF", "sub/b.gif", "sub\\b.gif", "./a.gif", "*.gif", "?.gif",
        QByteArray("a.gif\0", 6), "sub", "..", "link.gif", ":a.gif"}}};
  for (const auto& [state, values] : rows)
    for (const QByteArray& value : values) {
      SCOPED_TRACE(value.toPercentEncoding().constData());
      write("theme.xml", "<Background_image Source=\"" + value + "\"/>");
      const LoadedTheme theme = load();
      const bool found = state == SlotState::Found;
      EXPECT_EQ(states[0], state);
      EXPECT_EQ(theme.values.image(gen2::BackgroundImage),
                found ? path(QString::fromLatin1(value)) : QString());
      EXPECT_EQ(theme.warnings.size(), state == SlotState::Missing ? 1 : 0);
    }
}

TEST_F(Load, LeavesAbsentElementsToTheGeneration) {
  write("theme.xml", "text without elements");
  LoadedTheme theme = load();
  EXPECT_EQ(theme.values.schema().generation, Generation::Two);
  EXPECT_EQ(theme.values.color(gen2::TitleColor), "0000FF");
  states[7] = SlotState::Found;
  states[4] = SlotState::Missing;
  write("theme.xml", "<!-- Sony_Ericsson_theme -->");
  theme = load();
  EXPECT_EQ(theme.values.schema().generation, Generation::ThreeG);
  EXPECT_EQ(theme.values.color(gen3g::TitleColor), "");
  EXPECT_EQ(states[7], SlotState::None);
  EXPECT_EQ(states[4], SlotState::Missing) << "a slot of the other generation";
}

TEST_F(Load, TakesTheFirstXmlInNameOrder) {
  EXPECT_FALSE(loadTheme(path(), states, log.reporter()).has_value());
  makeFolder("0.xml");
  write("a.xml.bak", "");
  EXPECT_EQ(findThemeXml(path()), "");
  for (const char* const name : {"c.xml", "B.XML", "b.xml", "a.Xml", ".xml"}) {
    write(name, "");
    const QString expected = QByteArrayView(name) == "b.xml" ? "B.XML" : name;
    EXPECT_EQ(findThemeXml(path() + u'/'), path(expected));
  }
}

/// Texts on which a scan that starts over at each match, or looks from each for the end of its tag,
/// takes the square of their length.
TEST_F(Load, WorkGrowsWithTheTextAndNoMore) {
  constexpr int size = 1 << 16;
  const FaultReporter none = [](const Fault&) {};
  const auto work = [&](const QByteArray& xml) {
    write("theme.xml", xml);
    std::clock_t least = std::numeric_limits<std::clock_t>::max();
    for (int run = 0; run < 3; ++run) {
      const std::clock_t begin = std::clock();
      loadTheme(path(), states, none);
      least = std::min(least, std::clock() - begin);
    }
    return least;
  };
  for (const QByteArray root : {"Ericsson_theme", "Sony_Ericsson_theme"})
    for (const QByteArray& text :
         {QByteArray("<Title "), QByteArray("Title_"), QByteArray("<Title Color=\""),
          QByteArray("\r\r\n"), QByteArray("Title\t"), QByteArray("/>"), QByteArray("\"")}) {
      const auto xml = [&](qsizetype count) {
        return '<' + root + '>' + text.repeated(count) + "\t/>";
      };
      EXPECT_LT(work(xml(4 * size / text.size() - 9)), 9 * work(xml(size / text.size())))
          << text.constData() << " in " << root.constData();
    }
}

TEST(NormaliseThemeXml, BreaksTagsAndRepairsDoubleReturns) {
  const std::tuple<const char*, const char*, const char*> rows[] = {
      {"unbroken", "<a><b/><c/>", "<a>\r\n<b/>\r\n<c/>"},
      {"bare returns stay", "<a>\r<b/><c>\r", "<a>\r<b/>\r\n<c>\r"},
      {"bare line feeds stay", "<a>\n<b/>\n\n", "<a>\n<b/>\n\n"},
      {"two returns", "a\r\rb", "a\r\r\n\r\r\nb"},
      {"two returns, tags", "\r\r<a><b>\r\n", "\r\r\n\r\r\n<a>\r\r\n\r\n<b>\r\r\n\r\n"},
      {"empty", "", ""}};
  for (const auto& [what, xml, normal] : rows)
    EXPECT_EQ(normaliseThemeXml(QString(xml)), QString(normal)) << what;
}

}  // namespace

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "theme/writer.h"

#include "support/tempfolder.h"
#include "theme/codepage.h"
#include "theme/load.h"

namespace quillane {

namespace {

/// The sample themes are made without this writer, line by line as phones know them.
TEST(GenerateXml, WritesTheSampleThemesByteForByte) {
  const QFileInfoList folders =
      QDir(SAMPLE_FOLDERS).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot);
  ASSERT_GE(folders.size(), 6);
  for (const QFileInfo& folder : folders) {
    SCOPED_TRACE(folder.fileName().toStdString());
    ImageStates states{};
    FaultLog log;
    const auto theme = loadTheme(folder.filePath(), states, log.reporter());
    ASSERT_TRUE(theme.has_value());
    QFile file(theme->xmlPath);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const ThemeTagTexts tags = readThemeTags(theme->xml, log.reporter());
    EXPECT_EQ(toCodePage(generateXml(theme->values, tags)), file.readAll());
    EXPECT_EQ(log.texts(), QStringList());
  }
}

TEST(GenerateXml, WritesTheCommentWithTheTagsThatAreFilled) {
  const std::tuple<const char*, ThemeTagTexts, const char*> rows[] = {
      {"none", {}, "<!--CreatedWithQuillane30187>-->\r\n"},
      {"all",
       {"a", "b", "c", "d"},
       "<!--CreatedWithQuillane30187>\r\n<Theme_name Name=\"a\"/>\r\n<Theme_creator "
       "Name=\"b\"/>\r\n"
       "<Theme_modified_by Name=\"c\"/>\r\n<Theme_created Time=\"d\"/>-->\r\n"},
      {"one, bare",
       {"", "", "<&>\"\t-->", ""},
       "<!--CreatedWithQuillane30187>\r\n<Theme_modified_by Name=\"<&>\"\t-->\"/>-->\r\n"}};
  for (const auto& [what, tags, comment] : rows)
    for (const Generation generation : {Generation::Two, Generation::ThreeG}) {
      const QString root = schemaOf(generation).root;
      const QString xml = generateXml(ThemeValues(generation), tags);
      const QString start = "<?xml version=\"1.0\"?>\r\n<" + root + ">\r\n" + comment;
      EXPECT_EQ(xml.left(start.size()), start) << what;
      EXPECT_TRUE(xml.endsWith("\"/>\r\n</" + root + '>')) << what;
    }
}

TEST(GenerateXml, WritesImageNamesLowAndColoursAsTheyStand) {
  ThemeValues values(Generation::ThreeG);
  values.setImage(gen3g::TitleImage, "/My Pictures/T\u00CFTLE.v2.GIF");
  values.setColor(gen3g::StandbyOperatorNameColor, "");
  values.setColor(gen3g::StandbyOperatorNameOutlineColor, "abCDef");
  values.setColor(gen3g::StandbyTimeColor, "12");
  const QString xml = generateXml(values, {});
  EXPECT_EQ(xml.section("\r\n", 3, 6),
            "<Title_image Source=\"t\u00EFtle.v2.gif\"/>\r\n"
            "<Standby_operatorname_text Color=\"0x\"/>\r\n"
            "<Standby_operatorname_outline Color=\"0xabCDef\"/>\r\n"
            "<Standby_time Color=\"0x12\"/>");
  EXPECT_EQ(xml.count("Source="), 1);
}

TEST(CompressXml, RemovesLineEndsBetweenTagsOnly) {
  const QString xml = generateXml(ThemeValues(Generation::Two), {"a\r\nb", "", "", "c"});
  EXPECT_EQ(compressXml(xml).count("\r\n"), 1);
  EXPECT_EQ(normaliseThemeXml(compressXml(xml)), xml);
  EXPECT_EQ(compressXml("<a>\r\n\r\n<b>\n<c> \r\n<d>\r\n<e>\r\n"),
            "<a>\r\n\r\n<b>\n<c> \r\n<d><e>\r\n");
}

}  // namespace

}  // namespace quillane

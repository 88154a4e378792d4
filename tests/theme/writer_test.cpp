// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "theme/writer.h"

#include "support/text.h"
#include "theme/load.h"

namespace quillane {

namespace {

TEST(GenerateXml, WritesTheCommentWithTheTagsThatAreFilled) {
  const std::pair<ThemeTagTexts, const char*> rows[] = {
      {{}, ">-->\r\n<Standby"},
      {{"", "", "<&>\"\t-->", "d"},
       ">\r\n<Theme_modified_by Name=\"<&>\"\t-->\"/>\r\n<Theme_created Time=\"d\"/>-->\r\n"}};
  for (const auto& [tags, comment] : rows) {
    const QString xml = generateXml(ThemeValues(Generation::Two), tags);
    EXPECT_EQ(xml.section("30187", 1).left(QString(comment).size()), comment);
  }
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

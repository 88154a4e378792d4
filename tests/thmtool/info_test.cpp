// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/tar_builder.h"
#include "thmtool/toolrun.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace quillane {
namespace {

class Info : public ToolTest {
 protected:
  void SetUp() override {
    ToolTest::SetUp();
    TarBuilder tar;
    tar.file("Caf\xE9.XML",
             "<Ericsson_theme><!--<Theme_name Name=\"Tea \\ \xABTime\xBB\"/>"
             "<Theme_created Time=\"1.2.2003 04:05\"/>-->"
             "<Background_image Source=\"back.gif\"/>"
             "<Title_image_small Source=\"gone.gif\"/>"
             "<Title_image_large Source=\"xxx.gif\"/>"
             "<Standby_time Color=\"0xabCDef\"/><Title Color=\"0x12\"/></Ericsson_theme>");
    tar.file("back.gif", "1").file("dir/BELL\a.gif", "22").file("back.gif", "333").end();
    theme_ = write(u"Blue.thm"_s, tar.bytes());
  }

  static std::string expected(const char* name) {
    QFile file(QStringLiteral(EXPECTED_FOLDER "/") + QString::fromLatin1(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    return file.readAll().toStdString();
  }

  QString theme_;
};

TEST_F(Info, Json) {
  EXPECT_EQ(runTool({u"info"_s, theme_, u"--json"_s}),
            (ToolRun{AllWell, expected("info.json"), ""}));
}

TEST_F(Info, JsonIsValid) {
  const ToolRun run = runTool({u"info"_s, u"--json"_s, theme_});
  QJsonParseError error;
  const auto json = QJsonDocument::fromJson(QByteArray::fromStdString(run.out), &error).object();
  EXPECT_EQ(error.error, QJsonParseError::NoError) << run.out;
  EXPECT_EQ(json[u"tags"_s][u"Theme_name"_s].toString(), u"Tea \\ «Time»"_s);
}

TEST_F(Info, Text) {
  EXPECT_EQ(runTool({u"info"_s, theme_}), (ToolRun{AllWell, expected("info.txt"), ""}));
}

TEST_F(Info, KeepsAnEmpty3GColour) {
  const ToolRun run = runTool({u"info"_s, u"--json"_s, theme3G("<Title Color=\"0xFF0000\"/>")});
  const auto json = QJsonDocument::fromJson(QByteArray::fromStdString(run.out)).object();
  EXPECT_EQ(json[u"generation"_s].toString(), u"3G"_s);
  EXPECT_EQ(json[u"colours"_s][u"Title"_s].toString(), u"FF0000"_s);
  EXPECT_TRUE(json[u"colours"_s][u"Background"_s].isString());
  EXPECT_EQ(json[u"colours"_s][u"Background"_s].toString(), QString());
  EXPECT_EQ(json[u"colours"_s].toObject().size(), 49);
  EXPECT_EQ(json[u"images"_s].toObject().size(), 9);
}

TEST_F(Info, FaultsOfTheTextAreReportedOnce) {
  const QString theme = pack(u"open"_s, "<Theme_created");
  const ToolRun run = runTool({u"info"_s, u"--json"_s, theme});
  EXPECT_EQ(run.status, AllWell);
  EXPECT_EQ(run.err.find("thmtool info: \"" + theme.toStdString() + "\": "), 0U) << run.err;
  EXPECT_EQ(std::count(run.err.begin(), run.err.end(), '\n'), 1) << run.err;
}

TEST_F(Info, UnreadableThemeIsAnErrorObject) {
  const QString missing = path(u"x/Green.thm"_s);
  EXPECT_EQ(
      runTool({u"info"_s, u"--json"_s, missing}),
      (ToolRun{NotDone,
               "{\n"
               "  \"file\": \"Green.thm\",\n"
               "  \"error\": {\n"
               "    \"code\": 7,\n"
               "    \"title\": \"UnTAR operation error 7\",\n"
               "    \"text\": \"File \\\"Green.thm\\\" not found or no read permission.\\r\\n\\r\\n"
               "Press F5 to refresh themes list.\"\n"
               "  }\n"
               "}\n",
               ""}));
}

TEST_F(Info, ThemeWithoutXmlIsAnErrorObject) {
  const QString theme = write(u"Bare.thm"_s, TarBuilder().file("a.gif", "x").end().bytes());
  EXPECT_EQ(runTool({u"info"_s, u"--json"_s, theme}),
            (ToolRun{NotDone,
                     "{\n"
                     "  \"file\": \"Bare.thm\",\n"
                     "  \"error\": {\n"
                     "    \"code\": 0,\n"
                     "    \"title\": \"Error in theme file \\\"Bare.thm\\\"\",\n"
                     "    \"text\": \"This theme does not contain an XML file.\"\n"
                     "  }\n"
                     "}\n",
                     ""}));
}

}  // namespace
}  // namespace quillane

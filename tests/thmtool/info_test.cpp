// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/tarbuilder.h"
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
    theme_ = write("Blue.thm", tar.bytes());
  }

  QString theme_;
};

TEST_F(Info, IsTextOrJson) {
  EXPECT_EQ(runTool({"info", theme_}), (ToolRun{AllWell, expected("info.txt"), ""}));
  EXPECT_EQ(runTool({"info", theme_, "--json"}), (ToolRun{AllWell, expected("info.json"), ""}));
}

TEST_F(Info, KeepsAnEmpty3GColour) {
  const ToolRun run = runTool({"info", "--json", theme3G("<Title Color=\"0xFF0000\"/>")});
  const auto json = QJsonDocument::fromJson(QByteArray::fromStdString(run.out)).object();
  EXPECT_EQ(json["generation"], "3G");
  EXPECT_EQ(json["colours"]["Title"], "FF0000");
  EXPECT_EQ(json["colours"]["Background"], "");
  EXPECT_EQ(json["colours"].toObject().size(), 49);
  EXPECT_EQ(json["images"].toObject().size(), 9);
}

TEST_F(Info, FaultsOfTheTextAreReportedOnce) {
  const QString theme = pack("open", "<Theme_created");
  const ToolRun run = runTool({"info", "--json", theme});
  EXPECT_EQ(run.status, AllWell);
  EXPECT_EQ(run.err.find("thmtool info: \"" + theme.toStdString() + "\": "), 0U) << run.err;
  EXPECT_EQ(std::count(run.err.begin(), run.err.end(), '\n'), 1) << run.err;
}

TEST_F(Info, UnreadableThemeIsAnErrorObject) {
  const QString bare = write("Bare.thm", TarBuilder().file("a.gif", "x").end().bytes());
  const std::pair<QString, const char*> rows[] = {
      {path("x/Green.thm"),
       "{\n  \"file\": \"Green.thm\",\n  \"error\": {\n    \"code\": 7,\n"
       "    \"title\": \"UnTAR operation error 7\",\n"
       "    \"text\": \"File \\\"Green.thm\\\" not found or no read permission.\\r\\n\\r\\n"
       "Press F5 to refresh themes list.\"\n  }\n}\n"},
      {bare,
       "{\n  \"file\": \"Bare.thm\",\n  \"error\": {\n    \"code\": 0,\n"
       "    \"title\": \"Error in theme file \\\"Bare.thm\\\"\",\n"
       "    \"text\": \"This theme does not contain an XML file.\"\n  }\n}\n"}};
  for (const auto& [theme, object] : rows)
    EXPECT_EQ(runTool({"info", "--json", theme}), (ToolRun{NotDone, object, ""}));
}

}  // namespace

}  // namespace quillane

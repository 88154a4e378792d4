// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "thmtool/toolrun.h"
#include "thmtool/verbs.h"

#include <QProcess>

#include <fstream>

namespace quillane {

namespace {

/// Words with "|" between them, the first of which is a verb, and what is wrong with them.
constexpr const char* kWrongUses[][2] = {
    {"xml", "\"THEME\" is needed."},
    {"info|x.thm|y.thm", "\"y.thm\" is too much."},
    {"pack|x.thm", "\"OUT.thm FILE...\" is needed."},
    {"new|2", "\"2|3g OUT.thm\" is needed."},
    {"new|3|x.thm", "\"3\" is no generation, which is 2 or 3g."},
    {"new|2|x.thm|--set|Sound=FF0000", "Generation 2 has no colour \"Sound\"."},
    {"new|3G|x.thm|--image|Title_image_small=x.gif", "3G has no image \"Title_image_small\"."},
    {"new|2|x.thm|--set|Title", "\"Title\" of --set has no \"=\" behind its element."},
    {"new|2|x.thm|--set|Title=FF000",
     "\"FF000\" of --set is no colour, which is six hexadecimal digits."},
    {"edit|x.thm|y.thm|--tag|Theme_size=1", "There is no authoring tag \"Theme_size\"."},
    {"info|--jsn|x.thm", "Unknown option 'jsn'."},
    {"render|x.thm|--out|a|--sheet|b.png", "--out and --sheet exclude each other."},
    {"render|x.thm|--sheet=", "--sheet needs a path."},
    {"render|x.thm|--gprs|on", "\"on\" of --gprs is no whole number."},
    {"render|x.thm|--border|wide", "\"wide\" of --border is none of none, single and default."},
    {"render|x.thm|--now|2003-02-30 10:00",
     "\"2003-02-30 10:00\" of --now is no time like \"2003-05-17 14:05\"."},
    {"render|x.thm|--seed|-1", "\"-1\" is no seed, which is a whole number from 0 to 4294967295."},
    {"render|x.thm|--scale|99999999999999999999",
     "\"99999999999999999999\" is no scale, which is a whole number from 1 to 16."},
    {"thumbnail|x.thm|x.png|0", "\"0\" is no size, which is a whole number from 1 to 4096."}};

TEST(Usage, TellsWhatIsWrong) {
  for (const auto& [use, complaint] : kWrongUses) {
    const QStringList words = QString(use).split('|');
    const std::string verb = words.first().toStdString();
    EXPECT_EQ(runTool(words), (ToolRun{WrongUsage, "",
                                       "thmtool " + verb + ": " + complaint + " \"thmtool " + verb +
                                           " --help\" tells more.\n"}));
  }
  EXPECT_EQ(runTool(QStringList()),
            (ToolRun{WrongUsage, "",
                     "thmtool: A verb is needed. \"thmtool --help\" lists the verbs.\n"}));
  EXPECT_EQ(
      runTool({"paint", "x.thm"}),
      (ToolRun{WrongUsage, "",
               "thmtool: There is no verb \"paint\". \"thmtool --help\" lists the verbs.\n"}));
}

TEST(Usage, ShowsVersionAndHelp) {
  EXPECT_EQ(runTool({"--version"}), (ToolRun{AllWell, "thmtool 3.0.187\n", ""}));
  EXPECT_EQ(runTool({"--help"}), (ToolRun{AllWell, expected("help.txt"), ""}));
  const ToolRun help{AllWell, expected("help pack.txt"), ""};
  EXPECT_EQ(runTool({"pack", "--help"}), help);
  EXPECT_EQ(runTool({"pack", "--nonsense", "--help", "x"}), help);
}

TEST(Usage, HelpAndManualKnowEveryVerbAndOption) {
  QFile page(MANUAL_PAGE);
  ASSERT_TRUE(page.open(QIODevice::ReadOnly));
  const QString manual = QString::fromUtf8(page.readAll()).remove(u'\\');
  for (const Verb* verb : verbs()) {
    const ToolRun help = runTool({verb->name, "--help"});
    const QString text = QString::fromStdString(help.out);
    EXPECT_EQ(help, (ToolRun{AllWell, help.out, ""}));
    EXPECT_TRUE(text.startsWith(QString("Usage: thmtool ") + verb->name + ' ' + verb->words))
        << help.out;
    EXPECT_TRUE(manual.contains(QString(".B thmtool ") + verb->name + '\n')) << help.out;
    for (const OptionRow& option : verb->options) {
      EXPECT_TRUE(text.contains(QString("\n  --") + option.name + ' ')) << option.name.data();
      EXPECT_TRUE(manual.contains(QString("--") + option.name)) << option.name.data();
    }
  }
}

TEST(Usage, OutputThatDoesNotArriveIsNotSuccess) {
  std::ofstream out("/dev/full");
  std::ostringstream err;
  EXPECT_EQ(runTool({"--version"}, out, err), NotDone);
  EXPECT_EQ(err.str(), "thmtool: The output could not be written; is there room where it goes?\n");
}

/// Runs the program itself with nothing in its environment but a platform that there is not.
ToolRun runBinary(const QStringList& arguments) {
  QProcess process;
  QProcessEnvironment environment;
  environment.insert("QT_QPA_PLATFORM", "nonexistent");
  process.setProcessEnvironment(environment);
  process.start(THMTOOL_BINARY, arguments);
  EXPECT_TRUE(process.waitForFinished());
  EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
  return {process.exitCode(), process.readAllStandardOutput().toStdString(),
          process.readAllStandardError().toStdString()};
}

TEST_F(ToolTest, BinaryNeedsNoDisplayAndNoLocale) {
  const QString theme = theme2("<Title Color=\"0x112233\"/>");
  const QString foreign = path("Émeraude – 翠.thm");
  ASSERT_TRUE(QFile::copy(theme, foreign));
  EXPECT_EQ(runBinary({"info", foreign}), runTool({"info", foreign}));
  EXPECT_EQ(runBinary({"render", foreign, "--sheet", path("ß.png")}), kQuiet);
  EXPECT_FALSE(image("ß.png").isNull());
}

}  // namespace

}  // namespace quillane

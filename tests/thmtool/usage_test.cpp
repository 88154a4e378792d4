// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "thmtool/toolrun.h"
#include "thmtool/verbs.h"

#include <gmock/gmock.h>

namespace quillane {

namespace {

struct WrongUse {
  const char* name;
  const char* words;  ///< "|" between them.
  const char* complaint;
};

constexpr WrongUse kWrongUses[] = {
    {"NoVerb", "", "thmtool: A verb is needed. \"thmtool --help\" lists the verbs.\n"},
    {"UnknownVerb", "paint|x.thm",
     "thmtool: There is no verb \"paint\". \"thmtool --help\" lists the verbs.\n"},
    {"VerbOfLater", "check|x.thm",
     "thmtool: There is no verb \"check\". \"thmtool --help\" lists the verbs.\n"},
    {"NoTheme", "xml", "thmtool xml: \"THEME\" is needed. \"thmtool xml --help\" tells more.\n"},
    {"ThemeTooMany", "info|x.thm|y.thm",
     "thmtool info: \"y.thm\" is too much. \"thmtool info --help\" tells more.\n"},
    {"NothingToPack", "pack|x.thm",
     "thmtool pack: \"OUT.thm FILE...\" is needed. \"thmtool pack --help\" tells more.\n"},
    {"UnknownOption", "info|--jsn|x.thm",
     "thmtool info: Unknown option 'jsn'. \"thmtool info --help\" tells more.\n"},
    {"NoValue", "render|x.thm|--out",
     "thmtool render: Missing value after '--out'. \"thmtool render --help\" tells more.\n"},
    {"ValueOfSwitch", "render|x.thm|--ir=1",
     "thmtool render: Unexpected value after '--ir'. \"thmtool render --help\" tells more.\n"},
    {"TwoTargets", "render|x.thm|--out|a|--sheet|b.png",
     "thmtool render: --out and --sheet exclude each other. \"thmtool render --help\" tells "
     "more.\n"},
    {"SignalNoNumber", "render|x.thm|--signal|full",
     "thmtool render: \"full\" of --signal is no whole number. \"thmtool render --help\" tells "
     "more.\n"},
    {"BatteryFraction", "render|x.thm|--battery|2.5",
     "thmtool render: \"2.5\" of --battery is no whole number. \"thmtool render --help\" tells "
     "more.\n"},
    {"Gprs", "render|x.thm|--gprs|on",
     "thmtool render: \"on\" of --gprs is no whole number. \"thmtool render --help\" tells "
     "more.\n"},
    {"Border", "render|x.thm|--border|wide",
     "thmtool render: \"wide\" of --border is none of none, single and default. \"thmtool render "
     "--help\" tells more.\n"},
    {"NoSuchDay", "render|x.thm|--now|2003-02-30 10:00",
     "thmtool render: \"2003-02-30 10:00\" of --now is no time like \"2003-05-17 14:05\". "
     "\"thmtool render --help\" tells more.\n"},
    {"SeedNegative", "render|x.thm|--seed|-1",
     "thmtool render: \"-1\" is no seed, which is a whole number from 0 to 4294967295. \"thmtool "
     "render --help\" tells more.\n"},
    {"ScaleTooLarge", "render|x.thm|--scale|99999999999999999999",
     "thmtool render: \"99999999999999999999\" is no scale, which is a whole number from 1 to 16. "
     "\"thmtool render --help\" tells more.\n"},
    {"ThumbnailOfNothing", "thumbnail|x.thm|x.png|0",
     "thmtool thumbnail: \"0\" is no size, which is a whole number from 1 to 4096. \"thmtool "
     "thumbnail --help\" tells more.\n"},
};

TEST(Usage, TellsWhatIsWrong) {
  for (const WrongUse& use : kWrongUses) {
    SCOPED_TRACE(use.name);
    const QStringList words = QString(use.words).split(u'|', Qt::SkipEmptyParts);
    EXPECT_EQ(runTool(words), (ToolRun{WrongUsage, "", use.complaint}));
  }
}

TEST(Usage, ShowsVersion) {
  EXPECT_EQ(runTool({"--version"}), (ToolRun{AllWell, "thmtool 3.0.187\n", ""}));
}

TEST(Usage, HelpsWithTheTool) {
  EXPECT_EQ(runTool({"--help"}),
            (ToolRun{AllWell,
                     "Usage: thmtool VERB ...\n"
                     "\n"
                     "Works with themes of early colour phones, without a window.\n"
                     "\n"
                     "Verbs:\n"
                     "  render     paint the screens of a theme as PNG files\n"
                     "  info       tell what a theme holds\n"
                     "  xml        print the XML of a theme, one tag a line\n"
                     "  unpack     extract the files of a theme into a folder\n"
                     "  pack       pack files into a new theme\n"
                     "  thumbnail  paint the standby screen in a square of SIZE pixels\n"
                     "\n"
                     "Options:\n"
                     "  --help     show this text; behind a verb, tell about the verb\n"
                     "  --version  show the version\n"
                     "\n"
                     "The exit status is 0 when all went well, 1 when a theme could not be read or "
                     "something\nelse not be done, 2 for wrong usage.\n",
                     ""}));
}

TEST(Usage, HelpsWithAVerb) {
  const ToolRun help{AllWell,
                     "Usage: thmtool pack OUT.thm FILE... [options]\n"
                     "\n"
                     "Pack files into a new theme.\n"
                     "\n"
                     "Options:\n"
                     "  --index  put a generated index.txt in front of the files\n"
                     "  --help   show this text\n",
                     ""};
  EXPECT_EQ(runTool({"pack", "--help"}), help);
  EXPECT_EQ(runTool({"pack", "--nonsense", "--help", "x"}), help);
}

TEST(Usage, EveryVerbHelps) {
  for (const Verb* verb : verbs()) {
    const ToolRun help = runTool({verb->name, "--help"});
    const std::string usage =
        "Usage: thmtool " + QString(verb->name + u' ' + verb->words).toStdString();
    EXPECT_THAT(help.out, testing::StartsWith(usage));
    EXPECT_EQ(help.status, AllWell);
    EXPECT_EQ(help.err, "");
    for (const OptionRow& option : verb->options)
      EXPECT_THAT(help.out,
                  testing::HasSubstr("\n  --" + QString(option.name).toStdString() + ' '));
  }
}

TEST(Usage, ManualKnowsEveryVerbAndOption) {
  QFile page(MANUAL_PAGE);
  ASSERT_TRUE(page.open(QIODevice::ReadOnly));
  const QString manual = QString::fromUtf8(page.readAll()).remove(u'\\');
  for (const Verb* verb : verbs()) {
    EXPECT_TRUE(manual.contains(".B thmtool " + verb->name + u'\n')) << verb->name.data();
    for (const OptionRow& option : verb->options)
      EXPECT_TRUE(manual.contains("--" + option.name)) << option.name.data();
  }
}

/// Takes nothing: every write to it fails.
class FullDisk : public std::streambuf {
 protected:
  int overflow(int) override { return traits_type::eof(); }
};

TEST(Usage, OutputThatDoesNotArriveIsNotSuccess) {
  FullDisk disk;
  std::ostream out(&disk);
  std::ostringstream err;
  EXPECT_EQ(runTool({"--version"}, out, err), NotDone);
  EXPECT_EQ(err.str(), "thmtool: The output could not be written; is there room where it goes?\n");
}

}  // namespace

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "thmtool/toolrun.h"

#include <QProcess>

namespace quillane {
namespace {

class Binary : public ToolTest {
 protected:
  /// Runs the program itself with nothing in its environment but a platform that there is not.
  static ToolRun runBinary(const QStringList& arguments) {
    QProcess process;
    QProcessEnvironment environment;
    environment.insert(u"QT_QPA_PLATFORM"_s, u"nonexistent"_s);
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(THMTOOL_BINARY), arguments);
    EXPECT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    return {process.exitCode(), process.readAllStandardOutput().toStdString(),
            process.readAllStandardError().toStdString()};
  }
};

TEST_F(Binary, NeedsNoDisplayAndNoLocale) {
  const QString theme = theme2("<Title Color=\"0x112233\"/>");
  const QString foreign = path(u"Émeraude – 翠.thm"_s);
  ASSERT_TRUE(QFile::copy(theme, foreign));
  EXPECT_EQ(runBinary({u"info"_s, foreign}), runTool({u"info"_s, foreign}));
  EXPECT_EQ(runBinary({u"render"_s, foreign, u"--sheet"_s, path(u"ß.png"_s)}), kQuiet);
  EXPECT_FALSE(image(u"ß.png"_s).isNull());
}

TEST_F(Binary, EndsWithTheStatus) {
  EXPECT_EQ(runBinary({u"xml"_s, path(u"x"_s)}), runTool({u"xml"_s, path(u"x"_s)}));
  EXPECT_EQ(runBinary({u"nonsense"_s}), runTool({u"nonsense"_s}));
}

}  // namespace
}  // namespace quillane

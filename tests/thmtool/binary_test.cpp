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
    environment.insert("QT_QPA_PLATFORM", "nonexistent");
    process.setProcessEnvironment(environment);
    process.start(THMTOOL_BINARY, arguments);
    EXPECT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    return {process.exitCode(), process.readAllStandardOutput().toStdString(),
            process.readAllStandardError().toStdString()};
  }
};

TEST_F(Binary, NeedsNoDisplayAndNoLocale) {
  const QString theme = theme2("<Title Color=\"0x112233\"/>");
  const QString foreign = path("Émeraude – 翠.thm");
  ASSERT_TRUE(QFile::copy(theme, foreign));
  EXPECT_EQ(runBinary({"info", foreign}), runTool({"info", foreign}));
  EXPECT_EQ(runBinary({"render", foreign, "--sheet", path("ß.png")}), kQuiet);
  EXPECT_FALSE(image("ß.png").isNull());
}

TEST_F(Binary, EndsWithTheStatus) {
  EXPECT_EQ(runBinary({"xml", path("x")}), runTool({"xml", path("x")}));
  EXPECT_EQ(runBinary({"nonsense"}), runTool({"nonsense"}));
}

}  // namespace

}  // namespace quillane

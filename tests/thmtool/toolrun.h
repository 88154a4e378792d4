// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/tempfolder.h"
#include "thmtool/tool.h"

#include <QImage>
#include <QStringList>

#include <sstream>
#include <string>

namespace quillane {

/// How a run of the tool ended and what it wrote.
struct ToolRun {
  int status;
  std::string out;
  std::string err;

  bool operator==(const ToolRun&) const = default;
};

inline void PrintTo(const ToolRun& run, std::ostream* stream) {
  *stream << "status " << run.status << ", out \"" << run.out << "\", err \"" << run.err << '"';
}

inline ToolRun runTool(const QStringList& arguments) {
  std::ostringstream out;
  std::ostringstream err;
  const int status = runTool(arguments, out, err);
  return {status, out.str(), err.str()};
}

/// What a file of the folder "expected" holds.
inline std::string expected(const char* name) {
  QFile file(QString(EXPECTED_FOLDER "/") + name);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
  return file.readAll().toStdString();
}

/// A run without a word.
inline const ToolRun kQuiet{AllWell, "", ""};

/// Runs of the tool on small themes in a folder of their own.
class ToolTest : public TempFolder {
 protected:
  /// A theme of generation 2 with an XML of these elements, and the path of its file.
  QString theme2(const QByteArray& elements) const {
    return pack("theme2", "<Ericsson_theme>" + elements + "</Ericsson_theme>");
  }
  QString theme3G(const QByteArray& elements) const {
    return pack("theme3g", "<Sony_Ericsson_theme>" + elements + "</Sony_Ericsson_theme>");
  }
  /// The files that `write` made earlier below the name of a theme go into it as well.
  QString pack(const QString& name, const QByteArray& xml) const {
    write(name + "/theme.xml", xml);
    QStringList words{"pack", path(name + ".thm")};
    for (const QString& file : listOf(name))
      words += path(name + u'/' + file);
    EXPECT_EQ(runTool(words), kQuiet);
    return path(name + ".thm");
  }

  QImage image(const QString& name) const { return QImage(path(name), "PNG"); }
};

}  // namespace quillane

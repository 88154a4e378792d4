// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "theme/codepage.h"
#include "thmtool/openedtheme.h"
#include "thmtool/reporter.h"
#include "thmtool/verbs.h"

#include <QCommandLineParser>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

int runXml(const QCommandLineParser& given, const Streams& streams) {
  const QString path = given.positionalArguments().constFirst();
  streams.write(toCodePage(openTheme(path, reporterTo(streams, path)).theme.xml));
  return AllWell;
}

}  // namespace

const Verb kXmlVerb{"xml"_L1, "THEME"_L1, 1, 1, "print the XML of a theme, one tag a line"_L1,
                    {},       &runXml};

}  // namespace quillane

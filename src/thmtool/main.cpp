// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "thmtool/encoding_platform.h"
#include "thmtool/tool.h"

#include <QCoreApplication>

#include <iostream>

int main(int argc, char** argv) {
  quillane::chooseEncoding();
  const QCoreApplication application(argc, argv);
  return quillane::runTool(QCoreApplication::arguments().mid(1), std::cout, std::cerr);
}

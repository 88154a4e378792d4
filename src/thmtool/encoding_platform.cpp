// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "thmtool/encoding_platform.h"

#include <QByteArray>

#include <clocale>
#include <cstring>
#include <langinfo.h>

namespace quillane {

void chooseEncoding() {
  std::setlocale(LC_ALL, "");
  if (std::strcmp(nl_langinfo(CODESET), "UTF-8") != 0) qputenv("LC_ALL", "C.UTF-8");
}

}  // namespace quillane

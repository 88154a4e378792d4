// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "theme/codepage.h"

#include <algorithm>
#include <iterator>

namespace quillane {

namespace {

constexpr char16_t kUpperControls[] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
static_assert(std::size(kUpperControls) == 0x20);

constexpr bool isUpperControl(char16_t code) {
  return code >= 0x80 && code < 0xA0;
}

char16_t decoded(char byte) {
  const auto code = static_cast<unsigned char>(byte);
  return isUpperControl(code) ? kUpperControls[code - 0x80] : code;
}

char encoded(char16_t code) {
  if (code < 0x100 && !isUpperControl(code)) return static_cast<char>(code);
  const auto* const found = std::find(std::begin(kUpperControls), std::end(kUpperControls), code);
  if (found == std::end(kUpperControls)) return '?';
  return static_cast<char>(0x80 + std::distance(std::begin(kUpperControls), found));
}

}  // namespace

QString fromCodePage(QByteArrayView bytes) {
  QString text(bytes.size(), Qt::Uninitialized);
  std::transform(bytes.begin(), bytes.end(), text.begin(), decoded);
  return text;
}

QByteArray toCodePage(QStringView text) {
  QByteArray bytes;
  bytes.reserve(text.size());
  for (qsizetype at = 0; at < text.size(); ++at) {
    bytes.append(encoded(text[at].unicode()));
    const bool pair =
        text[at].isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate();
    if (pair) ++at;
  }
  return bytes;
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/ini.h"

#include "theme/codepage.h"

#include <QFile>

#include <algorithm>
#include <iterator>
#include <optional>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kLongestValue = 254;

bool isBlank(QChar character) {
  return character == u' ' || character == u'\t' || character == u'\r';
}

/// Without the blanks at both ends; other characters that count as space belong to the text.
QString stripped(const QString& text) {
  const auto begin = std::find_if_not(text.begin(), text.end(), isBlank);
  const auto end =
      std::find_if_not(text.rbegin(), std::make_reverse_iterator(begin), isBlank).base();
  return text.mid(begin - text.begin(), end - begin);
}

/// Without one pair of quotes, and then without blanks at the begin.
QString unquoted(const QString& value) {
  const bool quoted = value.size() >= 2 && value.front() == value.back() &&
                      (value.front() == u'"' || value.front() == u'\'');
  if (!quoted) return value;
  const auto begin = std::find_if_not(value.begin() + 1, value.end() - 1, isBlank);
  return value.mid(begin - value.begin()).chopped(1);
}

bool isSection(const QString& line, const QString& section) {
  return line.mid(1, line.indexOf(u']') - 1).trimmed().compare(section, Qt::CaseInsensitive) == 0;
}

std::optional<QString> findValue(const QString& text, const QString& section, const QString& key) {
  bool inside = false;
  for (const QString& raw : text.split(u'\n')) {
    const QString line = stripped(raw);
    if (line.startsWith(u'[')) {
      if (inside) return std::nullopt;
      inside = isSection(line, section);
      continue;
    }
    const qsizetype equals = line.indexOf(u'=');
    if (!inside || equals < 0 || line.startsWith(u';')) continue;
    if (stripped(line.left(equals)).compare(key, Qt::CaseInsensitive) == 0)
      return unquoted(stripped(line.mid(equals + 1)));
  }
  return std::nullopt;
}

}  // namespace

QString iniValue(const QString& text, const QString& section, const QString& key,
                 const QString& standard) {
  return findValue(text, section, key).value_or(standard).left(kLongestValue);
}

QString ReadIni(const QString& section, const QString& key, const QString& standard,
                const QString& file) {
  QFile ini(file);
  QString text;
  if (!file.isEmpty() && ini.open(QIODevice::ReadOnly)) text = fromCodePage(ini.readAll());
  return iniValue(text, section, key, standard);
}

}  // namespace quillane

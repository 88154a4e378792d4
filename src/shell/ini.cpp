// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/ini.h"

#include "theme/codepage.h"

#include <QFile>

#include <optional>

namespace quillane {

namespace {

constexpr qsizetype kLongestValue = 254;

QString unquoted(const QString& value) {
  const bool quoted = value.size() >= 2 && value.front() == value.back() &&
                      (value.front() == QLatin1Char('"') || value.front() == QLatin1Char('\''));
  return quoted ? value.mid(1, value.size() - 2) : value;
}

bool isSection(const QString& line, const QString& section) {
  return line.mid(1, line.indexOf(QLatin1Char(']')) - 1)
             .trimmed()
             .compare(section, Qt::CaseInsensitive) == 0;
}

std::optional<QString> findValue(const QString& text, const QString& section, const QString& key) {
  bool inside = false;
  for (const QString& raw : text.split(QLatin1Char('\n'))) {
    const QString line = raw.trimmed();
    if (line.startsWith(QLatin1Char('['))) {
      if (inside) return std::nullopt;
      inside = isSection(line, section);
      continue;
    }
    const qsizetype equals = line.indexOf(QLatin1Char('='));
    if (!inside || equals < 0 || line.startsWith(QLatin1Char(';'))) continue;
    if (line.left(equals).trimmed().compare(key, Qt::CaseInsensitive) == 0)
      return unquoted(line.mid(equals + 1).trimmed());
  }
  return std::nullopt;
}

}  // namespace

QString ReadIni(const QString& section, const QString& key, const QString& standard,
                const QString& file) {
  QFile ini(file);
  QString value = standard;
  if (!file.isEmpty() && ini.open(QIODevice::ReadOnly))
    value = findValue(fromCodePage(ini.readAll()), section, key).value_or(standard);
  return value.left(kLongestValue);
}

}  // namespace quillane

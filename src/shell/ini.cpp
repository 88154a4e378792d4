// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/ini.h"

#include "shell/files.h"
#include "theme/codepage.h"
#include "theme/files.h"

#include <QDir>
#include <QFile>
#include <QStringList>
#include <QStringTokenizer>

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

bool isEntry(const QString& line, const QString& key) {
  const qsizetype equals = line.indexOf(u'=');
  return equals >= 0 && !line.startsWith(u';') &&
         stripped(line.left(equals)).compare(key, Qt::CaseInsensitive) == 0;
}

std::optional<QString> findValue(const QString& text, const QString& section, const QString& key) {
  bool inside = false;
  for (const QStringView raw : qTokenize(text, u'\n')) {
    const QString line = stripped(raw.toString());
    if (line.startsWith(u'[')) {
      if (inside) return std::nullopt;
      inside = isSection(line, section);
      continue;
    }
    if (inside && isEntry(line, key)) return unquoted(stripped(line.mid(line.indexOf(u'=') + 1)));
  }
  return std::nullopt;
}

/// The lines with an entry in place of the one of its name, or behind the last entry of its
/// section.
QStringList withEntry(QStringList lines, const QString& section, const QString& key,
                      const QString& entry) {
  bool inside = false;
  qsizetype place = lines.size();
  for (qsizetype i = 0; i < lines.size(); ++i) {
    const QString line = stripped(lines[i]);
    if (line.startsWith(u'[')) {
      if (inside) break;
      inside = isSection(line, section);
    }
    if (!inside) continue;
    if (isEntry(line, key)) {
      lines[i] = entry;
      return lines;
    }
    if (!line.isEmpty()) place = i + 1;
  }
  if (!inside && place == lines.size()) lines << u"[%1]\r"_s.arg(section);
  lines.insert(inside ? place : lines.size(), entry);
  return lines;
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

QString withIniValue(const QString& text, const QString& section, const QString& key,
                     const QString& value) {
  QStringList lines;
  if (!text.isEmpty()) lines = text.split(u'\n');
  // What stands behind the last line end is a line only when it is more than nothing.
  if (!lines.isEmpty() && lines.last().isEmpty())
    lines.removeLast();
  else if (!lines.isEmpty())
    lines.last() += u'\r';
  return withEntry(lines, section, key, key + u'=' + value + u'\r').join(u'\n') + u'\n';
}

void WriteIni(const QString& section, const QString& key, const QString& value,
              const QString& file) {
  QString text;
  if (FileExists(file)) text = fromCodePage(readFile(file));
  const QString folder = SplitPath(file, PathPart::Folder);
  if (!QDir().mkpath(folder)) throw noPermission("make"_L1, folder);
  saveFile(file, toCodePage(withIniValue(text, section, key, value)));
}

}  // namespace quillane

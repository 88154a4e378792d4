// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview/dateformat.h"

#include <QStringList>

#include <algorithm>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

/// A piece of a pattern: a token in lower case, or text that stands for itself.
struct Piece {
  QString text;
  bool isToken;
};

/// Longer tokens stand before those that they begin with.
const QStringList& tokens() {
  static const QStringList all =
      u"am/pm dddd ddd dd d mmmm mmm mm m yyyy yy ww w hh h nn n ss s"_s.split(u' ');
  return all;
}

QString tokenAt(const QString& pattern, qsizetype at) {
  for (const QString& token : tokens())
    if (QStringView(pattern).mid(at).startsWith(token, Qt::CaseInsensitive)) return token;
  return {};
}

QList<Piece> piecesOf(const QString& pattern) {
  QList<Piece> pieces;
  for (qsizetype at = 0; at < pattern.size();) {
    const QChar c = pattern[at];
    if (c == u'"') {
      qsizetype end = pattern.indexOf(c, at + 1);
      if (end < 0) end = pattern.size();
      pieces.append({pattern.mid(at + 1, end - at - 1), false});
      at = end + 1;
    } else if (c == u'\\') {
      pieces.append({pattern.mid(at + 1, 1), false});
      at += 2;
    } else if (const QString token = tokenAt(pattern, at); !token.isEmpty()) {
      // The marker keeps the pattern's letter case.
      pieces.append({token.size() == 5 ? pattern.mid(at, 5) : token, true});
      at += token.size();
    } else {
      pieces.append({QString(c), false});
      ++at;
    }
  }
  return pieces;
}

bool isMarker(const Piece& piece) {
  return piece.isToken && piece.text.size() == 5;
}

QString padded(int number, qsizetype places) {
  return u"%1"_s.arg(number, static_cast<int>(places), 10, QLatin1Char('0'));
}

QString shortName(QString name) {
  if (name.endsWith(u'.')) name.chop(1);
  return name;
}

/// Days from the first day of the week, 0 to 6.
int dayInWeek(const QDate& date, Qt::DayOfWeek firstDay) {
  return (date.dayOfWeek() - static_cast<int>(firstDay) + 7) % 7;
}

int weekOfYear(const QDate& date, Qt::DayOfWeek firstDay) {
  return (date.dayOfYear() - 1 + dayInWeek(QDate(date.year(), 1, 1), firstDay)) / 7 + 1;
}

QString dayText(const QDate& date, qsizetype places, const QLocale& locale) {
  if (places == 4) return locale.dayName(date.dayOfWeek(), QLocale::LongFormat);
  if (places == 3) return shortName(locale.dayName(date.dayOfWeek(), QLocale::ShortFormat));
  return padded(date.day(), places);
}

QString monthText(const QDate& date, qsizetype places, const QLocale& locale) {
  if (places == 4) return locale.monthName(date.month(), QLocale::LongFormat);
  if (places == 3) return shortName(locale.monthName(date.month(), QLocale::ShortFormat));
  return padded(date.month(), places);
}

int hourOn12HourClock(int hour) {
  return hour % 12 == 0 ? 12 : hour % 12;
}

}  // namespace

QString formatDate(const QDateTime& time, const QString& pattern, const QLocale& locale,
                   Qt::DayOfWeek firstDay) {
  const QDate date = time.date();
  const QTime clock = time.time();
  const QList<Piece> pieces = piecesOf(pattern);
  const bool halfDays = std::any_of(pieces.begin(), pieces.end(), isMarker);

  QString out;
  QChar before;  // Letter of the token before.
  for (const Piece& piece : pieces) {
    if (!piece.isToken) {
      out += piece.text;
      continue;
    }
    const qsizetype places = piece.text.size();
    QChar letter = isMarker(piece) ? u't' : piece.text[0];
    if (letter == u'm' && places <= 2 && before == u'h') letter = u'n';
    switch (letter.unicode()) {
      case 'd':
        out += dayText(date, places, locale);
        break;
      case 'm':
        out += monthText(date, places, locale);
        break;
      case 'y':
        out += padded(places == 2 ? date.year() % 100 : date.year(), places);
        break;
      case 'w':
        out += QString::number(places == 2 ? weekOfYear(date, firstDay)
                                           : dayInWeek(date, firstDay) + 1);
        break;
      case 'h':
        out += padded(halfDays ? hourOn12HourClock(clock.hour()) : clock.hour(), places);
        break;
      case 'n':
        out += padded(clock.minute(), places);
        break;
      case 's':
        out += padded(clock.second(), places);
        break;
      case 't':
        out += clock.hour() < 12 ? piece.text.left(2) : piece.text.mid(3);
        break;
    }
    before = letter;
  }
  return out;
}

}  // namespace quillane

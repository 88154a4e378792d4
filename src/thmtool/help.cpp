// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "thmtool/help.h"

#include "thmtool/verbs.h"

#include <algorithm>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

/// Rows of a word and its explanation, aligned under a heading.
class HelpTable {
 public:
  void add(const QString& word, const QString& help) {
    rows_.append({word, help});
    width_ = std::max(width_, word.size());
  }
  QString text(QLatin1String heading) const {
    QString text = u"\n%1:\n"_s.arg(heading);
    for (const auto& [word, help] : rows_)
      text += u"  %1  %2\n"_s.arg(word.leftJustified(width_), help);
    return text;
  }

 private:
  QList<std::pair<QString, QString>> rows_;
  qsizetype width_ = 0;
};

QString wordOf(const OptionRow& option) {
  const QString name = u"--"_s + option.name;
  return option.value.isEmpty() ? name : name + u' ' + option.value;
}

}  // namespace

QString helpOfTool() {
  HelpTable table;
  for (const Verb* verb : verbs())
    table.add(verb->name, verb->summary);
  HelpTable options;
  options.add(u"--help"_s, u"show this text; behind a verb, tell about the verb"_s);
  options.add(u"--version"_s, u"show the version"_s);
  return u"Usage: thmtool VERB ...\n\n"
         "Works with themes of early colour phones, without a window.\n"_s +
         table.text("Verbs"_L1) + options.text("Options"_L1) +
         u"\nThe exit status is 0 when all went well, 1 when a theme could not be read, something\n"
         "else not be done, or check has findings, 2 for wrong usage.\n"_s;
}

QString helpOf(const Verb& verb) {
  HelpTable options;
  for (const OptionRow& row : verb.options)
    options.add(wordOf(row), row.help);
  options.add(u"--help"_s, u"show this text"_s);
  const QString summary = QString(verb.summary);
  return u"Usage: thmtool %1 %2%3\n\n%4%5.\n"_s.arg(
             verb.name, verb.words, verb.options.empty() ? QString() : u" [options]"_s,
             summary.left(1).toUpper(), summary.mid(1)) +
         verb.more + options.text("Options"_L1);
}

}  // namespace quillane

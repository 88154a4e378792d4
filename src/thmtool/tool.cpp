// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "thmtool/tool.h"

#include "theme/fault.h"
#include "theme/version.h"
#include "thmtool/help.h"
#include "thmtool/openedtheme.h"
#include "thmtool/verbs.h"

#include <QCommandLineParser>

#include <algorithm>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

const Verb* findVerb(const QString& name) {
  const auto table = verbs();
  const auto row = std::find_if(table.begin(), table.end(),
                                [&name](const Verb* verb) { return verb->name == name; });
  return row == table.end() ? nullptr : *row;
}

void addOptions(QCommandLineParser& parser, const Verb& verb) {
  parser.addOption(QCommandLineOption(u"help"_s));
  for (const OptionRow& row : verb.options)
    parser.addOption(QCommandLineOption(row.name, QString(), row.value));
}

void checkUsage(const QCommandLineParser& given, bool understood, const Verb& verb) {
  if (!understood) throw UsageError(given.errorText());
  const auto words = given.positionalArguments().size();
  if (words < verb.fewestWords) throw UsageError(u"\"%1\" is needed."_s.arg(verb.words));
  if (verb.mostWords != Verb::kAnyNumber && words > verb.mostWords)
    throw UsageError(u"\"%1\" is too much."_s.arg(given.positionalArguments().at(verb.mostWords)));
}

int parseAndRun(const Verb& verb, const QStringList& arguments, const Streams& streams) {
  QCommandLineParser given;
  addOptions(given, verb);
  const bool understood = given.parse(arguments);
  if (given.isSet(u"help"_s)) {
    streams.print(helpOf(verb));
    return AllWell;
  }
  checkUsage(given, understood, verb);
  return verb.run(given, streams);
}

int runVerb(const Verb& verb, const QStringList& arguments, const Streams& streams) {
  try {
    return parseAndRun(verb, arguments, streams);
  } catch (const UsageError& error) {
    streams.complain(u"%1 \"thmtool %2 --help\" tells more."_s.arg(error.text(), verb.name));
    return WrongUsage;
  } catch (const UnreadableTheme& error) {
    streams.complain(error.complaint());
  } catch (const Fault& fault) {
    streams.complain(fault.description());
  }
  return NotDone;
}

QString versionLine() {
  return u"thmtool %1\n"_s.arg(QLatin1String(kVersion));
}

int runWithoutVerb(const QString& word, const Streams& streams) {
  if (word == "--help"_L1)
    streams.print(helpOfTool());
  else if (word == "--version"_L1)
    streams.print(versionLine());
  else {
    streams.complain(
        (word.isEmpty() ? u"A verb is needed."_s : u"There is no verb \"%1\"."_s.arg(word)) +
        u" \"thmtool --help\" lists the verbs."_s);
    return WrongUsage;
  }
  return AllWell;
}

}  // namespace

QString printable(QString text) {
  constexpr QChar::Category kSteering[] = {QChar::Other_Control, QChar::Other_Format,
                                           QChar::Separator_Line, QChar::Separator_Paragraph};
  for (QChar& sign : text)
    if (std::find(std::begin(kSteering), std::end(kSteering), sign.category()) !=
        std::end(kSteering))
      sign = u'?';
  return text;
}

void Streams::complain(const QString& text) const {
  const QByteArray line = (printable(speaker_ + u": "_s + text) + u'\n').toLocal8Bit();
  err_.write(line.constData(), line.size());
}

int runTool(const QStringList& arguments, std::ostream& out, std::ostream& err) {
  const QString word = arguments.value(0);
  const Verb* const verb = findVerb(word);
  const Streams streams(out, err, verb == nullptr ? u"thmtool"_s : u"thmtool "_s + verb->name);
  const int status =
      verb == nullptr ? runWithoutVerb(word, streams) : runVerb(*verb, arguments, streams);
  if (streams.flush()) return status;
  streams.complain(u"The output could not be written; is there room where it goes?"_s);
  return NotDone;
}

}  // namespace quillane

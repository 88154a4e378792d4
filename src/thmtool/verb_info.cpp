// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "theme/parsexml.h"
#include "theme/tags.h"
#include "thmtool/folders.h"
#include "thmtool/jsonwriter.h"
#include "thmtool/openedtheme.h"
#include "thmtool/reporter.h"
#include "thmtool/verbs.h"

#include <QCommandLineParser>
#include <QFileInfo>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

struct ImageInfo {
  QString element;
  SlotState state;
  QString source;
};

/// What the verb tells, gathered for both forms of output.
struct ThemeInfo {
  QString file;
  QString generation;
  QString xml;
  QList<ArchiveMember> members;
  QList<std::pair<QString, QString>> colours;
  QList<ImageInfo> images;
  ThemeTagTexts tags;
  QStringList warnings;
};

void addImages(ThemeInfo& info, const OpenedTheme& opened) {
  const FaultReporter toldAtLoad = [](const Fault&) {};
  for (const ImageElement& image : opened.theme.values.schema().images) {
    const QString source = ParseXML(image.element, opened.theme.xml, toldAtLoad);
    info.images.append(
        {image.element, opened.states.at(static_cast<std::size_t>(image.state)), source});
  }
}

ThemeInfo gather(const OpenedTheme& opened, const FaultReporter& report) {
  const ThemeValues& values = opened.theme.values;
  ThemeInfo info;
  info.file = opened.fileName;
  info.generation = opened.generation() == Generation::Two ? u"2"_s : u"3G"_s;
  info.xml = QFileInfo(opened.theme.xmlPath).fileName();
  info.members = opened.members;
  int index = 0;
  for (const ColorElement& color : values.schema().colors)
    info.colours.append({color.element, values.color(index++)});
  addImages(info, opened);
  info.tags = readThemeTags(opened.theme.xml, report);
  info.warnings = opened.theme.warnings;
  return info;
}

void addMembers(JsonWriter& json, const QList<ArchiveMember>& members) {
  json.openArray(u"members"_s);
  for (const ArchiveMember& member : members) {
    json.openObject(JsonWriter::Layout::OneLine);
    json.add(u"name"_s, member.name);
    json.add(u"size"_s, member.size);
    json.close();
  }
  json.close();
}

void addValues(JsonWriter& json, const ThemeInfo& info) {
  json.openObject(u"colours"_s);
  for (const auto& [element, color] : info.colours)
    json.add(element, color);
  json.close();
  json.openObject(u"images"_s);
  for (const ImageInfo& image : info.images) {
    json.openObject(image.element, JsonWriter::Layout::OneLine);
    json.add(u"state"_s, static_cast<qint64>(image.state));
    json.add(u"source"_s, image.source);
    json.close();
  }
  json.close();
}

QByteArray asJson(const ThemeInfo& info) {
  JsonWriter json;
  json.openObject();
  json.add(u"file"_s, info.file);
  json.add(u"generation"_s, info.generation);
  json.add(u"xml"_s, info.xml);
  addMembers(json, info.members);
  addValues(json, info);
  json.openObject(u"tags"_s);
  for (std::size_t tag = 0; tag < kThemeTags.size(); ++tag)
    json.add(kThemeTags.at(tag).element, info.tags.at(tag));
  json.close();
  json.openArray(u"warnings"_s);
  for (const QString& warning : info.warnings)
    json.add(warning);
  json.close();
  json.close();
  return json.bytes();
}

QByteArray asJson(const QString& file, const UnreadableTheme& error) {
  JsonWriter json;
  json.openObject();
  json.add(u"file"_s, file);
  json.openObject(u"error"_s);
  json.add(u"code"_s, static_cast<qint64>(error.error().code));
  json.add(u"title"_s, error.error().title);
  json.add(u"text"_s, error.error().text);
  json.close();
  json.close();
  return json.bytes();
}

/// A line of two columns, the second one aligned.
QString row(const QString& name, const QString& text) {
  constexpr int kWidth = 38;
  const QString left = text.isEmpty() ? name : name.leftJustified(kWidth) + u' ';
  return printable(u"  "_s + left + text) + u'\n';
}

QString asText(const ImageInfo& image) {
  switch (image.state) {
    case SlotState::Found:
      return image.source;
    case SlotState::Missing:
      return image.source + u" (missing)"_s;
    case SlotState::None:
      break;
  }
  return u"none"_s;
}

QString asText(const ThemeInfo& info) {
  QString text = u"File: %1\nGeneration: %2\nXML: %3\n\nMembers:\n"_s.arg(
      printable(info.file), info.generation, printable(info.xml));
  for (const ArchiveMember& member : info.members)
    text += row(member.name, QString::number(member.size));
  text += u"\nColours:\n"_s;
  for (const auto& [element, color] : info.colours)
    text += row(element, color);
  text += u"\nImages:\n"_s;
  for (const ImageInfo& image : info.images)
    text += row(image.element, asText(image));
  text += u"\nTags:\n"_s;
  for (std::size_t tag = 0; tag < kThemeTags.size(); ++tag)
    text += row(kThemeTags.at(tag).element, info.tags.at(tag));
  if (!info.warnings.isEmpty()) text += u"\nWarnings:\n"_s;
  for (const QString& warning : info.warnings)
    text += row(warning, {});
  return text;
}

int runInfo(const QCommandLineParser& given, const Streams& streams) {
  const QString path = given.positionalArguments().constFirst();
  const FaultReporter report = reporterTo(streams, path);
  if (!given.isSet(u"json"_s)) {
    streams.print(asText(gather(openTheme(path, report), report)));
    return AllWell;
  }
  try {
    streams.write(asJson(gather(openTheme(path, report), report)));
  } catch (const UnreadableTheme& error) {
    streams.write(asJson(QFileInfo(pathOf(path)).fileName(), error));
    return NotDone;
  }
  return AllWell;
}

constexpr OptionRow kOptions[] = {
    {"json"_L1, ""_L1, "tell it as one JSON object, in UTF-8"_L1},
};

}  // namespace

const Verb kInfoVerb{"info"_L1, "THEME"_L1, 1, 1, "tell what a theme holds"_L1, kOptions, &runInfo};

}  // namespace quillane

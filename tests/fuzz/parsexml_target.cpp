// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/targets.h"
#include "theme/codepage.h"
#include "theme/elements.h"
#include "theme/fault.h"
#include "theme/load.h"
#include "theme/parsexml.h"
#include "theme/tags.h"

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

/// A text this long, repeated up to the other length, shows work that grows with the square.
constexpr qsizetype kShort = 128;
constexpr qsizetype kLong = 1 << 15;

QStringList elementNames(const ThemeSchema& schema) {
  QStringList names;
  for (const ColorElement& color : schema.colors)
    names += color.element;
  for (const ImageElement& image : schema.images)
    names += image.element;
  for (const ThemeTag& tag : kThemeTags)
    names += tag.element;
  return names;
}

bool isNamed(QString piece, const QString& name) {
  while (piece.endsWith(u' '))
    piece.chop(1);
  return piece == name;
}

/// The rules of a lookup, word for word and without a thought of time.
QString plainLookup(const QString& name, const QString& text) {
  for (qsizetype at = text.indexOf(name); at >= 0; at = text.indexOf(name, at + 1)) {
    const qsizetype stop = text.indexOf("/>"_L1, at);
    if (stop < 0) return {};
    const QString tag = text.mid(at, stop - at);
    if (!isNamed(tag.split(tag.contains(u'\t') ? u'\t' : u' ').first(), name)) continue;
    const qsizetype open = text.indexOf(u'"', at);
    const qsizetype close = open < 0 ? -1 : text.indexOf(u'"', open + 1);
    if (close < 0) return {};
    return text.mid(open + 1, close - open - 1).mid(tag.contains("Color="_L1) ? 2 : 0);
  }
  return {};
}

QString withoutLineEnds(QString text) {
  return text.remove(u'\r').remove(u'\n');
}

}  // namespace

void parsexmlTarget(QByteArrayView bytes) {
  const QString raw = fromCodePage(bytes);
  expect(toCodePage(raw) == bytes, "the code page loses no byte");
  const QString xml = normaliseThemeXml(raw);
  expect(withoutLineEnds(xml) == withoutLineEnds(raw), "repairing touches line ends alone");
  expect(xml.size() <= 5 * raw.size(), "repairing does not swell the text");
  expect(generationOf(xml) == generationOf(raw), "repairing keeps the generation");

  const CheckedXml checked = checkXml(raw);
  expect(checked.sources.size() == schemaOf(generationOf(xml)).images.size(), "all slots checked");
  expectBrief(checked.findings);

  QString longText = raw;
  if (!raw.isEmpty() && raw.size() <= kShort) longText = raw.repeated(kLong / raw.size());
  for (const QString& name : elementNames(schemaOf(generationOf(xml)))) {
    qsizetype faults = 0;
    const FaultReporter count = [&faults](const Fault& fault) {
      expect(fault.number() == FaultNumber::BadCall, "a fault of a lookup");
      ++faults;
    };
    expect(ParseXML(name, xml, count) == plainLookup(name, xml), "a lookup goes by its rules");
    expect(faults <= xml.count(name), "at most a fault for each match");
    ParseXML(name, longText, [](const Fault&) {});
  }
  checkXml(longText);
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/targets.h"

#include "shell/palette.h"
#include "theme/archive_reader.h"
#include "theme/codepage.h"
#include "theme/elements.h"
#include "theme/fault.h"
#include "theme/load.h"
#include "theme/parsexml.h"

#include <QBuffer>

#include <algorithm>

namespace quillane {

namespace {

/// Checks that a member begins before its bytes come and that these stay within its size.
class CheckingSink final : public MemberSink {
 public:
  int begin(const ArchiveMember& member, qint64) override {
    size_ = member.size;
    return Success;
  }
  int write(qint64 offset, QByteArrayView bytes) override {
    holds = holds && offset >= 0 && offset + bytes.size() <= size_;
    return Success;
  }
  int end() override {
    size_ = -1;
    return Success;
  }

  bool holds = true;

 private:
  qint64 size_ = -1;
};

bool isBareName(const QString& name) {
  return !name.isEmpty() && name != u"." && name != u".." && !name.contains(u'/') &&
         !name.contains(u'\\') && !name.contains(QChar()) && name.toUtf8().size() <= 255;
}

bool isReaderCode(int code) {
  constexpr int codes[] = {Success,   UnexpectedEnd, Damaged,
                           NoArchive, BadChecksum,   WrongCompression};
  return std::find(std::begin(codes), std::end(codes), code) != std::end(codes);
}

}  // namespace

bool archiveHolds(QByteArrayView bytes) {
  QBuffer device;
  device.setData(bytes.toByteArray());
  device.open(QIODevice::ReadOnly);
  CheckingSink sink;
  const ArchiveResult result = readArchive(device, sink);
  qint64 total = 0;
  const bool membersHold = std::all_of(result.members.begin(), result.members.end(),
                                       [&total](const ArchiveMember& member) {
                                         total += member.size;
                                         return isBareName(member.name) && member.size >= 0;
                                       });
  return sink.holds && membersHold && total <= ArchiveLimits::kTotal &&
         result.members.size() <= ArchiveLimits::kHeaders && isReaderCode(result.code);
}

bool parseXmlHolds(QByteArrayView bytes) {
  const QString xml = normaliseThemeXml(fromCodePage(bytes));
  const auto colors = schemaOf(generationOf(xml)).colors;
  return std::all_of(colors.begin(), colors.end(), [&xml](const ColorElement& color) {
    return xml.contains(ParseXML(QString(color.element), xml, [](const Fault&) {}));
  });
}

bool paletteHolds(QByteArrayView bytes) {
  try {
    const Palette palette = readPalette(bytes);
    return !palette.empty() && palette.size() <= kMostPaletteColors &&
           std::all_of(palette.begin(), palette.end(),
                       [](ColorValue color) { return color <= 0xFFFFFF; });
  } catch (const Fault& fault) {
    return fault.number() == FaultNumber::InvalidPaletteFile ||
           fault.number() == FaultNumber::InvalidColorCount ||
           fault.number() == FaultNumber::InvalidPalette;
  }
}

}  // namespace quillane

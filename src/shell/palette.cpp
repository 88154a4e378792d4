// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/palette.h"

#include "theme/fault.h"
#include "theme/files.h"

#include <QList>
#include <QtEndian>

#include <algorithm>
#include <charconv>
#include <optional>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kLargestFile = qint64{1024} * 1024;
constexpr qint64 kEntryBytes = 4;
constexpr quint16 kRiffVersion = 0x0300;

Fault invalidFile(int line = __builtin_LINE()) {
  return Fault(FaultNumber::InvalidPaletteFile, u"Invalid palette file."_s, line);
}

Fault invalidCount(int line = __builtin_LINE()) {
  return Fault(FaultNumber::InvalidColorCount, u"Invalid color count in palette file."_s, line);
}

Fault invalidPalette(int line = __builtin_LINE()) {
  return Fault(FaultNumber::InvalidPalette, u"Invalid palette."_s, line);
}

bool isCount(std::size_t count) {
  return count >= 1 && count <= kMostPaletteColors;
}

constexpr ColorValue colorOfParts(unsigned red, unsigned green, unsigned blue) {
  return red | green << 8 | blue << 16;
}

/// The lines of a text, whatever ends them, without blank ones.
class Lines {
 public:
  explicit Lines(QByteArrayView text) : rest_(text) {}

  /// The next line with single blanks between its words; empty behind the last one.
  QByteArray next() {
    while (!rest_.isEmpty()) {
      const auto* const end = std::find_if(rest_.begin(), rest_.end(),
                                           [](char byte) { return byte == '\r' || byte == '\n'; });
      const QByteArrayView line = rest_.first(end - rest_.begin());
      rest_ = rest_.sliced(std::min(line.size() + 1, rest_.size()));
      QByteArray words = line.toByteArray().simplified();
      if (!words.isEmpty()) return words;
    }
    return {};
  }

 private:
  QByteArrayView rest_;
};

std::optional<unsigned> numberOf(const QByteArray& word) {
  unsigned number = 0;
  const char* const last = word.constData() + word.size();
  const auto [end, error] = std::from_chars(word.constData(), last, number);
  if (error != std::errc() || end != last) return {};
  return number;
}

ColorValue colorOfWords(const QList<QByteArray>& words) {
  if (words.size() < 3) throw invalidPalette();
  unsigned parts[3];
  for (qsizetype i = 0; i < 3; ++i) {
    const std::optional<unsigned> part = numberOf(words[i]);
    if (!part || *part > 255) throw invalidPalette();
    parts[i] = *part;
  }
  return colorOfParts(parts[0], parts[1], parts[2]);
}

Palette readText(Lines lines) {
  if (lines.next() != "0100") throw invalidFile();
  const std::optional<unsigned> count = numberOf(lines.next());
  if (!count || !isCount(*count)) throw invalidCount();
  Palette palette;
  for (QByteArray line = lines.next(); !line.isEmpty(); line = lines.next()) {
    if (palette.size() == *count) throw invalidCount();
    const QList<QByteArray> words = line.split(' ');
    if (words.size() > 3) throw invalidPalette();
    palette.push_back(colorOfWords(words));
  }
  if (palette.size() != *count) throw invalidCount();
  return palette;
}

Palette readGimp(Lines lines) {
  Palette palette;
  for (QByteArray line = lines.next(); !line.isEmpty(); line = lines.next()) {
    const bool isHead =
        palette.empty() && (line.startsWith("Name:") || line.startsWith("Columns:"));
    if (isHead || line.startsWith('#')) continue;
    if (palette.size() == kMostPaletteColors) throw invalidCount();
    palette.push_back(colorOfWords(line.split(' ')));
  }
  if (palette.empty()) throw invalidCount();
  return palette;
}

template <typename Number>
Number numberAt(QByteArrayView bytes, qint64 at) {
  return qFromLittleEndian<Number>(bytes.data() + at);
}

/// `data` reaches to the end of the file, `size` is the chunk's own.
Palette readRiffData(QByteArrayView data, qint64 size) {
  if (std::min<qint64>(data.size(), size) < kEntryBytes) throw invalidFile();
  if (numberAt<quint16>(data, 0) != kRiffVersion) throw invalidFile();
  const quint16 count = numberAt<quint16>(data, 2);
  const qint64 needed = kEntryBytes + count * kEntryBytes;
  if (!isCount(count) || needed > size) throw invalidCount();
  if (needed > data.size()) throw invalidPalette();
  Palette palette;
  for (qint64 at = kEntryBytes; at < needed; at += kEntryBytes)
    palette.push_back(numberAt<quint32>(data, at) & 0xFFFFFF);
  return palette;
}

Palette readRiff(QByteArrayView bytes) {
  if (bytes.size() < 12 || bytes.sliced(8, 4) != "PAL ") throw invalidFile();
  qint64 at = 12;
  while (bytes.size() - at >= 8) {
    const qint64 size = numberAt<quint32>(bytes, at + 4);
    if (bytes.sliced(at, 4) == "data") return readRiffData(bytes.sliced(at + 8), size);
    at += 8 + size + size % 2;
  }
  throw invalidFile();
}

constexpr ColorValue kHues[] = {
    colorOfParts(255, 0, 0),   colorOfParts(255, 64, 0),  colorOfParts(255, 128, 0),
    colorOfParts(255, 191, 0), colorOfParts(255, 255, 0), colorOfParts(160, 255, 0),
    colorOfParts(0, 255, 0),   colorOfParts(0, 255, 128), colorOfParts(0, 255, 255),
    colorOfParts(0, 191, 255), colorOfParts(0, 128, 255), colorOfParts(0, 0, 255),
    colorOfParts(128, 0, 255), colorOfParts(255, 0, 255), colorOfParts(255, 0, 128)};

/// A row of the built-in palette in hundredths: how much grey goes into each hue, and how much
/// white, or with a minus black, into what comes of that.
struct Tone {
  int grey;
  int light;
};

constexpr Tone kTones[] = {{0, 85},  {0, 68},  {0, 51},   {0, 34},  {0, 17},  {0, 0},
                           {0, -20}, {0, -38}, {0, -56},  {0, -74}, {55, 68}, {55, 46},
                           {55, 23}, {55, 0},  {55, -28}, {55, -56}};

unsigned mixed(unsigned part, unsigned other, int share) {
  const unsigned weight = static_cast<unsigned>(share);
  return (part * (100 - weight) + other * weight + 50) / 100;
}

ColorValue toned(ColorValue hue, const Tone& tone) {
  const auto part = [&tone](std::int16_t pure) {
    const unsigned grey = mixed(static_cast<unsigned>(pure), 128, tone.grey);
    return tone.light < 0 ? mixed(grey, 0, -tone.light) : mixed(grey, 255, tone.light);
  };
  return colorOfParts(part(RedOf(hue)), part(GreenOf(hue)), part(BlueOf(hue)));
}

Palette makeBuiltIn() {
  Palette palette;
  unsigned grey = 255;
  for (const Tone& tone : kTones) {
    palette.push_back(colorOfParts(grey, grey, grey));
    grey -= 17;
    for (const ColorValue hue : kHues)
      palette.push_back(toned(hue, tone));
  }
  return palette;
}

}  // namespace

Palette readPalette(QByteArrayView bytes) {
  if (bytes.startsWith("RIFF")) return readRiff(bytes);
  Lines lines(bytes);
  const QByteArray first = lines.next();
  if (first == "JASC-PAL") return readText(lines);
  if (first == "GIMP Palette") return readGimp(lines);
  throw invalidFile();
}

Palette loadPalette(const QString& path) {
  if (fileSize(path) > kLargestFile) throw invalidFile();
  return readPalette(readFile(path));
}

void savePalette(const QString& path, const Palette& palette) {
  QByteArray text = "JASC-PAL\r\n0100\r\n" + QByteArray::number(palette.size()) + "\r\n";
  for (const ColorValue color : palette)
    text += QByteArray::number(RedOf(color)) + ' ' + QByteArray::number(GreenOf(color)) + ' ' +
            QByteArray::number(BlueOf(color)) + "\r\n";
  saveFile(path, text);
}

const Palette& builtInPalette() {
  static const Palette palette = makeBuiltIn();
  return palette;
}

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/palette.h"

#include "support/tempfolder.h"

#include <set>

namespace quillane {

namespace {

class PaletteFiles : public TempFolder {};

QByteArray hex(const char* digits) {
  return QByteArray::fromHex(digits);
}

/// A RIFF palette with a data chunk of the given bytes behind the given other chunks.
QByteArray riff(const QByteArray& data, const QByteArray& chunksBefore = {}) {
  const auto size = static_cast<char>(data.size());
  return "RIFF" + hex("00000000") + "PAL " + chunksBefore + "data" + size + hex("000000") + data;
}

/// The colours of a palette as RRGGBB, or the text of the fault.
QString readingOf(QByteArrayView bytes) {
  QStringList colors;
  try {
    for (const ColorValue color : readPalette(bytes))
      colors << ColorToHtml(QString::number(color));
  } catch (const Fault& fault) {
    return fault.description();
  }
  return colors.join(' ');
}

const char* const kNoFile = "Invalid palette file.";
const char* const kBadCount = "Invalid color count in palette file.";
const char* const kBadEntries = "Invalid palette.";

TEST_F(PaletteFiles, AreReadByTheirContent) {
  const QByteArray jasc = "JASC-PAL\n0100\n";
  const QByteArray two = hex("00030200") + hex("ff800000"
                                               "0102fe07");
  const QByteArray odd = "note" + hex("03000000") + "abc" + '\0';
  const QByteArray huge = "note" + hex("ffffffff") + "abc";
  const std::tuple<const char*, QByteArray, const char*> cases[] = {
      {"text", "JASC-PAL\r\n0100\r\n2\r\n255 128 0\r\n1 2 254\r\n", "FF8000 0102FE"},
      {"text, its last line open", jasc + "1\n1 2 3", "010203"},
      {"other line ends and blanks", "JASC-PAL\r0100\r 1 \r\r\t1   2\t3 \r", "010203"},
      {"another version", "JASC-PAL\n0200\n1\n1 2 3\n", kNoFile},
      {"the head alone", "JASC-PAL\n", kNoFile},
      {"no count", jasc, kBadCount},
      {"a count that is none", jasc + "two\n1 2 3\n1 2 3\n", kBadCount},
      {"a count of none", jasc + "0\n", kBadCount},
      {"a count over 32 bits", jasc + "4294967297\n1 2 3\n", kBadCount},
      {"256 colours", jasc + "256\n" + QByteArray("0 0 0\n").repeated(256),
       "000000 000000 000000 *"},
      {"257 colours", jasc + "257\n" + QByteArray("0 0 0\n").repeated(257), kBadCount},
      {"less than counted", jasc + "2\n1 2 3\n", kBadCount},
      {"more than counted", jasc + "1\n1 2 3\n4 5 6\n", kBadCount},
      {"a part too large", jasc + "1\n1 256 3\n", kBadEntries},
      {"a negative part", jasc + "1\n1 -2 3\n", kBadEntries},
      {"a part that is no number", jasc + "1\n1 2x 3\n", kBadEntries},
      {"two parts", jasc + "1\n1 2\n", kBadEntries},
      {"four parts", jasc + "1\n1 2 3 4\n", kBadEntries},
      {"a NUL", jasc + "1\n1 2 3" + '\0' + "\n", kBadEntries},

      {"RIFF", riff(two), "FF8000 0102FE"},
      {"RIFF behind an odd chunk", riff(two, odd), "FF8000 0102FE"},
      {"RIFF with bytes to spare", riff(two + "spare"), "FF8000 0102FE"},
      {"RIFF of another kind", riff(two).replace("PAL ", "WAVE"), kNoFile},
      {"RIFF cut in its head", riff(two).left(11), kNoFile},
      {"RIFF without data", riff(two).replace("data", "dada"), kNoFile},
      {"RIFF with a chunk beyond the end", riff(two, huge), kNoFile},
      {"RIFF of another version", riff(hex("00040100") + hex("01020300")), kNoFile},
      {"RIFF data without a count", riff(hex("0003")), kNoFile},
      {"RIFF of more than its chunk", riff(hex("00030300") + hex("0102030004050600")), kBadCount},
      {"RIFF of 257", riff(hex("00030101") + QByteArray(4 * 257, '\0')), kBadCount},
      {"RIFF cut in its entries", riff(two).chopped(1), kBadEntries},

      {"GIMP", "GIMP Palette\nName: x\nColumns: 2\n#\n255 128   0\tOrange  red\n1 2 254\n",
       "FF8000 0102FE"},
      {"GIMP of none", "GIMP Palette\nName: x\n# 1 2 3\n", kBadCount},
      {"GIMP with a bad entry", "GIMP Palette\n1 2 3\n1 2\n", kBadEntries},
      {"GIMP with a name behind a colour", "GIMP Palette\n1 2 3\nName: x\n", kBadEntries},

      {"empty", "", kNoFile},
      {"a picture", "GIF89a", kNoFile},
      {"a head in other letters", "jasc-pal\n0100\n1\n1 2 3\n", kNoFile}};
  for (const auto& [name, bytes, expected] : cases) {
    const QString reading = readingOf(bytes);
    const QString wanted = expected;
    if (wanted.endsWith('*'))
      EXPECT_TRUE(reading.startsWith(wanted.chopped(1))) << name;
    else
      EXPECT_EQ(reading, wanted) << name;
  }
}

TEST_F(PaletteFiles, HaveAtMostAMebibyte) {
  QByteArray text = "JASC-PAL\n0100\n1\n1 2 3\n";
  text += QByteArray((1 << 20) - text.size(), '\n');
  EXPECT_EQ(loadPalette(write("a.pal", text)), Palette{0x030201});
  EXPECT_EQ(faultNumberOf([&] { loadPalette(write("a.pal", text + '\n')); }),
            static_cast<int>(FaultNumber::InvalidPaletteFile));
  EXPECT_EQ(faultNumberOf([&] { loadPalette(path("missing.pal")); }),
            static_cast<int>(FaultNumber::FileNotFound));
}

TEST_F(PaletteFiles, AreWrittenAsText) {
  savePalette(path("a.pal"), {0x0080FF, 0xFE0201});
  EXPECT_EQ(read("a.pal"), "JASC-PAL\r\n0100\r\n2\r\n255 128 0\r\n1 2 254\r\n");
}

TEST_F(PaletteFiles, BuiltInOneHasEveryColourOnce) {
  const std::set<ColorValue> colors(builtInPalette().begin(), builtInPalette().end());
  EXPECT_EQ(colors.size(), 256u);
  for (const ColorValue wanted :
       {0x000000u, 0xFFFFFFu, 0x0000FFu, 0x00FF00u, 0xFF0000u, 0x00FFFFu, 0xFFFF00u, 0xFF00FFu})
    EXPECT_TRUE(colors.count(wanted)) << wanted;
}

TEST_F(PaletteFiles, ShippedOnesCanBeRead) {
  const QDir folder(PALETTES_FOLDER);
  const QStringList names = folder.entryList(QDir::Files);
  EXPECT_GE(names.size(), 3);
  for (const QString& name : names) {
    const Palette palette = loadPalette(folder.filePath(name));
    EXPECT_EQ(std::set<ColorValue>(palette.begin(), palette.end()).size(), palette.size())
        << name.toStdString();
  }
}

}  // namespace

}  // namespace quillane

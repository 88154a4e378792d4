// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/tarbuilder.h"
#include "support/tinygif.h"

#include <QString>

#include <vector>

namespace quillane {

/// A theme that means harm.
struct HostileTheme {
  const char* name;
  QByteArray bytes;
  const char* error = "";  ///< How the words begin with which it is refused; it is shown for none.
  bool isPainted = true;   ///< Its pictures can be painted.
};

/// A theme for each way to harm that we know of; small files all, whatever they pretend to hold.
inline std::vector<HostileTheme> hostileThemes() {
  constexpr int kMiB = 1 << 20;
  constexpr auto kDamaged = "Some files in ";
  constexpr auto kNoXml = "This theme does not contain an XML file.";
  const auto number = [](quint64 value, int width) {  // as BMP, ICO and GIF have it
    QByteArray bytes;
    for (int at = 0; at < width; ++at)
      bytes += static_cast<char>(value >> 8 * at & 255);
    return bytes;
  };
  const auto tar = [] { return TarBuilder(); };
  const auto xml = [](const QByteArray& text) { return TarBuilder().file("a.xml", text); };
  const auto two = [&](const QByteArray& text) {
    return xml("<Ericsson_theme>" + text + "</Ericsson_theme>").end().bytes();
  };
  const auto threeG = [&](const QByteArray& text) {
    return xml("<Sony_Ericsson_theme>" + text + "</Sony_Ericsson_theme>").end().bytes();
  };
  const auto repeated = [](const QByteArray& text) {
    return text.repeated((kMiB - 100) / text.size());
  };
  // The same bytes for every slot, so that each screen meets them.
  const auto pictured = [&](const QByteArray& picture, bool is3G) {
    QByteArray text = is3G ? "<Sony_Ericsson_theme>" : "<Ericsson_theme>";
    for (const char* slot :
         {"Background_image", "Desktop_background_image", "Title_image_small", "Title_image_large",
          "Wallpaper_image", "Statusbar_background_image", "Softkeys_background_image",
          "Title_image", "Highlight_image", "Morelist_popup_title_image"})
      text += QByteArray("<") + slot + " Source=\"p\"/>";
    return xml(text).file("p", picture).end().bytes();
  };
  const auto sparse = [](TarBuilder& builder, const QByteArray& name, const QByteArray& size) {
    builder
        .pax(TarBuilder::paxRecord("GNU.sparse.size", size) +
             TarBuilder::paxRecord("GNU.sparse.numblocks", "1") +
             TarBuilder::paxRecord("GNU.sparse.map", "10,4"))
        .file(name, "data");
  };

  TarBuilder manyHeaders;
  for (int at = 0; at < 1001; ++at)
    manyHeaders.file("a.xml", "");
  TarBuilder paxChain;
  for (int at = 0; at < 5000; ++at)
    paxChain.pax(TarBuilder::paxRecord("comment", "x"));
  TarBuilder paxMany;
  for (int at = 0; at < 600; ++at)
    paxMany.pax(TarBuilder::paxRecord("path", "a.xml")).file("b", "<a/>");
  TarBuilder sparseMany = xml("<a/>");
  for (int at = 0; at < 64; ++at)
    sparse(sparseMany, "s" + QByteArray::number(at), "16777216");
  TarBuilder sparseXml;
  sparse(sparseXml, "a.xml", "1048577");

  const QByteArray gif = tinyGif({4, 4}, {0, 0, 4, 4}, 1);
  const auto gifOf = [&](quint32 screen, quint32 frame) {
    QByteArray bytes = gif;
    bytes.replace(6, 4, number(screen, 2) + number(screen, 2));
    bytes.replace(bytes.indexOf(',') + 5, 4, number(frame, 2) + number(frame, 2));
    return bytes;
  };
  const auto bmpOf = [&](quint32 width, quint32 height) {
    return "BM" + number(0, 8) + number(54, 4) + number(40, 4) + number(width, 4) +
           number(height, 4) + number(1, 2) + number(24, 2) + QByteArray(24, '\0');
  };
  const QByteArray icon = "\0\0\1\0\1\0" + QByteArray("\0\0\0\0\1\0\x18\0", 8);
  const QByteArray jpeg = QByteArray::fromHex(
      "ffd8ffe000104a46494600010100000100010000ffc0001108ffffffff03012200021101"
      "031101");

  return {
      {"empty", "", "The file you attempted to open"},
      {"text", "no theme", "The file you attempted to open"},
      {"gzip", QByteArray::fromHex("1f8b0800"), "Unknown compression method."},
      {"cut", xml("<a/>").cut(700).bytes(), "Unexpected end of TAR file."},
      {"checksum", xml("<a/>").header({.name = "b", .badChecksum = true}).end().bytes(),
       "Bad CRC."},
      {"headers", manyHeaders.end().bytes(), kDamaged},
      {"member of 8 GiB", xml("<a/>").header({.name = "b", .size = 077777777777}).bytes(),
       kDamaged},
      {"XML over a mebibyte", xml(QByteArray(kMiB + 1, ' ')).end().bytes(), kDamaged},
      {"sparse XML over a mebibyte", sparseXml.end().bytes(), kDamaged},
      {"sparse bomb", sparseMany.end().bytes(), kDamaged},
      {"pax chain", paxChain.file("a.xml", "<a/>").end().bytes(), kDamaged},
      {"pax headers beside members", paxMany.end().bytes()},
      {"pax header of 8 GiB",
       tar().header({.name = "p", .size = 077777777777, .type = 'x'}).padded("1").end().bytes(),
       kDamaged},
      {"long name of 8 GiB",
       xml("<a/>").header({.name = "l", .size = 077777777777, .type = 'L'}).padded("1").bytes(),
       kDamaged},
      {"link for an XML",
       tar().header({.name = "a.xml", .type = '2', .link = "/etc/passwd"}).end().bytes(), kNoXml},
      {"hard link for an XML",
       tar().header({.name = "a.xml", .type = '1', .link = "/etc/passwd"}).end().bytes(), kNoXml},
      {"device for an XML", tar().header({.name = "a.xml", .type = '3'}).end().bytes(), kNoXml},
      {"pipe for an XML", tar().header({.name = "a.xml", .type = '6'}).end().bytes(), kNoXml},
      {"folder for an XML", tar().header({.name = "a.xml/", .type = '5'}).end().bytes(), kNoXml},
      {"link, then through it", tar()
                                    .header({.name = "d", .type = '2', .link = ".."})
                                    .file("d/escaped.xml", "<a/>")
                                    .end()
                                    .bytes()},
      {"above", tar().file("../../escaped.xml", "<a/>").end().bytes()},
      {"absolute", tar().file("/tmp/escaped.xml", "<a/>").end().bytes()},
      {"backslashes", tar().file("..\\..\\escaped.xml", "<a/>").end().bytes()},
      {"nothing but points", tar().file("a/..", "<a/>").end().bytes(), kNoXml},
      {"name of 256 bytes",
       tar()
           .pax(TarBuilder::paxRecord("path", QByteArray(252, 'n') + ".xml"))
           .file("n", "<a/>")
           .end()
           .bytes(),
       kNoXml},
      {"steers a terminal",
       tar().file("\x1b]0;x\x07.xml", "<a/>").file("\x1b[2J", "x").end().bytes()},
      {"one slot as a path",
       two("<Background_image Source=\"../../../../etc/passwd\"/>"
           "<Title_image_large Source=\"..\\a.xml\"/><Title_image_small Source=\"*.xml\"/>"
           "<Desktop_background_image Source=\"/dev/zero\"/>")},
      {"the XML as a picture", two("<Background_image Source=\"a.xml\"/>")},
      {"zero bytes", two(QByteArray(1000, '\0') + "<Title Color=\"0x\0\"/>")},
      {"never closed", two("<Title Color=\"0x1\"")},
      {"unclosed names", two(repeated("<Title "))},
      {"names alone", threeG(repeated("Title_"))},
      {"quotes", threeG(repeated("<Title Color=\""))},
      {"line ends", two(repeated("\r\r\n"))},
      {"a value of a mebibyte", two("<Theme_name Name=\"" + QByteArray(kMiB - 200, 'x') + "\"/>")},
      {"GIF of 65535 pixels a side", pictured(gifOf(65535, 65535), false)},
      {"GIF frame beyond its screen", pictured(gifOf(4, 65535), true)},
      {"GIF of 4096 pixels a side", pictured(gifOf(4096, 4096), true)},
      {"BMP of 4097 pixels", pictured(bmpOf(4097, 1), true), "", false},
      {"BMP of 2^31 pixels", pictured(bmpOf(0x7FFFFFFF, 0x7FFFFFFF), true), "", false},
      {"BMP upside down", pictured(bmpOf(4096, 0x80000000), false)},
      {"icon of 2^31 pixels",
       pictured(icon + number(62, 4) + number(22, 4) + bmpOf(0x7FFFFFFF, 2).mid(14), true), "",
       false},
      {"JPEG of 65535 pixels a side", pictured(jpeg, true), "", false},
  };
}

}  // namespace quillane

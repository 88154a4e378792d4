// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/quantize.h"

#include "theme/fault.h"

#include <QHash>

#include <libimagequant.h>
#include <memory>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMostColors = 256;
constexpr int kLeastAlpha = 128;
constexpr QRgb kTransparent = qRgba(0, 0, 0, 0);

// Pinned, so that a picture gives the same bytes as long as the library stays the same.
constexpr int kSpeed = 3;
constexpr float kDithering = 1.0F;

/// The picture with every pixel opaque or not there at all.
QImage withMask(const QImage& picture) {
  QImage masked = picture.convertToFormat(QImage::Format_ARGB32);
  for (int y = 0; y < masked.height(); ++y) {
    auto* line = reinterpret_cast<QRgb*>(masked.scanLine(y));
    for (int x = 0; x < masked.width(); ++x)
      line[x] = qAlpha(line[x]) < kLeastAlpha ? kTransparent : line[x] | 0xFF000000U;
  }
  return masked;
}

QImage emptyIndexed(const QImage& like) {
  QImage indexed(like.size(), QImage::Format_Indexed8);
  if (indexed.isNull())
    throw Fault(FaultNumber::BadPicture, u"There is no memory for a picture of this size."_s);
  return indexed;
}

/// The picture over its own colours, in the order in which they appear; a null one when they are
/// too many.
QImage exactly(const QImage& masked) {
  QImage indexed = emptyIndexed(masked);
  QHash<QRgb, uchar> places;
  QList<QRgb> palette;
  for (int y = 0; y < masked.height(); ++y) {
    const auto* from = reinterpret_cast<const QRgb*>(masked.constScanLine(y));
    uchar* to = indexed.scanLine(y);
    for (int x = 0; x < masked.width(); ++x) {
      auto place = places.constFind(from[x]);
      if (place == places.constEnd()) {
        if (palette.size() == kMostColors) return {};
        place = places.insert(from[x], static_cast<uchar>(palette.size()));
        palette << from[x];
      }
      to[x] = *place;
    }
  }
  indexed.setColorTable(palette);
  return indexed;
}

void demand(bool done) {
  if (!done)
    throw Fault(FaultNumber::BadPicture,
                u"The colors of the picture could not be reduced to 256."_s);
}

struct Release {
  void operator()(liq_attr* attributes) const { liq_attr_destroy(attributes); }
  void operator()(liq_image* image) const { liq_image_destroy(image); }
  void operator()(liq_result* result) const { liq_result_destroy(result); }
};

QImage reduced(const QImage& masked) {
  const std::unique_ptr<liq_attr, Release> attributes(liq_attr_create());
  demand(attributes && liq_set_speed(attributes.get(), kSpeed) == LIQ_OK);
  const QImage rgba = masked.convertToFormat(QImage::Format_RGBA8888);
  QList<void*> rows;
  for (int y = 0; y < rgba.height(); ++y)
    rows << const_cast<uchar*>(rgba.constScanLine(y));  // The library only reads them.
  const std::unique_ptr<liq_image, Release> image(
      liq_image_create_rgba_rows(attributes.get(), rows.data(), rgba.width(), rgba.height(), 0));
  demand(image != nullptr);
  liq_result* made = nullptr;
  demand(liq_image_quantize(image.get(), attributes.get(), &made) == LIQ_OK);
  const std::unique_ptr<liq_result, Release> result(made);
  demand(liq_set_dithering_level(result.get(), kDithering) == LIQ_OK);
  QImage indexed = emptyIndexed(masked);
  QList<uchar*> lines;
  for (int y = 0; y < indexed.height(); ++y)
    lines << indexed.scanLine(y);
  demand(liq_write_remapped_image_rows(result.get(), image.get(), lines.data()) == LIQ_OK);
  const liq_palette* palette = liq_get_palette(result.get());
  QList<QRgb> colors;
  for (unsigned i = 0; i < palette->count; ++i) {
    const liq_color& color = palette->entries[i];
    colors << qRgba(color.r, color.g, color.b, color.a);
  }
  indexed.setColorTable(colors);
  return indexed;
}

}  // namespace

QImage reduceTo256(const QImage& picture) {
  const QImage masked = withMask(picture);
  QImage exact = exactly(masked);
  return exact.isNull() ? reduced(masked) : exact;
}

QString quantizerVersion() {
  const int version = liq_version();
  return u"%1.%2.%3"_s.arg(version / 10000).arg(version / 100 % 100).arg(version % 100);
}

}  // namespace quillane

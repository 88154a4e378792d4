// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "thmtool/sheet.h"

#include "preview/faces.h"
#include "preview/modapigraphics.h"
#include "preview/surface.h"

#include <algorithm>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMostColumns = 7;
constexpr int kLeastWidth = 250;  // For the heading.
constexpr int kMargin = 12;
constexpr int kGap = 10;
constexpr int kTitleHeight = 17;
constexpr int kLineHeight = 14;
constexpr int kCaptionHeight = 16;

// Colour values are 0x00BBGGRR.
constexpr ColorValue kPaper = 0xF4F2F0;
constexpr ColorValue kInk = 0x33261E;
constexpr ColorValue kFaintInk = 0x7A6A60;
constexpr ColorValue kFrame = 0x9C9088;

FontSpec titleFont() {
  return {u"Tahoma"_s, AlignLeft, true, 9, kInk};
}

FontSpec lineFont() {
  return {u"Tahoma"_s, AlignLeft, false, 8, kFaintInk};
}

FontSpec captionFont() {
  return {u"Tahoma"_s, AlignCentre, false, 8, kInk};
}

int widthOf(const QString& text, const FontSpec& font) {
  return Faces::shared().face(font.Name, font.Size, font.Bold).widthOf(text);
}

/// The text, or its beginning and an ellipsis where it is too wide.
QString fitting(const QString& whole, int width, const FontSpec& font) {
  const QString text = whole.left(width);  // No letter is narrower than a pixel.
  if (text.size() == whole.size() && widthOf(text, font) <= width) return text;
  for (qsizetype length = text.size() - 1; length > 0; --length) {
    QString begin = text.left(length).trimmed() + QChar(0x2026);
    if (widthOf(begin, font) <= width) return begin;
  }
  return {};
}

void drawLine(Surface& sheet, const QString& text, QRect place, const FontSpec& font) {
  QString shown = fitting(text.simplified(), place.width(), font);
  shown.replace(u'&', "&&"_L1);
  DrawTextRect(sheet, shown, place.x(), place.y(), place.height(), place.width(), font);
}

/// Where things are on a sheet.
class SheetLayout {
 public:
  SheetLayout(int screens, QSize screenSize) : screen_(screenSize) {
    const int rows = (screens + kMostColumns - 1) / kMostColumns;
    columns_ = (screens + rows - 1) / rows;
    top_ = kMargin + kTitleHeight + kLineHeight + kGap;
    size_ = QSize(std::max(kLeastWidth, 2 * kMargin + columns_ * (cellWidth() + kGap) - kGap),
                  top_ + rows * (cellHeight() + kGap) - kGap + kMargin);
  }

  QSize size() const { return size_; }
  QRect title() const { return {kMargin, kMargin, width(), kTitleHeight}; }
  QRect line() const { return {kMargin, kMargin + kTitleHeight, width(), kLineHeight}; }
  /// The frame of a screen, one pixel outside it.
  QRect frame(int index) const {
    return {kMargin + index % columns_ * (cellWidth() + kGap),
            top_ + index / columns_ * (cellHeight() + kGap), cellWidth(), screen_.height() + 2};
  }
  QRect caption(int index) const {
    const QRect above = frame(index);
    return {above.x(), above.y() + above.height() + 3, cellWidth(), kCaptionHeight - 3};
  }

 private:
  int width() const { return size_.width() - 2 * kMargin; }
  int cellWidth() const { return screen_.width() + 2; }
  int cellHeight() const { return screen_.height() + 2 + kCaptionHeight; }

  QSize screen_;
  int columns_;
  int top_;
  QSize size_;
};

void drawScreen(Surface& sheet, const RenderedScreen& screen, QRect frame, QRect caption) {
  DrawFilledRect(sheet, kFrame, frame.x(), frame.y(), frame.x() + frame.width(),
                 frame.y() + frame.height());
  sheet.PaintPicture(Picture(screen.image), frame.x() + 1, frame.y() + 1);
  drawLine(sheet, screen.caption, caption, captionFont());
}

}  // namespace

QImage contactSheet(const SheetHeading& heading, const std::vector<RenderedScreen>& screens) {
  const SheetLayout layout(static_cast<int>(screens.size()), screens.front().image.size());
  Surface sheet(layout.size(), kPaper);
  drawLine(sheet, heading.title, layout.title(), titleFont());
  drawLine(sheet, heading.line, layout.line(), lineFont());
  int index = 0;
  for (const RenderedScreen& screen : screens) {
    drawScreen(sheet, screen, layout.frame(index), layout.caption(index));
    ++index;
  }
  return sheet.image();
}

}  // namespace quillane

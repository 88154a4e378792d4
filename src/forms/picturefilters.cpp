// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/picturefilters.h"

#include <QStringList>

#include <algorithm>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

struct Kind {
  PictureKind kind;
  const char* caption;
  const char* ending;
};

constexpr Kind kKinds[] = {
    {PictureKind::Gif, "CompuServe Graphics Interchange", ".gif"},
    {PictureKind::Jpeg, "JPEG Files", ".jpg"},
    {PictureKind::Png, "Portable Network Graphics", ".png"},
    {PictureKind::Bmp, "Windows Bitmap", ".bmp"},
};

const Kind& rowOf(PictureKind kind) {
  return *std::find_if(std::begin(kKinds), std::end(kKinds),
                       [kind](const Kind& row) { return row.kind == kind; });
}

}  // namespace

QString pictureFilter(std::span<const PictureKind> kinds) {
  QStringList filters;
  for (const PictureKind kind : kinds)
    filters << u"%1 (*%2)|*%2"_s.arg(QLatin1String(rowOf(kind).caption), pictureEnding(kind));
  return filters.join(u'|');
}

QString pictureEnding(PictureKind kind) {
  return QLatin1String(rowOf(kind).ending);
}

}  // namespace quillane

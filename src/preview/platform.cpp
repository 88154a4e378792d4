// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview/platform.h"

#include <QFile>
#include <QFileInfo>
#include <fontconfig/fontconfig.h>

#include <memory>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

constexpr const char* kFaceFolders[] = {"/usr/share/wine/fonts/",
                                        "/usr/share/fonts/truetype/wine/"};

using Configuration = std::unique_ptr<FcConfig, void (*)(FcConfig*)>;
using Pattern = std::unique_ptr<FcPattern, void (*)(FcPattern*)>;

/// The user's font configuration, read for one question; nothing of it stays behind.
Configuration readConfiguration() {
  return {FcInitLoadConfigAndFonts(), &FcConfigDestroy};
}

QString fileOf(FcPattern* pattern) {
  FcChar8* path = nullptr;
  if (pattern == nullptr || FcPatternGetString(pattern, FC_FILE, 0, &path) != FcResultMatch)
    return {};
  return QFile::decodeName(reinterpret_cast<const char*>(path));
}

}  // namespace

QString findFaceFile(const QString& fileName) {
  for (const char* folder : kFaceFolders)
    if (QString path = QLatin1String(folder) + fileName; QFile::exists(path)) return path;

  const Configuration configuration = readConfiguration();
  const Pattern any(FcPatternCreate(), &FcPatternDestroy);
  FcObjectSet* asked = FcObjectSetBuild(FC_FILE, nullptr);
  const std::unique_ptr<FcFontSet, void (*)(FcFontSet*)> installed(
      FcFontList(configuration.get(), any.get(), asked), &FcFontSetDestroy);
  FcObjectSetDestroy(asked);
  for (int i = 0; installed != nullptr && i < installed->nfont; ++i)
    if (QString path = fileOf(installed->fonts[i]); QFileInfo(path).fileName() == fileName)
      return path;
  return {};
}

QString closestFaceFile(const QString& family, bool bold) {
  const Configuration configuration = readConfiguration();
  const Pattern wanted(FcPatternCreate(), &FcPatternDestroy);
  const QByteArray name = family.toUtf8();
  FcPatternAddString(wanted.get(), FC_FAMILY, reinterpret_cast<const FcChar8*>(name.constData()));
  FcPatternAddInteger(wanted.get(), FC_WEIGHT, bold ? FC_WEIGHT_BOLD : FC_WEIGHT_REGULAR);
  FcPatternAddBool(wanted.get(), FC_OUTLINE, FcTrue);
  FcConfigSubstitute(configuration.get(), wanted.get(), FcMatchPattern);
  FcDefaultSubstitute(wanted.get());
  FcResult result = FcResultNoMatch;
  const Pattern found(FcFontMatch(configuration.get(), wanted.get(), &result), &FcPatternDestroy);
  return fileOf(found.get());
}

QString fontconfigVersion() {
  const int version = FcGetVersion();
  return u"%1.%2.%3"_s.arg(version / 10000).arg(version / 100 % 100).arg(version % 100);
}

}  // namespace quillane

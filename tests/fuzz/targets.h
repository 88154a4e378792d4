// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "theme/check.h"

#include <QByteArrayView>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <stdexcept>

namespace quillane {

/// Each target hands bytes from strangers to a reader of the program and holds what comes out to
/// what has to be true of any bytes; it throws `std::logic_error` that names what is not.
void languageTarget(QByteArrayView bytes);  ///< As a language file, and as a settings file.
void paletteTarget(QByteArrayView bytes);   ///< As a palette.
void parsexmlTarget(QByteArrayView bytes);  ///< As the text of a theme.
void pictureTarget(QByteArrayView bytes);   ///< As a picture file.
void screensTarget(QByteArrayView bytes);   ///< As texts and colours of the painted screens.
void themeTarget(QByteArrayView bytes);     ///< As an archive, up to the loaded theme.

/// Ends a target that does not hold.
inline void expect(bool holds, const char* property) {
  if (!holds) throw std::logic_error(property);
}

/// Each finding of a check says something, however long what it tells of is.
inline void expectBrief(const QList<Finding>& findings) {
  constexpr qsizetype kLongest = 4096;
  for (const Finding& finding : findings)
    expect(!finding.text.isEmpty() && finding.text.size() <= kLongest, "a finding of some words");
}

/// Files for the readers that take a path, in memory where TMPDIR lies there.
class Scratch {
 public:
  QString path(const QString& name = {}) const { return folder_.filePath(name); }

  QString write(const QString& name, QByteArrayView bytes) const {
    QFile file(path(name));
    expect(
        file.open(QIODevice::WriteOnly) && file.write(bytes.data(), bytes.size()) == bytes.size(),
        "the scratch folder takes a file");
    return file.fileName();
  }

  QByteArray read(const QString& name) const {
    QFile file(path(name));
    expect(file.open(QIODevice::ReadOnly), "a scratch file can be read");
    return file.readAll();
  }

 private:
  QTemporaryDir folder_;
};

}  // namespace quillane

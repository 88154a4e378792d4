// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "theme/archive.h"
#include "theme/fault.h"
#include "theme/values.h"

#include <QHash>
#include <QList>
#include <QSet>
#include <QString>

#include <cstdint>
#include <vector>

namespace quillane {

/// How much a finding matters.
enum class Severity : std::uint8_t {
  Error,    ///< Something of the theme is not shown, or not as it was meant.
  Warning,  ///< It may be shown otherwise than meant, by some phones or to some eyes.
  Note,     ///< Nothing is lost; something is superfluous or untidy.
};

/// What a maker should know about a theme before others get it.
struct Finding {
  Severity severity;
  QString text;
};

/// A text of a theme, cut where it is long.
QString clipped(QStringView text);

/// The same in quotes.
QString quoted(QStringView text);

/// Findings about the names of an archive's members and about what the reader passes over.
QList<Finding> memberFindings(const ArchiveResult& archive);

/// What the text of a theme says, and what is odd about it.
struct CheckedXml {
  ThemeValues values{Generation::Two};  ///< Colours alone.
  /// For each image slot the file that it shows; empty for none or for a value that names no file.
  std::vector<QString> sources;
  QSet<QString> named;  ///< All files that an element names, and what stands for none.
  QList<Finding> findings;
};

/// Checks the elements of a theme and their values; `xml` is the text as it came.
CheckedXml checkXml(const QString& xml);

/// The finding about colours that are too close to tell apart, or nothing.
QList<Finding> closeColorFindings(const ThemeValues& values);

/// What a reader finds as an element's value where that is not what was meant, in words; empty
/// when it is. `text` is a theme's, normalised.
QString misreading(QLatin1String element, const QString& text, const QString& meant,
                   const FaultReporter& report);

/// Findings about an index that does not list the other members as a save does. Generation 2 has a
/// save leave out `mayBeUnlisted`, the small title image, at times.
QList<Finding> indexFindings(const ArchiveContents& contents, const QString& mayBeUnlisted);

/// What is to be known about the archive and the XML of a theme, and what it shows.
struct CheckedTheme {
  QList<Finding> findings;
  const ThemeSchema* schema = nullptr;  ///< Null for a theme that cannot be read.
  std::vector<QString> sources;         ///< As in `CheckedXml`, but only what lies in the archive.
  QHash<QString, QByteArray> files;     ///< The members, of those with the same name the last.
};

/// Checks all of a theme but its pictures. `fileName` is its bare name.
CheckedTheme checkContents(const ArchiveContents& contents, const QString& fileName);

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/seed.h"

#include "shell/places.h"
#include "theme/files.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <optional>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

QSet<QString> readNotes(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return {};
  const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
  return {lines.begin(), lines.end()};
}

void writeNotes(const QString& path, const QSet<QString>& copied) {
  QStringList lines(copied.begin(), copied.end());
  lines.removeAll(QString());
  lines.sort();
  saveFile(path, lines.join(u'\n').toUtf8() + '\n');
}

// Shipped files may be read-only; the user's copies are not.
void copyFile(const QString& from, const QString& to) {
  saveFile(to, readFile(from));
  QFile::setPermissions(to, QFile::permissions(to) | QFile::WriteOwner);
}

/// Gathers the faults of one run, which mostly have one cause, into one report.
class Faults {
 public:
  template <typename Step>
  bool succeeds(Step&& step) {
    try {
      step();
      return true;
    } catch (const Fault& fault) {
      if (!first_) first_ = fault;
      ++count_;
    }
    return false;
  }

  void reportTo(const FaultReporter& report) const {
    if (!first_) return;
    QString text = u"What belongs to the program could not be copied into its folder. "_s +
                   first_->description();
    if (count_ > 1) text += u" (And %1 more.)"_s.arg(count_ - 1);
    report(Fault(first_->number(), text));
  }

 private:
  std::optional<Fault> first_;
  int count_ = 0;
};

}  // namespace

void seedProgramFolder(const Places& places, const FaultReporter& report) {
  const QDir shipped(places.shippedFolder);
  const QDir home(places.programFolder);
  const QString notes = home.filePath(u"seeded.txt"_s);
  QSet<QString> copied = readNotes(notes);
  const QSet<QString> before = copied;
  Faults faults;
  QDirIterator files(shipped.path(), QDir::Files, QDirIterator::Subdirectories);
  while (files.hasNext()) {
    const QString from = files.next();
    const QString name = shipped.relativeFilePath(from);
    const QString to = home.filePath(name);
    // Help is read where it is installed, so that it is always that of this version.
    if (copied.contains(name) || name.startsWith(kHelpFolder)) continue;
    const auto copy = [&] {
      QDir().mkpath(QFileInfo(to).path());
      if (!QFileInfo::exists(to)) copyFile(from, to);
    };
    if (faults.succeeds(copy)) copied.insert(name);
  }
  if (copied != before) faults.succeeds([&] { writeNotes(notes, copied); });
  faults.reportTo(report);
}

}  // namespace quillane

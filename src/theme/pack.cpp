// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "theme/archive.h"
#include "theme/archive_reader.h"
#include "theme/codepage.h"
#include "theme/fault.h"
#include "theme/files.h"
#include "theme/values.h"

#include <QDateTime>
#include <QFileInfo>
#include <archive.h>
#include <archive_entry.h>

#include <algorithm>
#include <memory>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kEndBlocks = 1024;
constexpr auto kLineEnd = "\r\n"_L1;

struct WriterRelease {
  void operator()(archive* writer) const { archive_write_free(writer); }
};
struct EntryRelease {
  void operator()(archive_entry* entry) const { archive_entry_free(entry); }
};
using Entry = std::unique_ptr<archive_entry, EntryRelease>;

/// A header flavour of the library.
using Flavour = int (*)(archive*);

QString nameInTheme(const QString& file) {
  return QFileInfo(file).fileName().toLower();
}

/// Refuses the file with which an archive would be one that our reader does not take.
class Admission {
 public:
  void admit(const QString& file) {
    const qint64 size = fileSize(file);
    const qint64 limit = ArchiveLimits::ofMember(nameInTheme(file));
    if (size > limit)
      refuse(u"\"%1\" has %2 bytes, and such a file of a theme may have %3."_s, file, size, limit);
    if ((total_ += size) > ArchiveLimits::kTotal)
      refuse(u"With \"%1\" the files of the theme have %2 bytes, and they may have %3."_s, file,
             total_, ArchiveLimits::kTotal);
    if (++count_ > ArchiveLimits::kHeaders)
      refuse(u"With \"%1\" the theme has %2 files, and it may have %3."_s, file, count_,
             ArchiveLimits::kHeaders);
  }

 private:
  [[noreturn]] static void refuse(const QString& words, const QString& file, qint64 number,
                                  qint64 limit) {
    throw Fault(FaultNumber::BadCall,
                words.arg(file, QString::number(number), QString::number(limit)));
  }

  qint64 total_ = 0;
  int count_ = 0;
};

Entry makeEntry(const QString& file, qint64 size) {
  Entry entry(archive_entry_new());
  archive_entry_copy_pathname(entry.get(), toCodePage(nameInTheme(file)).constData());
  archive_entry_set_size(entry.get(), size);
  archive_entry_set_filetype(entry.get(), AE_IFREG);
  archive_entry_set_perm(entry.get(), 0644);
  archive_entry_set_mtime(entry.get(), QFileInfo(file).lastModified().toSecsSinceEpoch(), 0);
  return entry;
}

la_ssize_t appendTo(archive*, void* tar, const void* bytes, std::size_t size) {
  static_cast<QByteArray*>(tar)->append(static_cast<const char*>(bytes),
                                        static_cast<qsizetype>(size));
  return static_cast<la_ssize_t>(size);
}

bool writeMember(archive* writer, archive_entry* entry, const QByteArray& bytes) {
  return archive_write_header(writer, entry) == ARCHIVE_OK &&
         archive_write_data(writer, bytes.constData(), static_cast<std::size_t>(bytes.size())) ==
             bytes.size() &&
         archive_write_finish_entry(writer) == ARCHIVE_OK;
}

bool isAscii(QByteArrayView name) {
  return std::all_of(name.begin(), name.end(),
                     [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

/// The blocks of one member without end blocks, or nothing where the flavour cannot hold it.
QByteArray memberBlocks(Flavour flavour, archive_entry* entry, const QByteArray& bytes) {
  QByteArray tar;
  const std::unique_ptr<archive, WriterRelease> writer(archive_write_new());
  if (flavour(writer.get()) != ARCHIVE_OK) return {};
  // Only records have a character set; the plain flavour refuses to be told of one.
  if (!isAscii(archive_entry_pathname(entry)))
    archive_write_set_options(writer.get(), "hdrcharset=BINARY");
  archive_write_set_bytes_per_block(writer.get(), 0);
  archive_write_set_bytes_in_last_block(writer.get(), 1);
  const bool isOpen =
      archive_write_open(writer.get(), &tar, nullptr, &appendTo, nullptr) == ARCHIVE_OK;
  if (!isOpen || !writeMember(writer.get(), entry, bytes)) return {};
  QByteArray blocks = tar;  // A copy, since the release of the writer adds end blocks to the other.
  return blocks;
}

QByteArray packedMember(const QString& file) {
  const QByteArray bytes = readFile(file);
  const Entry entry = makeEntry(file, bytes.size());
  for (const Flavour flavour :
       {archive_write_set_format_ustar, archive_write_set_format_pax_restricted}) {
    QByteArray blocks = memberBlocks(flavour, entry.get(), bytes);
    if (!blocks.isEmpty()) return blocks;
  }
  throw Fault(FaultNumber::DeviceFault, u"File \"%1\" cannot be packed."_s.arg(file));
}

QString indexEntry(const QString& file) {
  return u"%1 <%2>"_s.arg(nameInTheme(file), QString::number(fileSize(file)));
}

/// Whether an image of generation 2 is the one of the slot that it usually shares a picture with.
bool repeatsItsPartner(const ThemeValues& values, int slot) {
  if (values.schema().generation != Generation::Two) return false;
  const int partner = slot == gen2::DesktopBackgroundImage ? gen2::BackgroundImage
                      : slot == gen2::TitleImageAsian      ? gen2::TitleImageLarge
                                                           : -1;
  return partner >= 0 && values.image(slot).toLower() == values.image(partner).toLower();
}

}  // namespace

void packArchive(const QString& themePath, const QStringList& files) {
  QByteArray tar;
  Admission admission;
  for (const QString& file : files) {
    admission.admit(file);
    tar += packedMember(file);
  }
  tar.append(kEndBlocks, '\0');
  saveFile(themePath, tar);
}

QStringList themeImages(const ThemeValues& values) {
  const ThemeSchema& schema = values.schema();
  QStringList images;
  for (int slot = 0; slot < static_cast<int>(schema.images.size()); ++slot) {
    const QString& image = values.image(slot);
    if (!image.isEmpty() && !repeatsItsPartner(values, slot)) images.append(image);
  }
  return images;
}

QString archiveLibraryVersion() {
  return QString::fromLatin1(archive_version_string()).section(u' ', 1);
}

QByteArray themeIndex(const QStringList& files, IndexEnd end) {
  QStringList entries;
  for (const QString& file : files)
    entries += indexEntry(file);
  if (end == IndexEnd::LineEnd && !entries.isEmpty()) entries += QString();
  return toCodePage(entries.join(kLineEnd));
}

}  // namespace quillane

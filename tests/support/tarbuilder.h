// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

#include <algorithm>

namespace quillane {

/// The fields of a tar header, written as they stand, right or wrong.
struct TarHeader {
  QByteArray name;
  qint64 size = 0;
  char type = '0';
  QByteArray link = {};
  QByteArray rawSize = {};  ///< The size field's bytes instead of `size` in octal.
  QByteArray magic = QByteArray("ustar\00000", 8);
  bool badChecksum = false;
};

/// Writes tar archives block by block, the broken ones too.
class TarBuilder {
 public:
  static constexpr int kBlock = 512;
  static constexpr qint64 kTime = 1'000'000'000;

  TarBuilder& header(const TarHeader& fields) {
    QByteArray block(kBlock, '\0');
    put(block, 0, fields.name);
    put(block, 100, "0000600");
    put(block, 124, fields.rawSize.isEmpty() ? octal(fields.size) : fields.rawSize);
    put(block, 136, octal(kTime));
    put(block, 156, QByteArray(1, fields.type));
    put(block, 157, fields.link);
    put(block, 257, fields.magic);
    put(block, 148, checksum(block, fields.badChecksum));
    return raw(block);
  }
  /// The header of a regular member and its padded bytes.
  TarBuilder& file(const QByteArray& name, const QByteArray& bytes) {
    return header({.name = name, .size = bytes.size()}).padded(bytes);
  }
  /// A pax header with the given records for the next member.
  TarBuilder& pax(const QByteArray& records) {
    return header({.name = "PaxHeader", .size = records.size(), .type = 'x'}).padded(records);
  }
  TarBuilder& padded(const QByteArray& bytes) {
    return raw(bytes + QByteArray((kBlock - bytes.size() % kBlock) % kBlock, '\0'));
  }
  TarBuilder& raw(const QByteArray& bytes) {
    bytes_ += bytes;
    return *this;
  }
  TarBuilder& end(qsizetype blocks = 2) { return raw(QByteArray(blocks * kBlock, '\0')); }
  /// Keeps the first bytes only.
  TarBuilder& cut(qsizetype size) {
    bytes_.truncate(size);
    return *this;
  }

  const QByteArray& bytes() const { return bytes_; }

  /// One pax record: its length, a blank, "keyword=value" and a line end.
  static QByteArray paxRecord(const QByteArray& keyword, const QByteArray& value) {
    const QByteArray body = ' ' + keyword + '=' + value + '\n';
    qsizetype length = body.size() + 1;
    while (QByteArray::number(length).size() + body.size() > length)
      ++length;
    return QByteArray::number(length) + body;
  }

 private:
  static void put(QByteArray& block, int at, const QByteArray& field) {
    std::copy(field.begin(), field.end(), block.begin() + at);
  }
  static QByteArray octal(qint64 number) {
    return QByteArray::number(number, 8).rightJustified(11, '0');
  }
  static QByteArray checksum(QByteArray block, bool bad) {
    std::fill_n(block.begin() + 148, 8, ' ');
    int sum = bad ? 1 : 0;
    for (const char byte : block)
      sum += static_cast<unsigned char>(byte);
    return QByteArray::number(sum, 8).rightJustified(6, '0') + QByteArray("\0 ", 2);
  }

  QByteArray bytes_;
};

}  // namespace quillane

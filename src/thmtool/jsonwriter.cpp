// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "thmtool/jsonwriter.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace quillane {

namespace {

/// A text with quotes and escapes.
QByteArray quoted(const QString& text) {
  const QByteArray array = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
  return array.mid(1, array.size() - 2);
}

}  // namespace

void JsonWriter::openObject(const QString& key, Layout layout) {
  beginItem(key);
  open('{', layout);
}

void JsonWriter::openArray(const QString& key) {
  beginItem(key);
  open('[', Layout::Lines);
}

void JsonWriter::close() {
  const Level level = levels_.back();
  levels_.pop_back();
  if (!level.empty) {
    if (level.layout == Layout::OneLine)
      json_ += ' ';
    else
      separate();
  }
  json_ += level.closing;
}

void JsonWriter::add(const QString& key, const QString& text) {
  beginItem(key);
  json_ += quoted(text);
  afterKey_ = false;
}

void JsonWriter::add(const QString& key, qint64 number) {
  beginItem(key);
  json_ += QByteArray::number(number);
  afterKey_ = false;
}

void JsonWriter::add(const QString& text) {
  beginItem();
  json_ += quoted(text);
}

void JsonWriter::open(char bracket, Layout layout) {
  if (!afterKey_ && !levels_.empty()) beginItem();
  afterKey_ = false;
  json_ += bracket;
  levels_.push_back({bracket == '{' ? '}' : ']', layout});
}

void JsonWriter::beginItem() {
  Level& level = levels_.back();
  if (!level.empty) json_ += ',';
  level.empty = false;
  if (level.layout == Layout::OneLine)
    json_ += ' ';
  else
    separate();
}

void JsonWriter::beginItem(const QString& key) {
  beginItem();
  json_ += quoted(key) + ": ";
  afterKey_ = true;
}

void JsonWriter::separate() {
  json_ += '\n' + QByteArray(static_cast<qsizetype>(2 * levels_.size()), ' ');
}

}  // namespace quillane

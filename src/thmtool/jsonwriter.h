// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

namespace quillane {

/// Writes one JSON object whose keys stay in the order in which they come, as UTF-8.
class JsonWriter {
 public:
  enum class Layout { Lines, OneLine };

  /// Opens the object itself, without a key, or one in an array.
  void openObject(Layout layout = Layout::Lines) { open('{', layout); }
  void openObject(const QString& key, Layout layout = Layout::Lines);
  void openArray(const QString& key);
  /// Closes what was opened last.
  void close();

  void add(const QString& key, const QString& text);
  void add(const QString& key, qint64 number);
  /// An element of an array.
  void add(const QString& text);

  /// The text with a line end behind it, once everything is closed.
  QByteArray bytes() const { return json_ + '\n'; }

 private:
  struct Level {
    char closing;
    Layout layout;
    bool empty = true;
  };

  void open(char bracket, Layout layout);
  void beginItem();
  void beginItem(const QString& key);
  void separate();

  QByteArray json_;
  std::vector<Level> levels_;
  bool afterKey_ = false;
};

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/text.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QString>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace quillane {

/// A folder of its own for each test, gone afterwards.
class TempFolder : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(QFile::setPermissions(folder_.path(), QFile::Permissions(0x7755)));
  }

  QString path(const QString& name = {}) const { return folder_.filePath(name); }

  /// Writes a file, its folders included, and returns its path.
  QString write(const QString& name, const QByteArray& bytes) const {
    QString target = path(name);
    QDir().mkpath(QFileInfo(target).path());
    QFile file(target);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    return target;
  }

  /// The bytes of a file; null when it cannot be read.
  QByteArray read(const QString& name) const {
    QFile file(path(name));
    if (!file.open(QIODevice::ReadOnly)) return {};
    const QByteArray bytes = file.readAll();
    return bytes.isNull() ? QByteArray("") : bytes;
  }

  QString makeFolder(const QString& name) const {
    EXPECT_TRUE(QDir().mkpath(path(name)));
    return path(name);
  }

  /// Names of all that lies in a folder, in name order.
  QStringList listOf(const QString& name) const {
    return QDir(path(name))
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                   QDir::Name);
  }

 private:
  QTemporaryDir folder_;
};

}  // namespace quillane

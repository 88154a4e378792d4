// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "reference.h"

#include <QDir>
#include <QFileInfo>
#include <gmock/gmock.h>

namespace quillane::test {
namespace {

/// Where two pictures of one size differ.
struct Difference {
  int count = 0;
  QRect box;
  QPoint first;
  QImage plain;
  QImage stretched;
};

Difference differenceOf(const QImage& actual, const QImage& expected) {
  Difference found;
  found.plain = QImage(actual.size(), QImage::Format_RGB32);
  found.stretched = found.plain;
  for (int y = 0; y < actual.height(); ++y)
    for (int x = 0; x < actual.width(); ++x) {
      const QRgb a = actual.pixel(x, y);
      const QRgb b = expected.pixel(x, y);
      found.plain.setPixel(
          x, y,
          qRgb(qAbs(qRed(a) - qRed(b)), qAbs(qGreen(a) - qGreen(b)), qAbs(qBlue(a) - qBlue(b))));
      found.stretched.setPixel(x, y, a == b ? qRgb(0, 0, 0) : qRgb(255, 255, 255));
      if (a == b) continue;
      if (found.count++ == 0) found.first = QPoint(x, y);
      found.box |= QRect(x, y, 1, 1);
    }
  return found;
}

void save(const QImage& image, const QString& path) {
  QDir().mkpath(QFileInfo(path).path());
  EXPECT_TRUE(image.save(path)) << path.toStdString();
}

}  // namespace

void expectReference(const QString& name, const QImage& picture) {
  const QImage actual = picture.convertToFormat(QImage::Format_RGB32);
  const QString path = QStringLiteral(REFERENCE_FOLDER "/") + name;
  if (qEnvironmentVariableIsSet("QUILLANE_RENEW_REFERENCES")) {
    save(actual, path);
    return;
  }

  const QString leftovers = QStringLiteral(DIFFERENCE_FOLDER "/") + QString(name).chopped(4);
  const QImage expected = QImage(path).convertToFormat(QImage::Format_RGB32);
  if (expected.size() != actual.size()) {
    save(actual, leftovers + QStringLiteral("-actual.png"));
    ADD_FAILURE() << name.toStdString() << " is " << actual.width() << "x" << actual.height()
                  << ", its reference " << expected.width() << "x" << expected.height();
    return;
  }
  const Difference found = differenceOf(actual, expected);
  if (found.count == 0) return;
  save(actual, leftovers + QStringLiteral("-actual.png"));
  save(found.plain, leftovers + QStringLiteral("-difference.png"));
  save(found.stretched, leftovers + QStringLiteral("-stretched.png"));
  ADD_FAILURE() << name.toStdString() << ": " << found.count << " pixels differ, within ("
                << found.box.left() << "," << found.box.top() << ")-(" << found.box.right() << ","
                << found.box.bottom() << "), first at (" << found.first.x() << ","
                << found.first.y() << "); see " << leftovers.toStdString() << "-*.png";
}

}  // namespace quillane::test

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
// Ends with success when two picture files show the same pixels.
#include <QImage>

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  const QImage one = QImage(argv[1]).convertToFormat(QImage::Format_RGB32);
  const QImage other = QImage(argv[2]).convertToFormat(QImage::Format_RGB32);
  return !one.isNull() && one == other ? 0 : 1;
}

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QPainter;
class QPalette;

namespace quillane {

/// Draws the shadow and light lines that set the parts of a form apart, in the colours of the
/// system. Ends of lines are exclusive.
class Bevel {
 public:
  Bevel(QPainter& painter, const QPalette& palette) : painter_(painter), palette_(palette) {}

  void shadow(int x1, int y1, int x2, int y2);
  void light(int x1, int y1, int x2, int y2);
  /// The paler light of the inner edge.
  void midlight(int x1, int y1, int x2, int y2);

 private:
  QPainter& painter_;
  const QPalette& palette_;
};

/// A separator across the whole width of a form: a shadow line at y and a light line below it.
void DrawEtchedLine(Bevel& bevel, int width, int y);

}  // namespace quillane

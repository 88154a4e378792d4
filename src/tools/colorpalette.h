// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "theme/color.h"

#include <QTableView>

namespace quillane {

class PaletteModel;

/// The colours of a palette as a grid of fields, to be picked with the mouse, or with the arrow
/// keys, Home, End, and then Enter or Space. A field's tool tip is its colour as RRGGBB.
class ColorPalette : public QTableView {
  Q_OBJECT

 public:
  explicit ColorPalette(QWidget* parent = nullptr);

  /// Shows the palette that the program brings along.
  void loadBuiltIn();
  /// Shows the palette of a file. Throws `Fault`; the former palette is then still there.
  void load(const QString& path);

  /// The field with the frame around it, from 0 in reading order; -1 for none.
  int selectedIndex() const;
  /// The colour of a field.
  ColorValue colorAt(int index) const;

 Q_SIGNALS:
  /// The selected field was picked.
  void Click();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void fitFields();
  void select(int index);
  void pick(const QModelIndex& field);

  PaletteModel* model_;
};

}  // namespace quillane

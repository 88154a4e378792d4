// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "theme/color.h"

#include <QTableView>

#include <functional>
#include <utility>

namespace quillane {

class PaletteModel;

/// The colours of a palette as a grid of fields, to be picked with the mouse, or with the arrow
/// keys, Home, End, and then Enter or Space. A field's tool tip is its colour as RRGGBB, or as
/// `setTip` has it.
class ColorPalette : public QTableView {
  Q_OBJECT

 public:
  explicit ColorPalette(QWidget* parent = nullptr);

  /// Shows the palette that the program brings along.
  void loadBuiltIn();
  /// Shows the palette of a file. Throws `Fault`; the former palette is then still there.
  void load(const QString& path);

  /// Writes the palette to a file. Throws `Fault`.
  void save(const QString& path) const;

  /// Makes the grid so many pixels wide and high; a multiple of 16 gives it even fields.
  void setSide(int side);
  /// What a field's tool tip says of its colour.
  void setTip(std::function<QString(ColorValue)> tip) { tip_ = std::move(tip); }

  /// The field with the frame around it, from 0 in reading order; -1 for none.
  int selectedIndex() const;
  /// The colour of a field.
  ColorValue colorAt(int index) const;
  /// Changes the colour of a field.
  void setColorAt(int index, ColorValue color);

 Q_SIGNALS:
  /// The selected field was picked.
  void Click();
  /// The selected field was picked by two clicks or a key.
  void DblClick();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  bool viewportEvent(QEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void fitFields();
  void select(int index);
  /// True when there is a colour to pick.
  bool pick(const QModelIndex& field);

  PaletteModel* model_;
  std::function<QString(ColorValue)> tip_;
  int side_ = 0;
};

}  // namespace quillane

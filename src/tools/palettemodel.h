// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/palette.h"

#include <QAbstractTableModel>

namespace quillane {

/// The colours of a palette in rows of 4, 8 or 16, so that the table has no more rows than columns.
/// A field's text is RRGGBB, its background the colour. Fields behind the last colour are empty.
class PaletteModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  using QAbstractTableModel::QAbstractTableModel;

  const Palette& colors() const { return colors_; }
  void setColors(Palette colors);
  /// Changes the colour of a field that is not empty.
  void setColor(const QModelIndex& field, ColorValue color);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& field, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& field) const override;

  /// A field's place in the palette; -1 for an empty field or none.
  int placeOf(const QModelIndex& field) const;
  /// The field of a place in the palette.
  QModelIndex fieldAt(int place) const;

 private:
  int columns() const;

  Palette colors_;
};

}  // namespace quillane

// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/palettemodel.h"

#include "forms/formcolors.h"

#include <utility>

namespace quillane {

void PaletteModel::setColors(Palette colors) {
  beginResetModel();
  colors_ = std::move(colors);
  endResetModel();
}

void PaletteModel::setColor(const QModelIndex& field, ColorValue color) {
  colors_.at(static_cast<std::size_t>(placeOf(field))) = color;
  Q_EMIT dataChanged(field, field);
}

int PaletteModel::columns() const {
  int columns = 4;
  while (static_cast<std::size_t>(columns) * static_cast<std::size_t>(columns) < colors_.size())
    columns *= 2;
  return columns;
}

int PaletteModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : (static_cast<int>(colors_.size()) + columns() - 1) / columns();
}

int PaletteModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : columns();
}

int PaletteModel::placeOf(const QModelIndex& field) const {
  if (!field.isValid()) return -1;
  const int place = field.row() * columns() + field.column();
  return static_cast<std::size_t>(place) < colors_.size() ? place : -1;
}

QModelIndex PaletteModel::fieldAt(int place) const {
  return index(place / columns(), place % columns());
}

QVariant PaletteModel::data(const QModelIndex& field, int role) const {
  const int place = placeOf(field);
  if (place < 0) return {};
  const ColorValue color = colors_[static_cast<std::size_t>(place)];
  switch (role) {
    case Qt::BackgroundRole:
      return colorOf(color);
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
      return htmlOf(color);
    default:
      return {};
  }
}

Qt::ItemFlags PaletteModel::flags(const QModelIndex& field) const {
  if (placeOf(field) < 0) return Qt::NoItemFlags;
  return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
}

}  // namespace quillane

#pragma once

#include "grid/cell_grid.h"

#include <QAbstractTableModel>

namespace lunavox {

/// Where a grid keeps its header row.
enum class HeaderRow {
  kHeader,  ///< row 0 is the view's horizontal header
  kNone,    ///< row 0 is a row of cells like the others
};

/// A CellGrid as an item model: column 0 of the grid is the vertical header, row 0 the horizontal
/// one. Changes of the grid arrive here through the view, which gathers them.
class CellGridModel : public QAbstractTableModel {
 public:
  /// @param columns_per_track  after so many columns a track ends
  CellGridModel(const CellGrid& grid, HeaderRow header_row, int columns_per_track,
                QObject* parent = nullptr);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

  /// The grid's place of an index, and back.
  CellPosition position(const QModelIndex& index) const;
  QModelIndex index_of(CellPosition position) const;
  /// Rows of the grid above the model's first row: 1 with a header row, else 0.
  int first_row() const { return header_row_ == HeaderRow::kHeader ? 1 : 0; }
  /// True for a place that has a cell in the view.
  bool shows(CellPosition position) const;

  const CellGrid& grid() const { return grid_; }

  /// Takes the grid's present number of rows and columns.
  void take_shape();
  void cells_changed(const CellRegion& region);

 private:
  QString spoken_place(const QModelIndex& index) const;

  const CellGrid& grid_;
  HeaderRow header_row_;
  int columns_per_track_;
  int rows_ = 0;
  int columns_ = 0;
};

}  // namespace lunavox

#include "grid/ui/cell_grid_model.h"

#include "grid/ui/file_text.h"
#include "grid/ui/theme.h"

#include <QBrush>

namespace lunavox {
namespace {

int qt_alignment(Alignment alignment) {
  switch (alignment) {
    case Alignment::kCentre:
      return Qt::AlignCenter;
    case Alignment::kRight:
      return static_cast<int>(Qt::AlignRight) | Qt::AlignVCenter;
    case Alignment::kLeft:
      break;
  }
  return static_cast<int>(Qt::AlignLeft) | Qt::AlignVCenter;
}

}  // namespace

CellGridModel::CellGridModel(const CellGrid& grid, HeaderRow header_row, int columns_per_track,
                             QObject* parent)
    : QAbstractTableModel(parent),
      grid_(grid),
      header_row_(header_row),
      columns_per_track_(columns_per_track),
      rows_(grid.rows() - first_row()),
      columns_(grid.columns() - 1) {}

int CellGridModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : rows_;
}

int CellGridModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : columns_;
}

CellPosition CellGridModel::position(const QModelIndex& index) const {
  return {index.row() + first_row(), index.column() + 1};
}

QModelIndex CellGridModel::index_of(CellPosition position) const {
  return index(position.row - first_row(), position.column - 1);
}

bool CellGridModel::shows(CellPosition position) const {
  return position.row >= first_row() && position.column >= 1 && position.row < grid_.rows() &&
         position.column < grid_.columns();
}

QVariant CellGridModel::data(const QModelIndex& index, int role) const {
  const CellPosition at = position(index);
  if (!index.isValid() || !shows(at)) return {};
  const Cell& cell = grid_.cell(at.row, at.column);
  switch (role) {
    case Qt::DisplayRole:
      return file_text(cell.text);
    case Qt::ForegroundRole:
      return QBrush(theme::colour(cell.text_colour));
    case Qt::BackgroundRole:
      return QBrush(theme::colour(cell.background));
    case Qt::TextAlignmentRole:
      return qt_alignment(cell.alignment);
    case Qt::AccessibleTextRole:
      return cell.text.empty() ? QStringLiteral("empty") : file_text(cell.text);
    case Qt::AccessibleDescriptionRole:
      return spoken_place(index);
    default:
      return {};
  }
}

QString CellGridModel::spoken_place(const QModelIndex& index) const {
  const QString row = headerData(index.row(), Qt::Vertical, Qt::DisplayRole).toString();
  const QString column = headerData(index.column(), Qt::Horizontal, Qt::DisplayRole).toString();
  const int track = index.column() / columns_per_track_ + 1;
  return QStringLiteral("track %1, %2, %3").arg(QString::number(track), row, column);
}

QVariant CellGridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role != Qt::DisplayRole && role != Qt::AccessibleTextRole) return {};
  const bool horizontal = orientation == Qt::Horizontal;
  const int row = horizontal ? 0 : section + first_row();
  const int column = horizontal ? section + 1 : 0;
  if (section < 0 || row >= grid_.rows() || column >= grid_.columns()) return {};
  return QString::fromStdString(grid_.text(row, column));
}

Qt::ItemFlags CellGridModel::flags(const QModelIndex& index) const {
  return index.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::NoItemFlags;
}

void CellGridModel::take_shape() {
  const int rows = grid_.rows() - first_row();
  const int columns = grid_.columns() - 1;
  if (columns > columns_) {
    beginInsertColumns({}, columns_, columns - 1);
    columns_ = columns;
    endInsertColumns();
  } else if (columns < columns_) {
    beginRemoveColumns({}, columns, columns_ - 1);
    columns_ = columns;
    endRemoveColumns();
  }
  if (rows > rows_) {
    beginInsertRows({}, rows_, rows - 1);
    rows_ = rows;
    endInsertRows();
  } else if (rows < rows_) {
    beginRemoveRows({}, rows, rows_ - 1);
    rows_ = rows;
    endRemoveRows();
  }
}

void CellGridModel::cells_changed(const CellRegion& region) {
  const QModelIndex first =
      index_of({std::max(region.first_row, first_row()), std::max(region.first_column, 1)});
  const QModelIndex last = index_of({region.last_row, region.last_column});
  if (first.isValid() && last.isValid()) emit dataChanged(first, last);
}

}  // namespace lunavox

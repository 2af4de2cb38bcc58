#include "grid/ui/grid_view.h"

#include "grid/ui/grid_header.h"
#include "grid/ui/theme.h"

#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>

namespace lunavox {
namespace {

constexpr int kDragScrollMs = 40;

/// The grid's fixed cell at row 0, column 0, where the two headers meet.
class CornerCell : public QWidget {
 public:
  CornerCell(const CellGrid& grid, QWidget* parent) : QWidget(parent), grid_(grid) {}
  void set_text_pixels(int pixels) { text_pixels_ = pixels; }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    paint_fixed_cell(painter, rect(), grid_.cell(0, 0), text_pixels_, {theme::kPanel, false, true});
  }

 private:
  const CellGrid& grid_;
  int text_pixels_ = 11;
};

}  // namespace

GridView::GridView(CellGrid& grid, HeaderRow header_row, int columns_per_track, QWidget* parent)
    : QTableView(parent),
      grid_(grid),
      model_(new CellGridModel(grid, header_row, columns_per_track, this)),
      columns_header_(new GridHeader(*model_, Qt::Horizontal, columns_per_track, this)),
      rows_header_(new GridHeader(*model_, Qt::Vertical, columns_per_track, this)),
      corner_(new CornerCell(grid, this)),
      columns_per_track_(columns_per_track) {
  setHorizontalHeader(columns_header_);
  setVerticalHeader(rows_header_);
  columns_header_->setVisible(header_row == HeaderRow::kHeader);
  corner_->setVisible(header_row == HeaderRow::kHeader);
  setModel(model_);
  setFrameShape(QFrame::NoFrame);
  setShowGrid(false);
  setCornerButtonEnabled(false);
  setSelectionMode(NoSelection);
  setEditTriggers(NoEditTriggers);
  setAutoScroll(false);
  setTabKeyNavigation(false);
  setVerticalScrollMode(ScrollPerItem);
  setHorizontalScrollMode(ScrollPerPixel);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setFocusPolicy(Qt::StrongFocus);
  QPalette dark = palette();
  dark.setColor(QPalette::Base, theme::kGrid);
  setPalette(dark);
  connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this](int value) {
    if (!scrolling_) grid_.set_top_row(std::min(value + model_->first_row(), grid_.rows() - 1));
  });
  drag_timer_.setInterval(kDragScrollMs);
  connect(&drag_timer_, &QTimer::timeout, this, [this] { drag_on(); });
  grid_.add_observer(this);
  apply_widths();
  show_cursor_and_selection();
}

GridView::~GridView() {
  grid_.remove_observer(this);
}

std::array<QWidget*, 3> GridView::fixed_parts() const {
  return {columns_header_->viewport(), rows_header_->viewport(), corner_};
}

void GridView::set_heights(const Heights& heights) {
  heights_ = heights;
  painter_.set_size(heights.row, heights.text);
  rows_header_->setDefaultSectionSize(heights.row);
  rows_header_->set_text_pixels(heights.header_text);
  columns_header_->set_text_pixels(heights.header_text);
  columns_header_->setFixedHeight(heights.header);
  static_cast<CornerCell*>(corner_)->set_text_pixels(heights.header_text);
  apply_widths();
}

void GridView::set_widths(int label_width, int track_width) {
  label_width_ = label_width;
  track_width_ = track_width;
  apply_widths();
}

void GridView::apply_widths() {
  rows_header_->setFixedWidth(label_width_);
  int narrowest = track_width_;
  for (int first = 1; first < grid_.columns(); first += columns_per_track_) {
    const int last = std::min(first + columns_per_track_, grid_.columns());
    int track_twips = 0;
    for (int c = first; c < last; ++c) track_twips += grid_.column_width(c);
    int twips = 0;
    int left = 0;
    for (int c = first; c < last; ++c) {
      twips += grid_.column_width(c);
      const int right = track_width_ * twips / std::max(track_twips, 1);
      columns_header_->resizeSection(c - 1, right - left);
      narrowest = std::min(narrowest, right - left);
      left = right;
    }
  }
  painter_.fit_width(narrowest);
  updateGeometries();
  show_scroll_position();
  viewport()->update();
}

void GridView::updateGeometries() {
  QTableView::updateGeometries();
  corner_->setGeometry(0, 0, rows_header_->width(), columns_header_->height());
  corner_->raise();
  // The last whole tracks may be followed by less than a track's room, which must not keep them
  // from coming first.
  const QSignalBlocker quiet(horizontalScrollBar());
  horizontalScrollBar()->setRange(0, std::max(columns_header_->length() - track_width_, 0));
  horizontalScrollBar()->setSingleStep(track_width_);
}

void GridView::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  show_scroll_position();
}

int GridView::visible_rows() const {
  return std::max(viewport()->height() / heights_.row, 1);
}

QRect GridView::cell_rect(CellPosition position) const {
  return rect_of({position.row, position.column, position.row, position.column});
}

QRect GridView::rect_of(const CellRegion& region) const {
  const int rows = rows_header_->count();
  const int columns = columns_header_->count();
  const int top = std::clamp(region.first_row - model_->first_row(), 0, std::max(rows - 1, 0));
  const int bottom = std::min(region.last_row - model_->first_row(), rows - 1);
  const int left = std::clamp(region.first_column - 1, 0, std::max(columns - 1, 0));
  const int right = std::min(region.last_column - 1, columns - 1);
  if (bottom < top || right < left) return {};
  const int y = rowViewportPosition(top);
  const int x = columnViewportPosition(left);
  return {x, y, columnViewportPosition(right) + columnWidth(right) - x,
          rowViewportPosition(bottom) + rowHeight(bottom) - y};
}

CellPosition GridView::nearest_position(QPoint point) const {
  const int rows = rows_header_->count();
  const int columns = columns_header_->count();
  int row = rowAt(point.y());
  if (row < 0) row = point.y() < 0 ? rowAt(0) - 1 : rows - 1;
  int column = columnAt(point.x());
  if (column < 0) column = point.x() < 0 ? columnAt(0) - 1 : columns - 1;
  return {std::clamp(row, 0, rows - 1) + model_->first_row(),
          std::clamp(column, 0, columns - 1) + 1};
}

// What the grid reports.

void GridView::cells_changed(const CellRegion& region) {
  model_->cells_changed(region);
  if (region.first_row < model_->first_row()) columns_header_->viewport()->update();
  if (region.first_column > 0) return;
  // A line's number tells whether it begins a beat, which the whole line shows.
  if (region.last_row - region.first_row > visible_rows()) {
    rows_header_->viewport()->update();
    viewport()->update();
    return;
  }
  for (int row = region.first_row; row <= region.last_row; ++row) {
    rows_header_->update_section(row - model_->first_row());
    update_row(row);
  }
}

void GridView::dataChanged(const QModelIndex& first, const QModelIndex& last,
                           const QList<int>& roles) {
  if (first == last) {
    QTableView::dataChanged(first, last, roles);
    return;
  }
  const CellPosition from = model_->position(first);
  const CellPosition to = model_->position(last);
  update_rect({from.row, from.column, to.row, to.column});
}

void GridView::shape_changed() {
  model_->take_shape();
  apply_widths();
  show_cursor_and_selection();
}

void GridView::selection_changed() {
  // A step to another column of a line that was scrolled away is no reason to go back there.
  const bool moved = shown_cursor_.row != grid_.cursor().row;
  if (moved && follows_cursor()) bring_into_view(grid_.cursor());
  if (grid_.selection_end() != grid_.cursor() && dragging_) bring_into_view(grid_.selection_end());
  show_cursor_and_selection();
}

void GridView::scrolled() {
  show_scroll_position();
}

void GridView::show_scroll_position() {
  scrolling_ = true;
  verticalScrollBar()->setValue(grid_.top_row() - model_->first_row());
  const int left =
      std::clamp(grid_.left_column() - 1, 0, std::max(columns_header_->count() - 1, 0));
  horizontalScrollBar()->setValue(columns_header_->sectionPosition(left));
  scrolling_ = false;
}

void GridView::bring_into_view(CellPosition position) {
  const int top = verticalScrollBar()->value() + model_->first_row();
  const int bottom = top + visible_rows() - 1;
  if (position.row < top) grid_.set_top_row(std::max(position.row, model_->first_row()));
  if (position.row > bottom) grid_.set_top_row(position.row - visible_rows() + 1);
}

void GridView::show_cursor_and_selection() {
  const CellPosition cursor = grid_.cursor();
  const CellRegion selection = grid_.selection();
  if (cursor.row != shown_cursor_.row) {
    update_row(shown_cursor_.row);
    update_row(cursor.row);
  }
  const QRegion before = rect_of(shown_selection_);
  const QRegion after = rect_of(selection);
  viewport()->update(before.xored(after).intersected(viewport()->rect()));
  for (const CellPosition at : {shown_cursor_, cursor}) {
    if (cursor != shown_cursor_) update_rect({at.row, at.column, at.row, at.column});
  }
  shown_cursor_ = cursor;
  shown_selection_ = selection;
  rows_header_->set_marked_row(shows_cursor() ? cursor.row : GridHeader::kNoRow);
  const QModelIndex current = model_->index_of(cursor);
  if (current != currentIndex()) {
    selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
  }
}

void GridView::refresh_cursor() {
  update_row(shown_cursor_.row);
  rows_header_->set_marked_row(shows_cursor() ? shown_cursor_.row : GridHeader::kNoRow);
}

void GridView::update_row(int row) {
  update_rect({row, 1, row, grid_.columns() - 1});
}

void GridView::update_rect(const CellRegion& region) {
  const QRect rect = rect_of(region).intersected(viewport()->rect());
  if (!rect.isEmpty()) viewport()->update(rect);
}

// Painting.

void GridView::paintEvent(QPaintEvent* event) {
  QPainter painter(viewport());
  const int last_row = rows_header_->count() - 1;
  const int last_column = columns_header_->count() - 1;
  for (const QRect& rect : event->region()) {
    const int top = rowAt(rect.top());
    const int left = columnAt(rect.left());
    const bool beyond = rowAt(rect.bottom()) < 0 || columnAt(rect.right()) < 0;
    if (beyond) painter.fillRect(rect, theme::kGrid);
    if (top < 0 || left < 0) continue;
    const int bottom = rowAt(rect.bottom()) < 0 ? last_row : rowAt(rect.bottom());
    const int right = columnAt(rect.right()) < 0 ? last_column : columnAt(rect.right());
    for (int row = top; row <= bottom; ++row) {
      for (int column = left; column <= right; ++column) {
        paint_cell(painter, {row + model_->first_row(), column + 1});
      }
    }
  }
}

void GridView::paint_cell(QPainter& painter, CellPosition at) {
  if (!model_->shows(at)) return;
  const bool one_cell = grid_.selection_end() == grid_.cursor();
  const CellRegion& selection = shown_selection_;
  CellSurroundings around;
  around.cursor = shows_cursor() && at == shown_cursor_;
  around.focused = hasFocus();
  around.selected = !one_cell && at.row >= selection.first_row && at.row <= selection.last_row &&
                    at.column >= selection.first_column && at.column <= selection.last_column;
  around.cursor_line = shows_cursor() && at.row == shown_cursor_.row;
  around.beat_line = is_beat_line(at.row);
  around.track_end = at.column % columns_per_track_ == 0;
  around.switch_cell = is_switch_column(at.column);
  painter_.paint(painter, cell_rect(at), grid_.cell(at.row, at.column), around);
  ++painted_cells_;
}

}  // namespace lunavox

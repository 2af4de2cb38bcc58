#pragma once

#include "grid/cell_grid.h"

namespace lunavox {

/// Keeps a grid from redrawing for the length of a scope, for work that is too short for the
/// progress box. Within another pause it leaves redrawing off.
class RedrawPause {
 public:
  explicit RedrawPause(CellGrid& grid) : grid_(grid), before_(grid.redraw()) {
    grid_.set_redraw(false);
  }
  ~RedrawPause() { grid_.set_redraw(before_); }
  RedrawPause(const RedrawPause&) = delete;
  RedrawPause& operator=(const RedrawPause&) = delete;

 private:
  CellGrid& grid_;
  bool before_;
};

}  // namespace lunavox

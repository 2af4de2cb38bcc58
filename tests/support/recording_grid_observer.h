#pragma once

#include "grid/cell_grid.h"

#include <functional>
#include <string>
#include <vector>

namespace lunavox::test {

/// Records what a grid reports, in order. Watches the grid as long as it lives.
class RecordingGridObserver : public CellGridObserver {
 public:
  explicit RecordingGridObserver(CellGrid& grid) : grid_(grid) { grid_.add_observer(this); }
  ~RecordingGridObserver() override { grid_.remove_observer(this); }
  RecordingGridObserver(const RecordingGridObserver&) = delete;
  RecordingGridObserver& operator=(const RecordingGridObserver&) = delete;

  void cells_changed(const CellRegion& region) override {
    calls.emplace_back("cells");
    regions.push_back(region);
  }
  void shape_changed() override { calls.emplace_back("shape"); }
  void leaving_cell() override {
    calls.emplace_back("leaving");
    left.push_back(grid_.cursor());
    if (on_leaving) on_leaving();
  }
  void cursor_moved(CellPosition from) override {
    calls.emplace_back("moved");
    moved_from.push_back(from);
  }
  void selection_changed() override { calls.emplace_back("selection"); }
  void scrolled() override { calls.emplace_back("scrolled"); }

  std::vector<std::string> calls;        ///< the name of each call, in order
  std::vector<CellRegion> regions;       ///< of each cells_changed
  std::vector<CellPosition> left;        ///< the cursor at each leaving_cell
  std::vector<CellPosition> moved_from;  ///< of each cursor_moved
  std::function<void()> on_leaving;      ///< what a test does while the cursor leaves

 private:
  CellGrid& grid_;
};

}  // namespace lunavox::test

#pragma once

#include "grid/cell_grid.h"

#include <string>

namespace lunavox {

/// The progress box `Form3`, "PLEASE WAIT...", with a text and a bar. While it is shown the main
/// window answers to nothing: what is pressed waits until the box is gone.
class ProgressBox {
 public:
  virtual ~ProgressBox() = default;
  /// Shows the box with the bar at 0.
  virtual void show(const std::string& caption, int maximum) = 0;
  virtual void set_caption(const std::string& caption) = 0;
  virtual void set_value(int value) = 0;
  virtual void hide() = 0;
};

/// Shows no progress: for work without a window.
class NoProgress : public ProgressBox {
 public:
  void show(const std::string&, int) override {}
  void set_caption(const std::string&) override {}
  void set_value(int) override {}
  void hide() override {}
};

/// Shows the progress box and keeps a grid from redrawing for the length of a scope; an operation
/// that fails on its way leaves no box standing. Where scopes nest, the end of the inner one ends
/// the box's show and draws the grid.
class LongOperation {
 public:
  LongOperation(ProgressBox& box, CellGrid& grid, const std::string& caption, int maximum)
      : box_(box), grid_(grid) {
    box_.show(caption, maximum);
    grid_.set_redraw(false);
  }
  ~LongOperation() {
    grid_.set_redraw(true);
    box_.hide();
  }
  LongOperation(const LongOperation&) = delete;
  LongOperation& operator=(const LongOperation&) = delete;

  void set_caption(const std::string& caption) { box_.set_caption(caption); }
  void set_value(int value) { box_.set_value(value); }

 private:
  ProgressBox& box_;
  CellGrid& grid_;
};

}  // namespace lunavox

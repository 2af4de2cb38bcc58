#pragma once

#include "grid/property.h"

namespace lunavox {

/// The screen the window is laid out for, and the measures that follow from it.
class Screen {
 public:
  /// @param width, height  pixels
  Screen(int width, int height) : width_(width), height_(height) {}

  int width() const { return width_; }
  int height() const { return height_; }

  /// Whole tracks that fit across: 2 at 800 pixels, 3 at 1024, 4 at 1280, 5 at 1600.
  int tracks_across() const;

  /// True for the four screen sizes that the window is designed for, by their width.
  bool width_supported() const;
  bool height_supported() const { return height_ >= 600; }

  /// Fits the `tracks` grid and the track scroll bar to a number of tracks.
  void fit(int track_count);

  // Where the `tracks` grid stands by these measures, in pixels. They are a screen's: a window that
  // has another size gives the grid what room there is.
  Property<int> tracks_height;
  Property<int> tracks_top;  ///< 0 until the extended area first moves it
  /// The scroll bar `defilchan`: value 1..maximum is the first visible track.
  Property<int> defilchan_max{1};
  Property<int> defilchan{1};
  /// The check box `area` ("Extended area").
  Property<bool> area;

  /// `area` clicked: the `tracks` grid gains or loses 191 pixels.
  void area_click(bool checked);

  /// What the extended area adds to the height of `tracks`, in pixels.
  static constexpr int kAreaHeight = 191;

 private:
  int width_;
  int height_;
};

}  // namespace lunavox

#include "grid/screen.h"

#include <algorithm>

namespace lunavox {
namespace {

// One track is eight note columns of 400 twips and an effect column of 600; the conversion to
// pixels is the one that the four supported widths were designed with.
constexpr double kTrackWidthTwips = 3800;
constexpr double kTwipsPerPixel = 13.6;
constexpr int kMarginPixels = 15;

constexpr int kHeightBesideGrid = 275;
constexpr int kHeightBesideScrolledGrid = 258;
constexpr int kExtendedTop = 208;

}  // namespace

int Screen::tracks_across() const {
  return static_cast<int>((width_ - kMarginPixels) / (kTrackWidthTwips / kTwipsPerPixel));
}

bool Screen::width_supported() const {
  return width_ == 800 || width_ == 1024 || width_ == 1280 || width_ == 1600;
}

void Screen::fit(int track_count) {
  const int overflow = track_count - tracks_across();
  const bool scrolls = overflow >= 1;
  tracks_height = height_ - (scrolls ? kHeightBesideScrolledGrid : kHeightBesideGrid) +
                  (area.get() ? kAreaHeight : 0);
  defilchan_max = scrolls ? overflow + 1 : 1;
  defilchan = std::min(defilchan.get(), defilchan_max.get());
}

void Screen::area_click(bool checked) {
  if (checked == area.get()) return;
  area = checked;
  if (checked) tracks_top = kExtendedTop;
  tracks_height = tracks_height.get() + (checked ? kAreaHeight : -kAreaHeight);
}

}  // namespace lunavox

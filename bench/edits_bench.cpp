#include "bench/edits_bench.h"

#include <memory>

namespace lunavox::bench {
namespace {

/// One frame at 60 a second.
constexpr double kFrameMs = 16;

constexpr int kTrack = 2;
/// Where the other block is pasted, so that every cell changes.
constexpr int kOtherTrack = 3;

class Edits {
 public:
  Edits(Editor& editor, OneAnswer& dialogs, const Display& display)
      : editor_(editor), song_(editor.song), dialogs_(dialogs), display_(display) {}

  /// Enters a start value into the shown curve, which has no other key: all its lines change.
  double change_start_value() {
    start_value_ = start_value_ == "100" ? "20" : "100";
    dialogs_.answer = start_value_;
    const int curve = song_.shown_effect.at(kTrack);
    const int column = effects_column(kTrack, Setting::kStartValue);
    return timed([&] { editor_.curves.effects_click(column, curve); });
  }

  /// Redraws the effect columns after other curves have been chosen: all their cells change.
  double redraw_effect_columns() {
    for (int track = 1; track <= song_.track_count; ++track) {
      std::int16_t& shown = song_.shown_effect.at(track);
      shown = shown == kPan ? kModulation : kPan;
    }
    return timed([&] { editor_.curves.addfxs(1); });
  }

  /// Moves all notes of a track by a semitone, there and back.
  double transpose() {
    dialogs_.answer = dialogs_.answer == "1" ? "-1" : "1";
    select_all_notes(kTrack);
    return timed([&] { editor_.block_tools.transproc(); });
  }

  /// Pastes all notes of a track, of two tracks in turn, over a third one's.
  double paste() {
    source_ = source_ == kTrack ? kDrumTrack : kTrack;
    select_all_notes(source_);
    editor_.clipboard.copyproc();
    song_.tracks.set_cursor(1, first_column_of(kOtherTrack));
    return timed([&] { editor_.clipboard.pasteproc(); });
  }

 private:
  template <class Work>
  double timed(Work work) {
    display_.settle();
    return seconds_of(
        [&] {
          work();
          display_.show();
        },
        display_.now);
  }

  void select_all_notes(int track) {
    const int first = first_column_of(track);
    song_.tracks.select({1, first}, {song_.last_row(), first + kNoteColumns - 1});
  }

  Editor& editor_;
  Song& song_;
  OneAnswer& dialogs_;
  Display display_;
  std::string start_value_;
  int source_ = kTrack;
};

}  // namespace

void add_edit_figures(Figures& figures, Editor& editor, OneAnswer& dialogs,
                      const Display& display) {
  const auto edits = std::make_shared<Edits>(editor, dialogs, display);
  figures.add_time("start value of a curve changed" + display.where, kFrameMs,
                   [edits] { return edits->change_start_value(); });
  figures.add_time("all ten effect columns redrawn" + display.where, kFrameMs,
                   [edits] { return edits->redraw_effect_columns(); });
  figures.add_time("8 columns transposed" + display.where, kFrameMs,
                   [edits] { return edits->transpose(); });
  figures.add_time("8 columns pasted" + display.where, kFrameMs,
                   [edits] { return edits->paste(); });
}

}  // namespace lunavox::bench

#include "edit/curves.h"

#include "grid/runtime_numbers.h"

namespace lunavox {
namespace {

// A typed key value may be 0; a start value may not.
constexpr int kMinimumStartValue = 1;
constexpr int kMaximumStartValue = 127;

/// Keeps the lines in view where they are while a curve is walked through: the cursor's way along
/// it is none of the user's. Whoever plays a song may have the view follow it.
class StayingView {
 public:
  StayingView(CellGrid& grid, const Flags& flags)
      : grid_(grid), stays_(!flags.playing), top_row_(grid.top_row()) {}
  ~StayingView() {
    if (stays_) grid_.set_top_row(top_row_);
  }
  StayingView(const StayingView&) = delete;
  StayingView& operator=(const StayingView&) = delete;

 private:
  CellGrid& grid_;
  bool stays_;
  int top_row_;
};

}  // namespace

Curves::Curves(Song& song, Flags& flags, Dialogs& dialogs, ProgressBox& progress)
    : song_(song), flags_(flags), dialogs_(dialogs), progress_(progress) {}

void Curves::effects_click(int column, int row) {
  if (column < 1 || row < 1) return;
  if (hooks_.finish_typing) hooks_.finish_typing();
  song_.effects.set_cursor(row, column);
  const int track = track_of_effects_column(column);
  const Setting setting = setting_of_effects_column(column);
  song_.tracks.set_column(effect_column_of(track));
  if (setting == Setting::kActive) switch_active(track, column, row);
  // Whoever listens may switch a curve on and off, but not bend it.
  if (flags_.playing) return;
  if (setting == Setting::kStartValue) start_value_click(track, column, row);
  if (setting == Setting::kShow && row != kInstrument) show_curve(track, column, row);
}

void Curves::switch_active(int track, int column, int row) {
  const bool active = song_.effects.text(row, column) != kYes;
  song_.effects.set_text(row, column, active ? kYes : kNo);
  song_.active.at(track)[static_cast<std::size_t>(row)] = active;
  flags_.modified = true;
}

void Curves::start_value_click(int track, int column, int row) {
  if (row == kInstrument) {
    choose_voice(track);
    return;
  }
  const std::string answer =
      dialogs_.input({"enter a value", "effect start value", song_.effects.text(row, column)});
  if (answer.empty()) return;
  const double value = leading_number(answer);
  if (!(value >= kMinimumStartValue && value <= kMaximumStartValue)) {
    dialogs_.error("you must enter a value between 1 and 127", "error");
    return;
  }
  set_start_value(track, column, row, value);
}

void Curves::choose_voice(int track) {
  song_.tracks.set_column(first_column_of(track));
  const auto& choose = track == kDrumTrack ? hooks_.choose_drum_kit : hooks_.choose_instrument;
  if (choose) choose();
}

void Curves::set_start_value(int track, int column, int row, double value) {
  flags_.modified = true;
  song_.effects.set_text(row, column, plain_number(value));
  song_.tracks.set_row(1);
  song_.values.at(track, row, 1) = round_to_int16(value);
  if (row == song_.shown_effect.at(track)) {
    refreshfxs();
  } else {
    refreshfxs2();
  }
}

void Curves::show_curve(int track, int column, int row) {
  for (int e = kFirstCurve; e <= kLastEffect; ++e) song_.effects.set_text(e, column, kNo);
  song_.effects.set_text(row, column, kYes);
  song_.shown_effect.at(track) = static_cast<std::int16_t>(row);
  flags_.modified = true;
  showeffect();
}

void Curves::refreshfxs() {
  song_.actualtrack();
  interpolate(song_.shown_effect.at(song_.current_track), true);
}

void Curves::refreshfxs2() {
  song_.actualtrack();
  interpolate(song_.effects.row(), false);
}

void Curves::interpolate(int effect, bool shown) {
  const int track = song_.current_track;
  const CurveChange change =
      curve_change(song_.values.column(track, effect), song_.key_attributes.column(track, effect),
                   song_.tracks.row(), song_.last_row());
  const StayingView view(song_.tracks, flags_);
  const LongOperation operation(progress_, song_.tracks, "interpolating effects...",
                                change.length());
  fill(change.before, effect, shown);
  fill(change.after, effect, shown);
  if (shown) song_.tracks.set_row(change.after.last_row);
}

void Curves::fill(const Segment& segment, int effect, bool shown) {
  if (segment.first_row == segment.last_row) return;
  const int track = song_.current_track;
  for (int row = segment.first_row; row <= segment.last_row; ++row) {
    progress_.set_value(row - segment.first_row);
    const std::int16_t value = value_on(segment, row);
    song_.values.at(track, effect, row) = value;
    if (shown) song_.tracks.set_text(row, effect_column_of(track), plain_number(value));
  }
}

void Curves::showeffect() {
  song_.actualtrack();
  const int column = effect_column_of(song_.current_track);
  const StayingView view(song_.tracks, flags_);
  const LongOperation operation(progress_, song_.tracks, "showing effect...", song_.tracks.rows());
  // The cell under the cursor is left before it is written over.
  song_.tracks.set_cursor(1, column);
  for (int row = 1; row <= song_.last_row(); ++row) show_value(song_.current_track, row);
  song_.tracks.set_cursor(song_.last_row(), column);
}

void Curves::addfxs(int first_row) {
  const StayingView view(song_.tracks, flags_);
  const LongOperation operation(progress_, song_.tracks, "showing effect...", song_.tracks.rows());
  for (int track = 1; track <= song_.track_count; ++track) {
    song_.tracks.set_column(effect_column_of(track));
    for (int row = first_row; row <= song_.last_row(); ++row) show_value(track, row);
    if (first_row <= song_.last_row()) song_.tracks.set_row(song_.last_row());
  }
  song_.actualtrack();
}

void Curves::show_value(int track, int row) {
  progress_.set_value(row);
  const int effect = song_.shown_effect.at(track);
  const bool key = song_.key_attributes.at(track, effect, row) != 0;
  song_.tracks.set_cell(row, effect_column_of(track),
                        {plain_number(song_.values.at(track, effect, row)),
                         key ? kKeyValue : kBlack, kEffectCell, Alignment::kLeft});
}

}  // namespace lunavox

#include "grid/song_length.h"

#include "grid/runtime_error.h"
#include "grid/runtime_numbers.h"

#include <algorithm>
#include <cmath>

namespace lunavox {
namespace {

double divide(double dividend, double divisor) {
  if (divisor == 0) throw RuntimeError(RuntimeError::kDivisionByZero);
  return dividend / divisor;
}

}  // namespace

std::string duration_text(double lines, double lines_per_beat, double beats_per_minute) {
  const double seconds = divide(lines, lines_per_beat) * divide(60, beats_per_minute);
  const auto minutes = round_half_even(std::floor(seconds / 60));
  const std::string rest = plain_number(round_half_even(seconds) % 60);
  return print_number(minutes) + ":" + (rest.size() < 2 ? "0" : "") + rest;
}

std::int32_t line_period_ms(double beats_per_minute, double lines_per_beat) {
  return round_half_even(divide(60, beats_per_minute * lines_per_beat) * 1000);
}

SongLength::SongLength(Song& song, Flags& flags, Dialogs& dialogs, ProgressBox& progress)
    : song_(song), flags_(flags), dialogs_(dialogs), progress_(progress) {}

bool SongLength::bpm_change(const std::string& text) {
  if (!enter(song_.bpm, text)) return false;
  calcultime();
  return true;
}

bool SongLength::length_validate(const std::string& text) {
  if (!enter(song_.length, text)) return false;
  lengthchange();
  calcultime();
  return true;
}

bool SongLength::number_change(const std::string& text) {
  if (!enter(song_.number, text)) return false;
  numberchange();
  calcultime();
  return true;
}

bool SongLength::step_change(const std::string& text) {
  return song_.step.enter(text, dialogs_);
}

bool SongLength::strength_change(const std::string& text) {
  return song_.strength.enter(text, dialogs_);
}

bool SongLength::enter(NumberField& field, const std::string& text) {
  const std::string before = field.text();
  if (!field.enter(text, dialogs_)) return false;
  // Passing through a field and leaving it as it was is not an edit.
  if (field.text() != before) flags_.modified = true;
  return true;
}

void SongLength::lengthchange() {
  const bool refill = flags_.song_building || flags_.song_loading;
  const int old_row_count = refill ? 2 : song_.tracks.rows();
  {
    LongOperation operation(progress_, song_.tracks, "enlarging effects...", song_.track_count);
    song_.tracks.set_rows(song_.length.value() + 1);
    song_.resize_stores();
    continue_curves(old_row_count);
  }
  numero();
  numberchange();
  if (addfxs_) addfxs_(old_row_count);
}

void SongLength::continue_curves(int old_row_count) {
  const auto last = static_cast<std::ptrdiff_t>(song_.last_row());
  for (int track = 1; track <= song_.track_count; ++track) {
    progress_.set_value(track);
    for (int e = kFirstEffect; e <= kLastEffect; ++e) {
      auto& values = song_.values.column(track, e);
      if (old_row_count > last) continue;
      const std::int16_t continued = values[static_cast<std::size_t>(old_row_count) - 1];
      std::fill(values.begin() + old_row_count, values.begin() + last + 1, continued);
    }
  }
}

void SongLength::numero() {
  CellGrid& tracks = song_.tracks;
  LongOperation operation(progress_, tracks, "numeroting lines...", tracks.rows());
  tracks.set_text(1, 0, "0");
  tracks.set_alignment(1, 0, Alignment::kLeft);
  for (int row = 2; row < tracks.rows(); ++row) {
    operation.set_value(row);
    tracks.set_text(row, 0, hex_text(static_cast<std::uint32_t>(row - 1)));
    tracks.set_alignment(row, 0, Alignment::kLeft);
  }
}

void SongLength::numberchange() {
  CellGrid& tracks = song_.tracks;
  const double lines_per_beat = song_.number.number();
  LongOperation operation(progress_, tracks, "preparing beats...", tracks.rows());
  tracks.set_background(1, 0, kBeat);
  for (int line = 1; line < song_.last_row(); ++line) {
    const double beats = divide(line, lines_per_beat);
    tracks.set_background(line + 1, 0, std::floor(beats) == beats ? kBeat : kBlack);
  }
}

void SongLength::calcultime() {
  timemin = duration_text(song_.length.number(), song_.number.number(), song_.bpm.number());
}

}  // namespace lunavox

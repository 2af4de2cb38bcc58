#include "grid/status_text.h"

#include "grid/note_text.h"
#include "grid/runtime_numbers.h"

#include <algorithm>

namespace lunavox {
namespace {

constexpr int kSemitones = 12;

std::string note_description(const std::string& entry) {
  if (entry.empty()) return "empty";
  if (!is_note(entry)) return "note off";
  std::string name(note_name(shown_note(entry).note_index));
  std::erase(name, ' ');
  return name + plain_number(shown_note(entry).octave) + " velocity " +
         plain_number(velocity_of(entry));
}

}  // namespace

std::string cursor_line_text(const Song& song) {
  if (song.tracks.row() < 1) return {};
  const int line = song.tracks.row() - 1;
  const int beat = line / std::max(song.number.value(), 1) + 1;
  return "Line " + plain_number(line) + " of " + plain_number(song.last_row()) + "   Beat " +
         plain_number(beat);
}

std::string cursor_cell_text(const Song& song) {
  const int row = song.tracks.row();
  const int track = track_of_column(song.tracks.column());
  const int sub_column = sub_column_of(song.tracks.column());
  if (row < 1 || song.tracks.column() < 1 || track > song.track_count) return {};
  const std::string place = "Track " + plain_number(track);
  if (sub_column == 0) {
    const int effect = song.shown_effect.at(track);
    if (effect < kFirstEffect || effect > kLastEffect) return place;
    const bool typed = song.key_attributes.at(track, effect, row) != 0;
    return place + " " + effect_name(effect) + ": " +
           plain_number(song.values.at(track, effect, row)) + (typed ? " (key)" : "");
  }
  return place + " #" + plain_number(sub_column) + ": " +
         note_description(song.notes.at(track, sub_column, row));
}

std::string octave_text(int octaveshift) {
  const int octaves = octaveshift / kSemitones;
  return std::string("Octave ") + (octaves > 0 ? "+" : "") + plain_number(octaves);
}

}  // namespace lunavox

#include "grid/song.h"

#include "grid/note_text.h"

#include <algorithm>

namespace lunavox {

Song::Song() : tracks(3, 1), channels(1, 1), effects(kEffectSlots, 1) {
  resize_stores();
  write_captions();
}

void Song::actualtrack() {
  current_track = track_of_column(tracks.column());
  current_sub_column = sub_column_of(tracks.column());
}

void Song::calculnote() {
  const ShownNote note = shown_note(notes.at(current_track, current_sub_column, tracks.row()));
  octave = note.octave;
  note_index = note.note_index;
  note_name = lunavox::note_name(note_index);
}

void Song::show_entry(int track, int sub_column, int row) {
  const std::string& entry = notes.at(track, sub_column, row);
  const int column = first_column_of(track) + sub_column - 1;
  if (!is_note(entry)) {
    tracks.set_text(row, column, entry);
    return;
  }
  tracks.set_text(row, column, shown_note(entry).text(), velocity_colour(velocity_of(entry)));
}

void Song::show_track_entries(int track) {
  for (int sub_column = 1; sub_column <= kNoteColumns; ++sub_column) {
    for (int row = 1; row <= last_row(); ++row) show_entry(track, sub_column, row);
  }
}

void Song::write_captions() {
  effects.set_text(0, 0, "Effect");
  for (int e = kFirstEffect; e <= kLastEffect; ++e) effects.set_text(e, 0, effect_name(e));
  channels.set_text(0, 0, "Track");
  tracks.set_text(0, 0, "Note");
}

void Song::write_entry(int track, int sub_column, int row, const std::string& entry) {
  notes.at(track, sub_column, row) = entry;
  if (entry.empty()) return;
  auto& used = used_columns.at(track);
  used = std::max(used, static_cast<std::int16_t>(sub_column));
}

void Song::resize_stores() {
  const auto resize = [this](auto& store) {
    // The stores reach one row past the last line. What stood there before a shortening is cut like
    // all that follows, or it would sound again when the song grows back.
    store.resize_keeping(last_row());
    store.resize_keeping(tracks.rows());
  };
  resize(notes);
  resize(values);
  resize(key_attributes);
}

}  // namespace lunavox

#include "bench/quiet_editor.h"

#include "app/start_up.h"
#include "grid/note_text.h"

namespace lunavox::bench {
namespace {

void fill_notes(Song& song, int track) {
  for (int column = 1; column <= kNoteColumns; ++column) {
    for (int row = 1; row <= song.last_row(); ++row) {
      const int velocity = 1 + (row * 7 + column) % 127;
      const int note = 16 + (row * 5 + column * 11 + track) % 112;
      song.write_entry(track, column, row, note_text(velocity, note, song.channel.at(track)));
    }
  }
  song.show_track_entries(track);
}

void fill_curves(Song& song, int track) {
  for (int e = kFirstCurve; e <= kLastEffect; ++e) {
    song.active.at(track)[static_cast<std::size_t>(e)] = true;
    song.effects.set_text(e, effects_column(track, Setting::kActive), "yes");
    for (int row = 1; row <= song.last_row(); ++row) {
      song.values.at(track, e, row) = static_cast<std::int16_t>((row + e * 13 + track) % 128);
    }
  }
}

}  // namespace

void fill_song(Editor& editor, int lines) {
  Song& song = editor.song;
  while (song.track_count < kMaxTracks) editor.tracks.addinstrutrack();
  editor.song_length.length_validate(std::to_string(lines));
  const LongOperation operation(editor.world.progress, song.tracks, "", 0);
  for (int track = 1; track <= kMaxTracks; ++track) {
    fill_notes(song, track);
    fill_curves(song, track);
  }
  editor.curves.addfxs(1);
  song.tracks.set_cursor(1, 1);
}

QuietEditor::QuietEditor() {
  build_first_song(editor);
  editor.flags.song_building = false;
  editor.outputdev.click(1);
  editor.current_loop.set(&editor.listen);
}

}  // namespace lunavox::bench

#include "editor_invariants.h"

#include "first_wrong.h"
#include "grid/runtime_numbers.h"
#include "song_bounds.h"

#include <algorithm>

namespace lunavox::test {
namespace {

void check_shape(const Editor& editor, FirstWrong& wrong) {
  const Song& song = editor.song;
  const int tracks = song.track_count;
  wrong.expect(tracks >= 1 && tracks <= kMaxTracks, "there are 1 to 10 tracks");
  wrong.expect(song.tracks.rows() == song.length.value() + 1, "`tracks` has a row for each line");
  wrong.expect(song.tracks.columns() == kColumnsPerTrack * tracks + 1, "columns of `tracks`");
  wrong.expect(song.effects.columns() == kSettingsPerTrack * tracks + 1, "columns of `effects`");
  wrong.expect(song.channels.columns() == tracks + 1, "columns of `channels`");
  wrong.expect(song.effects.rows() == kEffectSlots, "rows of `effects`");
  for (const int last_row :
       {song.notes.last_row(), song.values.last_row(), song.key_attributes.last_row()}) {
    wrong.expect(last_row == song.tracks.rows(), "the stores reach one row past the last line");
  }
}

void check_state(const Editor& editor, FirstWrong& wrong) {
  const Song& song = editor.song;
  const CurrentLoop& current = editor.current_loop;
  const int loops = static_cast<int>(current.is(editor.listen)) +
                    static_cast<int>(current.is(editor.play_loop)) +
                    static_cast<int>(current.is(editor.realtime_loop));
  wrong.expect(loops == 1, "exactly one loop runs");
  wrong.expect(editor.flags.playing == !current.is(editor.listen), "what plays is no listening");
  wrong.expect(!editor.flags.song_building && !editor.flags.song_loading, "no song is being built");
  wrong.expect(song.tracks.redraw(), "`tracks` is redrawn");
  wrong.expect(song.current_track == track_of_column(song.tracks.column()), "the current track");
  wrong.expect(song.current_sub_column == sub_column_of(song.tracks.column()),
               "the current sub-column");
  wrong.expect(!editor.typing_mode.typing() || song.current_sub_column == 0,
               "only effect cells are typed into");
  const int bookmarks = static_cast<int>(song.bookmarks.get().size());
  wrong.expect(editor.bookmarks.selected < bookmarks, "the selected bookmark is there");
}

void check_line_numbers(const Song& song, FirstWrong& wrong) {
  const int lines_per_beat = song.number.value();
  for (int row = 1; row <= song.last_row(); ++row) {
    const Cell& cell = song.tracks.cell(row, 0);
    wrong.expect(cell.text == hex_text(static_cast<std::uint32_t>(row - 1)), "line numbers");
    const bool beat = (row - 1) % lines_per_beat == 0;
    wrong.expect(cell.background == (beat ? kBeat : kBlack),
                 "beat mark of row " + std::to_string(row));
  }
}

void check_settings(const Song& song, int track, FirstWrong& wrong) {
  const int shown = song.shown_effect.at(track);
  wrong.expect(shown >= kFirstCurve && shown <= kLastEffect, "a curve is shown");
  wrong.expect(song.used_columns.at(track) >= 0 && song.used_columns.at(track) <= kNoteColumns,
               "used columns");
  for (int column = song.used_columns.at(track) + 1; column <= kNoteColumns; ++column) {
    const auto& entries = song.notes.column(track, column);
    wrong.expect(
        std::all_of(entries.begin(), entries.end(), [](const auto& e) { return e.empty(); }),
        "a column with an entry counts as used");
  }
  for (int effect = kFirstEffect; effect <= kLastEffect; ++effect) {
    const bool active = song.active.at(track)[static_cast<std::size_t>(effect)];
    wrong.expect(
        (song.effects.text(effect, effects_column(track, Setting::kActive)) == "yes") == active,
        "the Active column");
    if (effect == kInstrument) continue;
    wrong.expect((song.effects.text(effect, effects_column(track, Setting::kShow)) == "yes") ==
                     (effect == shown),
                 "the Show column");
  }
}

void check_tracks(const Song& song, FirstWrong& wrong) {
  for (int track = 1; track <= song.track_count; ++track) {
    check_settings(song, track, wrong);
    for (int effect = kFirstEffect; effect <= kLastEffect; ++effect) {
      wrong.expect(song.key_attributes.at(track, effect, 1) == 1, "the first line is always a key");
    }
  }
}

}  // namespace

std::string EditorInvariants::check(const Editor& editor) {
  FirstWrong wrong;
  check_shape(editor, wrong);
  // What follows needs a song of that shape.
  if (!wrong.text().empty()) return wrong.text();
  const std::string outside = out_of_bounds(editor.song);
  if (!outside.empty()) return "out of bounds: " + outside;
  check_state(editor, wrong);
  check_line_numbers(editor.song, wrong);
  check_tracks(editor.song, wrong);
  const std::string cell = cells_.check(editor);
  wrong.expect(cell.empty(), cell);
  return wrong.text();
}

}  // namespace lunavox::test

#include "editor_invariants.h"

#include "grid/note_text.h"
#include "grid/runtime_numbers.h"

#include <algorithm>
#include <array>

namespace lunavox::test {
namespace {

/// Velocities of two digits; what softer notes read like is left open.
constexpr std::size_t kUsualLength = 6;

std::string without_blanks(std::string text) {
  std::erase(text, ' ');
  return text;
}

/// Octave 10 reads as 10 where a note is shown, and as 0 where it is transposed.
bool reads_as(const std::string& text, int note) {
  const std::string name(note_name(note % 12));
  const int octave = note / 12;
  return text == name + std::to_string(octave) || text == name + std::to_string(octave % 10);
}

bool note_cell_agrees(const std::string& text, const std::string& entry) {
  if (!is_note(entry)) return text == entry;
  return entry.size() == kUsualLength && reads_as(text, note_of(entry));
}

}  // namespace

std::string EditorInvariants::check(const Editor& editor, const Action& last) {
  broken_.clear();
  check_shape(editor);
  if (!broken_.empty()) return broken_;
  check_state(editor);
  check_line_numbers(editor.song);
  check_curves(editor.song);
  check_cells(editor, last);
  return broken_;
}

void EditorInvariants::check_shape(const Editor& editor) {
  const Song& song = editor.song;
  const int tracks = song.track_count;
  expect(tracks >= 1 && tracks <= kMaxTracks, "there are 1 to 10 tracks");
  expect(song.tracks.rows() == song.length.value() + 1, "`tracks` has a row for each line");
  expect(song.tracks.columns() == kColumnsPerTrack * tracks + 1, "columns of `tracks`");
  expect(song.effects.columns() == kSettingsPerTrack * tracks + 1, "columns of `effects`");
  expect(song.channels.columns() == tracks + 1, "columns of `channels`");
  expect(song.effects.rows() == kEffectSlots, "rows of `effects`");
  for (const int last_row :
       {song.notes.last_row(), song.values.last_row(), song.key_attributes.last_row()}) {
    expect(last_row == song.tracks.rows(), "the stores reach one row past the last line");
  }
  const CellPosition cursor = song.tracks.cursor();
  expect(cursor.row >= 1 && cursor.row <= song.last_row(), "the cursor is on a line");
  expect(cursor.column >= 1, "the cursor is in a track");
}

void EditorInvariants::check_state(const Editor& editor) {
  const Song& song = editor.song;
  const CurrentLoop& current = editor.current_loop;
  const int loops = static_cast<int>(current.is(editor.listen)) +
                    static_cast<int>(current.is(editor.play_loop)) +
                    static_cast<int>(current.is(editor.realtime_loop));
  expect(loops == 1, "exactly one loop runs");
  expect(editor.flags.playing == !current.is(editor.listen), "what plays is no listening");
  expect(!editor.flags.song_building && !editor.flags.song_loading, "no song is being built");
  expect(song.tracks.redraw(), "`tracks` is redrawn");
  expect(song.current_track == track_of_column(song.tracks.column()), "the current track");
  expect(song.current_sub_column == sub_column_of(song.tracks.column()), "the current sub-column");
  expect(!editor.typing_mode.typing() || song.current_sub_column == 0,
         "only effect cells are typed into");
  const int bookmarks = static_cast<int>(song.bookmarks.get().size());
  expect(editor.bookmarks.selected < bookmarks, "the selected bookmark is there");
}

void EditorInvariants::check_line_numbers(const Song& song) {
  const int lines_per_beat = song.number.value();
  for (int row = 1; row <= song.last_row(); ++row) {
    const Cell& cell = song.tracks.cell(row, 0);
    expect(cell.text == hex_text(static_cast<std::uint32_t>(row - 1)), "line numbers");
    const bool beat = (row - 1) % lines_per_beat == 0;
    expect(cell.background == (beat ? kBeat : kBlack), "beat mark of row " + std::to_string(row));
  }
}

void EditorInvariants::check_curves(const Song& song) {
  const auto last = static_cast<std::ptrdiff_t>(song.last_row());
  for (int track = 1; track <= song.track_count; ++track) {
    check_settings(song, track);
    for (int effect = kFirstEffect; effect <= kLastEffect; ++effect) {
      const auto& values = song.values.column(track, effect);
      const auto [low, high] = std::minmax_element(values.begin() + 1, values.begin() + 1 + last);
      expect(*low >= 0 && *high <= 127, "values lie within 0 and 127");
      expect(song.key_attributes.at(track, effect, 1) == 1, "the first line is always a key");
    }
  }
}

void EditorInvariants::check_settings(const Song& song, int track) {
  const int shown = song.shown_effect.at(track);
  expect(shown >= kFirstCurve && shown <= kLastEffect, "a curve is shown");
  expect(song.used_columns.at(track) >= 0 && song.used_columns.at(track) <= kNoteColumns,
         "used columns");
  for (int column = song.used_columns.at(track) + 1; column <= kNoteColumns; ++column) {
    const auto& entries = song.notes.column(track, column);
    expect(std::all_of(entries.begin(), entries.end(), [](const auto& e) { return e.empty(); }),
           "a column with an entry counts as used");
  }
  for (int effect = kFirstEffect; effect <= kLastEffect; ++effect) {
    const bool active = song.active.at(track)[static_cast<std::size_t>(effect)];
    expect((song.effects.text(effect, effects_column(track, Setting::kActive)) == "yes") == active,
           "the Active column");
    if (effect == kInstrument) continue;
    expect((song.effects.text(effect, effects_column(track, Setting::kShow)) == "yes") ==
               (effect == shown),
           "the Show column");
  }
}

void EditorInvariants::check_cells(const Editor& editor, const Action& last) {
  const CellPosition cursor = editor.song.tracks.cursor();
  const std::pair<int, int> typed{cursor.row, cursor.column};
  const bool typing = editor.typing_mode.typing();
  Cells odd = odd_cells(editor.song);
  // While it is typed into, a cell is what the user makes it, and afterwards what it was.
  if (typing) odd.erase(typed);
  for (const auto& [row, column] : odd) {
    if (odd_.count({row, column}) != 0) continue;
    expect(may_become_odd(editor, {row, column}, last),
           "cell in row " + std::to_string(row) + ", column " + std::to_string(column) +
               " reads \"" + editor.song.tracks.text(row, column) + "\"");
  }
  if (typing && odd_.count(typed) != 0) odd.insert(typed);
  odd_ = std::move(odd);
}

EditorInvariants::Cells EditorInvariants::odd_cells(const Song& song) const {
  Cells odd;
  for (int column = 1; column < song.tracks.columns(); ++column) {
    const int track = track_of_column(column);
    const int sub_column = sub_column_of(column);
    for (int row = 1; row <= song.last_row(); ++row) {
      const std::string& text = song.tracks.text(row, column);
      const bool agrees =
          sub_column == 0
              ? without_blanks(text) ==
                    std::to_string(song.values.at(track, song.shown_effect.at(track), row))
              : note_cell_agrees(text, song.notes.at(track, sub_column, row));
      if (!agrees) odd.insert({row, column});
    }
  }
  return odd;
}

bool EditorInvariants::may_become_odd(const Editor& editor, CellPosition cell,
                                      const Action& last) const {
  const int sub_column = sub_column_of(cell.column);
  if (sub_column == 0) {
    // Keys that write into a cell do so in an effect column too once its typing has ended, and a
    // block that is pasted over an effect column covers its values.
    return last.deed == Deed::kPressKey || last.deed == Deed::kPaste;
  }
  const std::string& entry =
      editor.song.notes.at(track_of_column(cell.column), sub_column, cell.row);
  // Soft notes read as they come, and their copies keep that.
  return is_note(entry) && (entry.size() != kUsualLength || last.deed == Deed::kPaste);
}

void EditorInvariants::expect(bool held, const std::string& what) {
  if (!held && broken_.empty()) broken_ = what;
}

}  // namespace lunavox::test

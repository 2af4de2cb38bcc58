#include "song_bounds.h"

#include "first_wrong.h"
#include "grid/note_text.h"
#include "midi/xg_effects.h"

#include <algorithm>
#include <cstddef>

namespace lunavox::test {
namespace {

/// The keys of the notes 12 to 15 send no well-formed message: a digit of the velocity slips into
/// the number of the note.
constexpr int kFirstSlipped = 0xEC;
constexpr int kLastSlipped = 0xEF;

bool in_range(int number, int first, int last) {
  return first <= number && number <= last;
}

bool is_hex(const std::string& text) {
  return text.find_first_not_of("0123456789ABCDEF") == std::string::npos;
}

/// Velocity without a leading zero, note, "9", channel; or what stands for no note.
bool well_formed(const std::string& entry, int channel) {
  if (!is_note(entry)) return true;
  if (!is_hex(entry) || !in_range(static_cast<int>(entry.size()), 5, 6)) return false;
  const int note = note_of(entry);
  return in_range(velocity_of(entry), entry.size() == 5 ? 0 : 16, 127) &&
         (in_range(note, 0, 127) || in_range(note, kFirstSlipped, kLastSlipped)) &&
         entry[entry.size() - 2] == '9' && entry.back() == channel_digit(channel);
}

template <class Column, class Holds>
bool all_lines(const Song& song, const Column& column, Holds holds) {
  const auto last = static_cast<std::ptrdiff_t>(song.last_row());
  return std::all_of(column.begin() + 1, column.begin() + 1 + last, holds);
}

std::string of_track(const char* what, int track) {
  return what + std::string(" of track ") + std::to_string(track);
}

void check_track(const Song& song, int track, FirstWrong& wrong) {
  const int channel = song.channel.at(track);
  wrong.expect(channel == channel_of_track(track), of_track("channel", track));
  wrong.expect(in_range(song.bank.at(track), 0, 127), of_track("bank", track));
  for (int column = 0; column < kNoteSlots; ++column) {
    const auto& entries = song.notes.column(track, column);
    wrong.expect(all_lines(song, entries,
                           [&](const std::string& entry) { return well_formed(entry, channel); }),
                 of_track("note entries", track));
  }
  for (int effect = kFirstEffect; effect <= kLastEffect; ++effect) {
    wrong.expect(all_lines(song, song.values.column(track, effect),
                           [](int value) { return in_range(value, 0, 127); }),
                 of_track("values", track));
    wrong.expect(all_lines(song, song.key_attributes.column(track, effect),
                           [](int mark) { return in_range(mark, 0, 1); }),
                 of_track("key attributes", track));
  }
}

void check_fields(const Song& song, FirstWrong& wrong) {
  for (const NumberField* field :
       {&song.bpm, &song.length, &song.number, &song.step, &song.strength}) {
    wrong.expect(in_range(field->value(), field->minimum(), field->maximum()) &&
                     field->number() == field->value(),
                 "a field reads \"" + field->text() + "\"");
  }
}

void check_lists(const Song& song, FirstWrong& wrong) {
  const auto check = [&](XgList list, int item) {
    // -1 is no selection.
    wrong.expect(in_range(item, -1, static_cast<int>(xg_names(list).size()) - 1),
                 "item " + std::to_string(item) + " of an XG list");
  };
  check(XgList::kReverb, song.reverb);
  check(XgList::kChorus, song.chorus);
  check(XgList::kVariation, song.variation);
  for (const Bookmark& bookmark : song.bookmarks.get()) {
    // A shortened song may end before the line that is marked, so it is none of the song's length.
    wrong.expect(in_range(bookmark.row, 1, song.length.maximum()), "a bookmark's row");
  }
}

void check_positions(const CellGrid& grid, FirstWrong& wrong) {
  const int rows = grid.rows() - 1;
  const int columns = grid.columns() - 1;
  const auto inside = [&](CellPosition cell) {
    return in_range(cell.row, 1, rows) && in_range(cell.column, 1, columns);
  };
  wrong.expect(inside(grid.cursor()), "the cursor's place");
  wrong.expect(inside(grid.selection_end()), "the selection's end");
  wrong.expect(inside({grid.top_row(), grid.left_column()}), "the scroll position");
}

}  // namespace

std::string out_of_bounds(const Song& song) {
  FirstWrong wrong;
  for (int track = 1; track <= song.track_count; ++track) check_track(song, track, wrong);
  check_fields(song, wrong);
  check_lists(song, wrong);
  check_positions(song.tracks, wrong);
  return wrong.text();
}

}  // namespace lunavox::test

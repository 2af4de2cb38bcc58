#pragma once

#include "grid/cell_grid.h"
#include "grid/effect.h"
#include "grid/line_table.h"
#include "grid/number_field.h"
#include "grid/property.h"
#include "grid/track_columns.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace lunavox {

/// A named line.
struct Bookmark {
  std::string name;
  std::int32_t row = 1;  ///< the grid row it marks, 1 for the first line

  bool operator==(const Bookmark&) const = default;
};

/// The song: the three grids and the stores behind them. A value, so that it can be copied,
/// compared and swapped; copies carry no observers or listeners.
class Song {
 public:
  /// A song without a track, of two empty lines, with its captions written.
  Song();

  CellGrid tracks;    ///< notes and effect values; one row a line, nine columns a track
  CellGrid channels;  ///< one header cell a track
  CellGrid effects;   ///< three columns a track, one row a curve

  LineTable<std::string, kNoteSlots> notes;              ///< note message texts, by note column
  LineTable<std::int16_t, kEffectSlots> values;          ///< effect values, by effect
  LineTable<std::uint8_t, kEffectSlots> key_attributes;  ///< 1 where a value was typed

  int track_count = 0;
  TrackTable<std::int16_t> channel;       ///< channel index 0..15
  TrackTable<std::int16_t> bank;          ///< bank select LSB of the voice
  TrackTable<std::int16_t> used_columns;  ///< highest note column that ever held an entry
  TrackTable<std::int16_t> shown_effect{kVolume};
  /// active.at(track)[effect]: mirrors the "Active" columns.
  TrackTable<std::array<bool, kEffectSlots>> active;

  NumberField bpm{"120", 30, 300};
  NumberField length{"64", 2, 3000};
  NumberField number{"4", 1, 8};
  NumberField step{"1", 0, 16};
  NumberField strength{"127", 1, 127};

  Property<std::vector<Bookmark>> bookmarks;

  /// Selected items of the three XG lists, -1 for none.
  Property<int> reverb{0};
  Property<int> chorus{0};
  Property<int> variation{0};

  /// Number of the last line's row: the grid's row count minus 1.
  int last_row() const { return tracks.rows() - 1; }

  /// The current track and sub-column, set by actualtrack().
  int current_track = 1;
  int current_sub_column = 1;
  /// Derives the current track and sub-column from the cursor of `tracks`.
  void actualtrack();

  /// The current cell's note, set by calculnote().
  int octave = 0;
  int note_index = 0;
  std::string note_name;
  /// Reads the note at the cursor of `tracks` (see shown_note) into octave, index and name.
  void calculnote();

  /// Shows an entry of the note store in its cell: a note as its name and octave in the colour of
  /// its velocity, "stop" and the empty text as they are.
  void show_entry(int track, int sub_column, int row);
  /// Shows the entries of all note columns of a track, as after opening a file.
  void show_track_entries(int track);

  /// Writes an entry of the note store and counts its note column as used. The cell is not touched.
  void write_entry(int track, int sub_column, int row, const std::string& entry);

  /// Writes the fixed texts: "Effect" and the curves' names, "Track" and "Note".
  void write_captions();

  /// Resizes the stores to the row count of `tracks`, keeping the contents of the song's lines.
  void resize_stores();

  bool operator==(const Song&) const = default;
};

}  // namespace lunavox

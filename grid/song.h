#pragma once

#include "grid/cell_grid.h"
#include "grid/line_table.h"
#include "grid/number_field.h"
#include "grid/property.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lunavox {

/// The eleven controller curves of a track, by their row in the `effects` grid.
enum Effect : int {
  kInstrument = 1,  ///< not a curve: the voice's program number on the first line
  kVolume = 2,
  kPan = 3,
  kModulation = 4,
  kBrightness = 5,
  kReverb = 6,
  kChorus = 7,
  kVariation = 8,
  kAttack = 9,
  kRelease = 10,
  kPitch = 11,
};
inline constexpr int kFirstEffect = kInstrument;
inline constexpr int kFirstCurve = kVolume;
inline constexpr int kLastEffect = kPitch;

/// Tracks 1..10; track 1 is the drum track.
inline constexpr int kMaxTracks = 10;
inline constexpr int kDrumTrack = 1;
/// Columns of one track in `tracks` (eight note columns and the effect column) and in `effects`
/// ("Active", "Start value", "Show").
inline constexpr int kColumnsPerTrack = 9;
inline constexpr int kSettingsPerTrack = 3;
inline constexpr int kNoteColumns = 8;

/// A setting of a track in the `effects` grid, by its place among the track's three columns.
enum class Setting { kActive = 1, kStartValue = 2, kShow = 3 };

/// "Instrument", "Volume", ... "Pitch" for effect 1..11.
const std::string& effect_name(int effect);

/// The track whose columns hold a `tracks` column; column 0 counts as track 1.
int track_of_column(int column);
/// 1..8 for a note column, 0 for an effect column (and for column 0).
int sub_column_of(int column);
/// The first note column of a track in `tracks`.
int first_column_of(int track);
/// The effect column of a track in `tracks`.
int effect_column_of(int track);
/// The column of a track's setting in `effects`.
int effects_column(int track, Setting setting);
/// Channel index of a track: 9 for the drum track, otherwise the track number minus 2.
int channel_of_track(int track);

/// A named line.
struct Bookmark {
  std::string name;
  std::int32_t row = 1;  ///< the grid row it marks, 1 for the first line

  bool operator==(const Bookmark&) const = default;
};

/// How a note entry reads on the screen.
struct ShownNote {
  int octave = 0;
  int note_index = 0;  ///< 0..11 from C
  /// Name and octave: "C  4", "C#4".
  std::string text() const;
};

/// Reads the note of an entry for showing. Characters 3 and 4 of the entry are taken as its note
/// number, which is right for velocities of 16 and more and taken as it comes for softer notes.
ShownNote shown_note(std::string_view entry);

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

#pragma once

#include "files/field_reader.h"
#include "grid/song.h"

namespace lunavox {

/// The song's stores of entries by line.
struct SongStores {
  decltype(Song::notes) notes;
  decltype(Song::values) values;
  decltype(Song::key_attributes) key_attributes;
};

/// Reads the groups of a song file into a song, one function a group, to be called in the order in
/// which they are declared. The song has its tracks already: each group is read for all of them,
/// whatever the file says of their number.
///
/// Every function throws RuntimeError: Input past end of file for a file that ends early, Overflow
/// for numbers that do not fit, Subscript out of range for counts that no song can have.
class SongReader {
 public:
  // The first versions of the format with what earlier ones lacked.
  static constexpr double kFirstWithPitch = 1.2;  ///< effect row 11, true curves, the XG lists
  static constexpr double kFirstWithBanks = 2.0;

  /// @param version  what the file's first line says
  /// @param old      where the song's stores are left that the file's take the place of
  SongReader(Song& song, FieldReader& fields, double version, SongStores& old)
      : song_(song), fields_(fields), version_(version), old_(old) {}

  /// Gives the `tracks` grid the file's row count, header row included.
  void read_row_count();
  void read_number_fields();
  /// Adds the file's bookmarks to the list; those that are there stay.
  void read_bookmarks();
  void read_banks();
  void read_effects_grid();
  void read_used_columns();
  /// Reads the note store afresh and shows it.
  void read_notes();
  void read_channels();
  void read_curves();
  void read_shown_effects();
  /// An index that its list does not have selects nothing.
  void read_xg_lists();

 private:
  void read_effects_column(int column);
  void write_setting(int column, int effect, std::string_view text);
  void read_old_curves();

  Song& song_;
  FieldReader& fields_;
  double version_;
  SongStores& old_;
};

}  // namespace lunavox

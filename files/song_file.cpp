#include "files/song_file.h"

#include "files/atomic_file.h"
#include "files/file_bytes.h"
#include "files/song_reader.h"
#include "files/song_writer.h"
#include "grid/runtime_error.h"
#include "grid/runtime_numbers.h"

#include <utility>

namespace lunavox {
namespace {

constexpr double kNewestVersion = 2.0;
constexpr double kOldestVersion = 1.1;

// Steps of the progress bar while a song is saved or opened.
constexpr int kSteps = 8;

/// The song as it was before a file was read into it. The large stores are not copied: the reader
/// leaves the old ones here when it puts the file's in their place.
class SongBefore {
 public:
  explicit SongBefore(Song& song) : rest_(copy_without_stores(song)) {}

  SongStores& stores() { return stores_; }

  void put_back(Song& song) {
    // Stores that the reader had not come to are still the song's.
    if (stores_.notes.last_row() < 0) std::swap(stores_.notes, song.notes);
    if (stores_.values.last_row() < 0) std::swap(stores_.values, song.values);
    if (stores_.key_attributes.last_row() < 0) {
      std::swap(stores_.key_attributes, song.key_attributes);
    }
    // Whoever watches the grids looks into the stores: these come first, and stay.
    put_stores(song, stores_);
    rest_.notes = song.notes;
    rest_.values = song.values;
    rest_.key_attributes = song.key_attributes;
    song = rest_;
  }

 private:
  static void put_stores(Song& song, SongStores& stores) {
    song.notes = std::move(stores.notes);
    song.values = std::move(stores.values);
    song.key_attributes = std::move(stores.key_attributes);
  }
  static Song copy_without_stores(Song& song) {
    SongStores stores = {std::exchange(song.notes, {}), std::exchange(song.values, {}),
                         std::exchange(song.key_attributes, {})};
    Song copy = song;
    put_stores(song, stores);
    return copy;
  }

  SongStores stores_;
  Song rest_;
};

/// Fills a track's effect column with the values of the curve that it shows: key values in red,
/// the others in black.
void show_effect_column(Song& song, int track) {
  const int shown = song.shown_effect.at(track);
  const int column = effect_column_of(track);
  for (int row = 1; row <= song.last_row(); ++row) {
    const bool key = song.key_attributes.at(track, shown, row) != 0;
    Cell cell = song.tracks.cell(row, column);
    cell.text = print_number(song.values.at(track, shown, row));
    cell.text_colour = key ? kKeyValue : kBlack;
    cell.background = kEffectCell;
    song.tracks.set_cell(row, column, cell);
  }
}

}  // namespace

SongFile::SongFile(Song& song, Flags& flags, Tracks& tracks, SongLength& length, Dialogs& dialogs,
                   ProgressBox& progress)
    : song_(song),
      flags_(flags),
      tracks_(tracks),
      length_(length),
      dialogs_(dialogs),
      progress_(progress) {}

void SongFile::procsave() {
  {
    LongOperation operation(progress_, song_.tracks, "saving...", kSteps);
    AtomicFile file(current_name.get());
    file.write(song_text(song_, TextGuard::kNone, [&](int step) { operation.set_value(step); }));
    file.commit();
    shared_index_ = song_.track_count + 1;
  }
  flags_.modified = false;
}

bool SongFile::procopen() {
  const std::string bytes = read_file(current_name.get());
  FieldReader fields(bytes);
  try {
    return read(fields);
  } catch (const RuntimeError& error) {
    throw RuntimeError(error.number(), current_name.get());
  }
}

bool SongFile::read(FieldReader& fields) {
  const double version = fields.number();
  const bool accepted = accept_version(version);
  if (accepted) read_or_put_back(fields, version);
  put_cursor_home();
  flags_.modified = false;
  return accepted;
}

void SongFile::read_or_put_back(FieldReader& fields, double version) {
  SongBefore before(song_);
  try {
    read_song(fields, version, before.stores());
  } catch (const RuntimeError&) {
    before.put_back(song_);
    length_.calcultime();
    flags_.song_loading = false;
    throw;
  }
}

bool SongFile::accept_version(double version) {
  if (version > kNewestVersion) {
    dialogs_.message({"This file has been created with Lunavox " + plain_number(shared_index_) +
                          " Please download a more recent version of Lunavox at " +
                          kDownloadAddress,
                      "", Icon::kNone, Buttons::kOk});
    return false;
  }
  if (version < kOldestVersion) {
    dialogs_.message(
        {"Sorry incompatibility with Lunavox 1.0 alpha files !", "", Icon::kNone, Buttons::kOk});
    return false;
  }
  return true;
}

void SongFile::read_song(FieldReader& fields, double version, SongStores& old) {
  flags_.song_loading = true;
  const int track_count = fields.short_integer();
  song_.tracks.set_rows(3);
  add_missing_tracks(track_count);
  SongReader reader(song_, fields, version, old);
  read_groups(reader);
  song_.tracks.set_column(1);
  length_.numero();
  length_.numberchange();
  length_.calcultime();
  show_effects();
  if (starteffect_) starteffect_();
  flags_.song_loading = false;
}

void SongFile::add_missing_tracks(int track_count) {
  // The tables for tracks would refuse the seventeenth; a file that wants more is refused before
  // the grids have grown for nothing.
  if (track_count >= kTrackSlots) throw RuntimeError(RuntimeError::kSubscriptOutOfRange);
  if (track_count <= song_.track_count) return;
  LongOperation operation(progress_, song_.tracks, "adding instrument track...", track_count);
  while (song_.track_count < track_count) {
    tracks_.append_instrument_columns();
    operation.set_value(song_.track_count);
  }
}

void SongFile::read_groups(SongReader& reader) {
  LongOperation operation(progress_, song_.tracks, "opening...", kSteps);
  reader.read_row_count();
  reader.read_number_fields();
  reader.read_bookmarks();
  reader.read_banks();
  operation.set_value(2);
  reader.read_effects_grid();
  operation.set_value(3);
  reader.read_used_columns();
  reader.read_notes();
  operation.set_value(5);
  reader.read_channels();
  reader.read_curves();
  operation.set_value(7);
  reader.read_shown_effects();
  reader.read_xg_lists();
}

void SongFile::show_effects() {
  LongOperation operation(progress_, song_.tracks, "showing effect... track", song_.track_count);
  for (shared_index_ = 1; shared_index_ <= song_.track_count; ++shared_index_) {
    operation.set_caption("showing effect... track " + print_number(shared_index_));
    operation.set_value(shared_index_);
    show_effect_column(song_, shared_index_);
  }
}

void SongFile::put_cursor_home() {
  song_.tracks.set_cursor(1, 1);
}

}  // namespace lunavox

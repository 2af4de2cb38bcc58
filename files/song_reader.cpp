#include "files/song_reader.h"

#include "grid/runtime_error.h"
#include "midi/xg_effects.h"

#include <algorithm>
#include <utility>

namespace lunavox {
namespace {

// Rows of the `tracks` grid, header row included: as few and as many as the length field allows,
// and the one-line songs that it does not.
constexpr int kFewestRows = 2;
constexpr int kMostRows = 3001;

constexpr int kNoItem = -1;

// What the curves that old files hold under other meanings are set to.
constexpr std::int16_t kOldVariation = 1;
constexpr std::int16_t kOldAttackAndRelease = 40;

int item_or_none(int index, XgList list) {
  return index >= 0 && index < static_cast<int>(xg_names(list).size()) ? index : kNoItem;
}

/// Reads a value of an old file, which need not even be a number where it has no meaning any more.
std::int16_t old_value(int effect, FieldReader& fields) {
  if (effect <= kChorus) return fields.short_integer();
  fields.text();
  return effect == kVariation ? kOldVariation : kOldAttackAndRelease;
}

/// A text without its outer spaces, which a quoted field keeps.
std::string_view trimmed(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

/// Puts an empty store of some rows in a store's place.
template <class Store>
void replace(Store& store, Store& old, int rows) {
  Store fresh;
  fresh.redimension(rows);
  old = std::exchange(store, std::move(fresh));
}

}  // namespace

void SongReader::read_row_count() {
  const int rows = fields_.integer();
  if (rows < kFewestRows || rows > kMostRows) {
    throw RuntimeError(RuntimeError::kSubscriptOutOfRange);
  }
  song_.tracks.set_rows(rows);
}

void SongReader::read_number_fields() {
  for (NumberField* field : {&song_.step, &song_.bpm, &song_.length, &song_.number}) {
    field->put(std::string(fields_.text()));
  }
}

void SongReader::read_bookmarks() {
  std::vector<Bookmark> bookmarks = song_.bookmarks;
  for (int count = fields_.short_integer(); count > 0; --count) {
    std::string name(fields_.text());
    bookmarks.push_back({std::move(name), fields_.integer()});
  }
  song_.bookmarks = bookmarks;
}

void SongReader::read_banks() {
  if (version_ < kFirstWithBanks) {
    song_.bank.fill(0);
    return;
  }
  for (int t = 1; t <= song_.track_count; ++t) song_.bank.at(t) = fields_.short_integer();
}

void SongReader::read_effects_grid() {
  for (int column = 1; column <= kSettingsPerTrack * song_.track_count; ++column) {
    read_effects_column(column);
  }
}

void SongReader::read_effects_column(int column) {
  for (int e = kFirstEffect; e <= kRelease; ++e) write_setting(column, e, fields_.text());
  if (version_ >= kFirstWithPitch) {
    write_setting(column, kPitch, fields_.text());
  } else {
    write_setting(column, kPitch,
                  setting_of_effects_column(column) == Setting::kStartValue ? "64" : kNo);
  }
}

void SongReader::write_setting(int column, int effect, std::string_view text) {
  song_.effects.set_text(effect, column, text);
  if (setting_of_effects_column(column) != Setting::kActive) return;
  const int track = track_of_effects_column(column);
  song_.active.at(track)[static_cast<std::size_t>(effect)] = trimmed(text) == kYes;
}

void SongReader::read_used_columns() {
  for (int t = 1; t <= song_.track_count; ++t) {
    const std::int16_t used = fields_.short_integer();
    song_.used_columns.at(t) = used;
    if (used > kNoteColumns) throw RuntimeError(RuntimeError::kSubscriptOutOfRange);
    if (version_ >= kFirstWithPitch) continue;
    for (int line = used * song_.last_row(); line > 0; --line) fields_.text();
  }
}

void SongReader::read_notes() {
  replace(song_.notes, old_.notes, song_.tracks.rows());
  for (int t = 1; t <= song_.track_count; ++t) {
    for (int column = 1; column <= song_.used_columns.at(t); ++column) {
      auto& entries = song_.notes.column(t, column);
      for (int row = 1; row <= song_.last_row(); ++row) {
        entries[static_cast<std::size_t>(row)] = fields_.text();
      }
    }
    song_.show_track_entries(t);
  }
}

void SongReader::read_channels() {
  for (int t = 1; t <= song_.track_count; ++t) song_.channel.at(t) = fields_.short_integer();
}

void SongReader::read_curves() {
  replace(song_.values, old_.values, song_.tracks.rows());
  replace(song_.key_attributes, old_.key_attributes, song_.tracks.rows());
  if (version_ < kFirstWithPitch) {
    read_old_curves();
    return;
  }
  const auto last = static_cast<std::size_t>(song_.last_row());
  for (int t = 1; t <= song_.track_count; ++t) {
    for (int e = kFirstEffect; e <= kLastEffect; ++e) {
      auto& values = song_.values.column(t, e);
      auto& keys = song_.key_attributes.column(t, e);
      for (std::size_t row = 1; row <= last; ++row) {
        values[row] = fields_.short_integer();
        keys[row] = fields_.flag() ? 1 : 0;
      }
    }
  }
}

void SongReader::read_old_curves() {
  for (int t = 1; t <= song_.track_count; ++t) {
    for (int e = kFirstEffect; e <= kRelease; ++e) {
      for (int row = 1; row <= song_.last_row(); ++row) {
        song_.values.at(t, e, row) = old_value(e, fields_);
        const bool key = fields_.flag();
        song_.key_attributes.at(t, e, row) = key && row == 1 ? 1 : 0;
      }
    }
  }
}

void SongReader::read_shown_effects() {
  for (int t = 1; t <= song_.track_count; ++t) song_.shown_effect.at(t) = fields_.short_integer();
}

void SongReader::read_xg_lists() {
  if (version_ < kFirstWithPitch) {
    song_.reverb = 0;
    song_.chorus = 0;
    song_.variation = 0;
    return;
  }
  song_.reverb = item_or_none(fields_.integer(), XgList::kReverb);
  song_.chorus = item_or_none(fields_.integer(), XgList::kChorus);
  song_.variation = item_or_none(fields_.integer(), XgList::kVariation);
}

}  // namespace lunavox

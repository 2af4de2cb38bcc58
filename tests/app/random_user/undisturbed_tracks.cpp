#include "undisturbed_tracks.h"

#include <algorithm>

namespace lunavox::test {
namespace {

/// Deeds that put another song in the place of this one, or may.
bool on_whole_song(Deed deed) {
  switch (deed) {
    case Deed::kNew:
    case Deed::kOpen:
    case Deed::kOpenOver:
    case Deed::kOpenRecent:
    case Deed::kOpenDamaged:
    case Deed::kTidyUp:
      return true;
    default:
      return false;
  }
}

/// Deeds that are there to change what is at the cursor.
bool edits(Deed deed) {
  switch (deed) {
    case Deed::kPressKey:
    case Deed::kCut:
    case Deed::kPaste:
    case Deed::kVelocityValue:
    case Deed::kVelocityPercent:
    case Deed::kTranspose:
      return true;
    default:
      return false;
  }
}

/// Deeds that let the editor take what has been played, and write it at the cursor if it records.
bool takes_notes(Deed deed) {
  switch (deed) {
    case Deed::kReleaseKey:
    case Deed::kReceive:
    case Deed::kWait:
    case Deed::kLetPlay:
      return true;
    default:
      return false;
  }
}

/// Compares the rows that both stores have: a song's length may be changed.
/// @param row_count  with row 0
template <class Column>
bool same_rows(const Column& one, const Column& other, int row_count) {
  return std::equal(one.begin(), one.begin() + row_count, other.begin());
}

int common_rows(const CellGrid& one, const CellGrid& other) {
  return std::min(one.rows(), other.rows());
}

bool same_notes(const Song& one, const Song& other, int track) {
  const int rows = common_rows(one.tracks, other.tracks);
  for (int column = 0; column < kNoteSlots; ++column) {
    const auto& entries = one.notes.column(track, column);
    if (!same_rows(entries, other.notes.column(track, column), rows)) return false;
  }
  return true;
}

bool same_curves(const Song& one, const Song& other, int track) {
  const int rows = common_rows(one.tracks, other.tracks);
  for (int effect = kFirstEffect; effect <= kLastEffect; ++effect) {
    const auto& values = one.values.column(track, effect);
    if (!same_rows(values, other.values.column(track, effect), rows)) return false;
    const auto& keys = one.key_attributes.column(track, effect);
    if (!same_rows(keys, other.key_attributes.column(track, effect), rows)) return false;
  }
  return true;
}

bool same_settings(const Song& one, const Song& other, int track) {
  return one.channel.at(track) == other.channel.at(track) &&
         one.bank.at(track) == other.bank.at(track) &&
         one.used_columns.at(track) == other.used_columns.at(track) &&
         one.shown_effect.at(track) == other.shown_effect.at(track) &&
         one.active.at(track) == other.active.at(track);
}

/// @param columns  of a track in the grid
bool same_cells(const CellGrid& one, const CellGrid& other, int track, int columns) {
  for (int column = columns * (track - 1) + 1; column <= columns * track; ++column) {
    if (one.column_width(column) != other.column_width(column)) return false;
    for (int row = 0; row < common_rows(one, other); ++row) {
      if (!(one.cell(row, column) == other.cell(row, column))) return false;
    }
  }
  return true;
}

/// What of a track differs, empty where nothing does.
std::string difference(const Song& one, const Song& other, int track) {
  if (!same_notes(one, other, track)) return "notes";
  if (!same_curves(one, other, track)) return "curves";
  if (!same_settings(one, other, track)) return "settings";
  if (!same_cells(one.tracks, other.tracks, track, kColumnsPerTrack)) return "cells";
  if (!same_cells(one.effects, other.effects, track, kSettingsPerTrack)) return "effects cells";
  return same_cells(one.channels, other.channels, track, 1) ? "" : "header";
}

}  // namespace

void UndisturbedTracks::remember(const Editor& editor, const Action& action) {
  before_.reset();
  if (on_whole_song(action.deed)) return;
  before_.emplace(editor.song);
  deed_ = action.deed;
  cursor_track_ = track_of_column(editor.song.tracks.column());
  // What is being typed is taken when the cursor leaves its cell, by whatever sends it away.
  at_cursor_ =
      editor.typing_mode.typing() || edits(deed_) || (takes_notes(deed_) && editor.flags.recording);
  clicked_ = 0;
  if (deed_ == Deed::kClickEffects) {
    const int column = action.a % editor.song.effects.columns();
    if (column > 0) clicked_ = track_of_effects_column(column);
  }
}

bool UndisturbedTracks::has_business_with(int track) const {
  // A block is of one track's columns, and may be pasted over an effect column.
  const bool pasted_over = deed_ == Deed::kPaste && track == cursor_track_ + 1;
  return (at_cursor_ && track == cursor_track_) || pasted_over || track == clicked_;
}

std::string UndisturbedTracks::check(const Editor& editor) const {
  if (!before_) return {};
  if (deed_ != Deed::kEnterField && editor.song.last_row() != before_->last_row()) {
    return "the length changed";
  }
  const bool of_tracks = deed_ == Deed::kAddTrack || deed_ == Deed::kDeleteTrack;
  if (!of_tracks && editor.song.track_count != before_->track_count) {
    return "the number of tracks changed";
  }
  for (int t = 1; t <= std::min(before_->track_count, editor.song.track_count); ++t) {
    if (has_business_with(t)) continue;
    const std::string changed = difference(*before_, editor.song, t);
    if (!changed.empty()) return "the " + changed + " of track " + std::to_string(t) + " changed";
  }
  return {};
}

}  // namespace lunavox::test

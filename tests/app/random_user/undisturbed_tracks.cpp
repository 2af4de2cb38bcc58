#include "undisturbed_tracks.h"

#include <algorithm>

namespace lunavox::test {
namespace {

bool on_whole_song(Deed deed) {
  switch (deed) {
    case Deed::kEnterField:  // the length, among others
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

/// Deeds that only tell, choose or write files.
bool changes_no_track(Deed deed) {
  switch (deed) {
    case Deed::kSelect:
    case Deed::kScroll:
    case Deed::kTickOption:
    case Deed::kCopy:
    case Deed::kAddTrack:
    case Deed::kDeleteTrack:
    case Deed::kAddBookmark:
    case Deed::kDeleteBookmark:
    case Deed::kChooseXg:
    case Deed::kChooseOutput:
    case Deed::kSave:
    case Deed::kSaveAs:
    case Deed::kSaveNowhere:
    case Deed::kExport:
    case Deed::kLoseProgram:
      return true;
    default:
      return false;
  }
}

bool same_notes(const Song& one, const Song& other, int track) {
  for (int column = 0; column < kNoteSlots; ++column) {
    if (one.notes.column(track, column) != other.notes.column(track, column)) return false;
  }
  return true;
}

bool same_curves(const Song& one, const Song& other, int track) {
  for (int effect = kFirstEffect; effect <= kLastEffect; ++effect) {
    if (one.values.column(track, effect) != other.values.column(track, effect)) return false;
    const auto& keys = one.key_attributes.column(track, effect);
    if (keys != other.key_attributes.column(track, effect)) return false;
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
    for (int row = 0; row < one.rows(); ++row) {
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
  // What is being typed is taken when the cursor leaves its cell, by whatever sends it away.
  const bool changes = editor.typing_mode.typing() || !changes_no_track(action.deed);
  at_cursor_ = changes ? track_of_column(editor.song.tracks.column()) : 0;
  // A block is of one track's columns, and may be pasted over an effect column.
  pasted_over_ = action.deed == Deed::kPaste ? at_cursor_ + 1 : 0;
  clicked_ = 0;
  if (action.deed == Deed::kClickEffects) {
    const int column = action.a % editor.song.effects.columns();
    clicked_ = (column + kSettingsPerTrack - 1) / kSettingsPerTrack;
  }
}

bool UndisturbedTracks::has_business_with(int track) const {
  return track == at_cursor_ || track == pasted_over_ || track == clicked_;
}

std::string UndisturbedTracks::check(const Editor& editor) const {
  if (!before_) return {};
  for (int t = 1; t <= std::min(before_->track_count, editor.song.track_count); ++t) {
    if (has_business_with(t)) continue;
    const std::string changed = difference(*before_, editor.song, t);
    if (!changed.empty()) return "the " + changed + " of track " + std::to_string(t) + " changed";
  }
  return {};
}

}  // namespace lunavox::test

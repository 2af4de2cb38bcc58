#pragma once

namespace lunavox {

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
// What the cells of kActive and kShow say, in song files too.
inline constexpr const char* kYes = "yes";
inline constexpr const char* kNo = "no";

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
/// The track and the setting that an `effects` column holds.
/// @param column  from 1
int track_of_effects_column(int column);
Setting setting_of_effects_column(int column);

/// Channel index of a track: 9 for the drum track, otherwise the track number minus 2.
int channel_of_track(int track);

}  // namespace lunavox

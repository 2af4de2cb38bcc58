#include "grid/track_columns.h"

namespace lunavox {

int track_of_column(int column) {
  return (column - 1) / kColumnsPerTrack + 1;
}

int sub_column_of(int column) {
  return column % kColumnsPerTrack;
}

int first_column_of(int track) {
  return kColumnsPerTrack * (track - 1) + 1;
}

int effect_column_of(int track) {
  return kColumnsPerTrack * track;
}

int effects_column(int track, Setting setting) {
  return kSettingsPerTrack * (track - 1) + static_cast<int>(setting);
}

int track_of_effects_column(int column) {
  return (column - 1) / kSettingsPerTrack + 1;
}

Setting setting_of_effects_column(int column) {
  return static_cast<Setting>((column - 1) % kSettingsPerTrack + 1);
}

int channel_of_track(int track) {
  return track == kDrumTrack ? 9 : track - 2;
}

}  // namespace lunavox

#include "grid/track_columns.h"

#include <gtest/gtest.h>

namespace lunavox {
namespace {

TEST(TrackColumns, NineColumnsMakeATrackAndTheNinthIsItsEffectColumn) {
  EXPECT_EQ(track_of_column(1), 1);
  EXPECT_EQ(track_of_column(8), 1);
  EXPECT_EQ(track_of_column(9), 1);
  EXPECT_EQ(track_of_column(10), 2);
  EXPECT_EQ(track_of_column(90), 10);
  EXPECT_EQ(sub_column_of(1), 1);
  EXPECT_EQ(sub_column_of(8), 8);
  EXPECT_EQ(sub_column_of(9), 0);
  EXPECT_EQ(sub_column_of(10), 1);
  EXPECT_EQ(sub_column_of(90), 0);
}

TEST(TrackColumns, TheLineNumberColumnCountsAsTrackOneAndAnEffectColumn) {
  EXPECT_EQ(track_of_column(0), 1);
  EXPECT_EQ(sub_column_of(0), 0);
}

TEST(TrackColumns, TracksKnowTheirColumns) {
  EXPECT_EQ(first_column_of(1), 1);
  EXPECT_EQ(effect_column_of(1), 9);
  EXPECT_EQ(first_column_of(10), 82);
  EXPECT_EQ(effect_column_of(10), 90);
  EXPECT_EQ(effects_column(1, Setting::kActive), 1);
  EXPECT_EQ(effects_column(1, Setting::kStartValue), 2);
  EXPECT_EQ(effects_column(1, Setting::kShow), 3);
  EXPECT_EQ(effects_column(4, Setting::kActive), 10);
  EXPECT_EQ(effects_column(10, Setting::kShow), 30);
}

TEST(TrackColumns, TheDrumTrackPlaysOnChannelTenAndTheOthersOnOneToNine) {
  EXPECT_EQ(channel_of_track(1), 9);
  EXPECT_EQ(channel_of_track(2), 0);
  EXPECT_EQ(channel_of_track(10), 8);
}

TEST(TrackColumns, AnEffectsColumnKnowsItsTrackAndItsSetting) {
  EXPECT_EQ(track_of_effects_column(1), 1);
  EXPECT_EQ(track_of_effects_column(3), 1);
  EXPECT_EQ(track_of_effects_column(4), 2);
  EXPECT_EQ(track_of_effects_column(30), 10);
  EXPECT_EQ(setting_of_effects_column(1), Setting::kActive);
  EXPECT_EQ(setting_of_effects_column(2), Setting::kStartValue);
  EXPECT_EQ(setting_of_effects_column(3), Setting::kShow);
  EXPECT_EQ(setting_of_effects_column(30), Setting::kShow);
}

}  // namespace
}  // namespace lunavox

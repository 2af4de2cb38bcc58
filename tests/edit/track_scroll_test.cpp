#include "edit/track_scroll.h"

#include "tests/support/song_fixture.h"

namespace lunavox::test {
namespace {

using TrackScrollTest = SongFixture;

TEST_F(TrackScrollTest, ScrollingShowsWholeTracks) {
  TrackScroll tracks_scroll(song.tracks, screen, kColumnsPerTrack);
  TrackScroll effects_scroll(song.effects, screen, kSettingsPerTrack);
  song.tracks.set_left_column(4);
  EXPECT_EQ(song.tracks.left_column(), 1);
  screen.defilchan = 2;
  EXPECT_EQ(song.tracks.left_column(), 10);
  EXPECT_EQ(song.effects.left_column(), 4);
  song.effects.set_left_column(1);
  EXPECT_EQ(song.effects.left_column(), 4);
  song.tracks.set_left_column(18);
  EXPECT_EQ(song.tracks.left_column(), 10);
}

TEST_F(TrackScrollTest, AScrollBarBehindTheLastTrackScrollsNothing) {
  TrackScroll scroll(song.tracks, screen, kColumnsPerTrack);
  screen.defilchan = 5;
  EXPECT_EQ(song.tracks.left_column(), 1);
}

TEST_F(TrackScrollTest, FirstVisibleColumns) {
  EXPECT_EQ(first_visible_column(1, 9), 1);
  EXPECT_EQ(first_visible_column(3, 9), 19);
  EXPECT_EQ(first_visible_column(3, 3), 7);
}

}  // namespace
}  // namespace lunavox::test

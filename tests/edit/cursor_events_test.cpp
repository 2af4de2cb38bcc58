#include "edit/grid_events.h"

#include "tests/support/song_fixture.h"

namespace lunavox::test {
namespace {

class GridEventsTest : public SongFixture {
 protected:
  Property<bool> curs;
  CursorEvents events{song, flags, curs};
};

TEST_F(GridEventsTest, TheCurrentTrackAndSubColumnFollowTheCursor) {
  song.tracks.set_cursor(3, 12);
  EXPECT_EQ(song.current_track, 2);
  EXPECT_EQ(song.current_sub_column, 3);
  song.tracks.set_column(9);
  EXPECT_EQ(song.current_track, 1);
  EXPECT_EQ(song.current_sub_column, 0);
}

TEST_F(GridEventsTest, WhileASongIsBuiltTheCurrentTrackStays) {
  flags.song_building = true;
  song.tracks.set_cursor(3, 12);
  EXPECT_EQ(song.current_track, 1);
}

TEST_F(GridEventsTest, TheCursorsLineIsTheTopOneWhilePlayingAndFollowing) {
  song.tracks.set_row(5);
  EXPECT_EQ(song.tracks.top_row(), 1);
  flags.playing = true;
  song.tracks.set_row(6);
  EXPECT_EQ(song.tracks.top_row(), 1);
  curs = true;
  song.tracks.set_row(7);
  EXPECT_EQ(song.tracks.top_row(), 7);
  flags.playing = false;
  song.tracks.set_row(9);
  EXPECT_EQ(song.tracks.top_row(), 7);
}

TEST_F(GridEventsTest, ScrollingShowsWholeTracks) {
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

TEST_F(GridEventsTest, AScrollBarBehindTheLastTrackScrollsNothing) {
  TrackScroll scroll(song.tracks, screen, kColumnsPerTrack);
  screen.defilchan = 5;
  EXPECT_EQ(song.tracks.left_column(), 1);
}

TEST_F(GridEventsTest, FirstVisibleColumns) {
  EXPECT_EQ(first_visible_column(1, 9), 1);
  EXPECT_EQ(first_visible_column(3, 9), 19);
  EXPECT_EQ(first_visible_column(3, 3), 7);
}

}  // namespace
}  // namespace lunavox::test

#include "edit/cursor_events.h"

#include "tests/support/song_fixture.h"

namespace lunavox::test {
namespace {

class CursorEventsTest : public SongFixture {
 protected:
  Property<bool> curs;
  CursorEvents events{song, flags, curs};
};

TEST_F(CursorEventsTest, TheCurrentTrackAndSubColumnFollowTheCursor) {
  song.tracks.set_cursor(3, 12);
  EXPECT_EQ(song.current_track, 2);
  EXPECT_EQ(song.current_sub_column, 3);
  song.tracks.set_column(9);
  EXPECT_EQ(song.current_track, 1);
  EXPECT_EQ(song.current_sub_column, 0);
}

TEST_F(CursorEventsTest, WhileASongIsBuiltTheCurrentTrackStays) {
  flags.song_building = true;
  song.tracks.set_cursor(3, 12);
  EXPECT_EQ(song.current_track, 1);
}

TEST_F(CursorEventsTest, TheCursorsLineIsTheTopOneWhilePlayingAndFollowing) {
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

}  // namespace
}  // namespace lunavox::test

#include "grid/status_text.h"

#include "tests/support/song_parts.h"

#include <gtest/gtest.h>

namespace lunavox {
namespace {

/// Two tracks of 64 lines, four a beat.
struct CursorText : testing::Test {
  test::SongParts model{2};
  Song& song = model.song;
};

TEST_F(CursorText, LinesCountFromNoneAndBeatsFromOne) {
  song.tracks.set_cursor(1, 1);
  EXPECT_EQ(cursor_line_text(song), "Line 0 of 64   Beat 1");
  song.tracks.set_cursor(9, 1);
  EXPECT_EQ(cursor_line_text(song), "Line 8 of 64   Beat 3");
}

TEST_F(CursorText, ANoteHasANameAnOctaveAndAVelocity) {
  song.write_entry(2, 3, 5, "643D90");
  song.tracks.set_cursor(5, first_column_of(2) + 2);
  EXPECT_EQ(cursor_cell_text(song), "Track 2 #3: C#5 velocity 100");
}

TEST_F(CursorText, ACellWithoutANoteSaysSo) {
  song.tracks.set_cursor(5, first_column_of(2));
  EXPECT_EQ(cursor_cell_text(song), "Track 2 #1: empty");
  song.write_entry(2, 1, 5, "stop");
  EXPECT_EQ(cursor_cell_text(song), "Track 2 #1: note off");
}

TEST_F(CursorText, AnEffectColumnTellsTheShownCurvesValueAndWhetherItWasTyped) {
  song.tracks.set_cursor(4, effect_column_of(2));
  song.shown_effect.at(2) = kPan;
  song.values.at(2, kPan, 4) = 70;
  EXPECT_EQ(cursor_cell_text(song), "Track 2 Pan: 70");
  song.key_attributes.at(2, kPan, 4) = 1;
  EXPECT_EQ(cursor_cell_text(song), "Track 2 Pan: 70 (key)");
  song.shown_effect.at(2) = 0;
  EXPECT_EQ(cursor_cell_text(song), "Track 2");
}

TEST_F(CursorText, NothingIsToldOfCaptions) {
  song.tracks.set_cursor(0, 1);
  EXPECT_EQ(cursor_line_text(song), "");
  EXPECT_EQ(cursor_cell_text(song), "");
  song.tracks.set_cursor(1, 0);
  EXPECT_EQ(cursor_cell_text(song), "");
}

TEST(OctaveText, HasASignButForNone) {
  EXPECT_EQ(octave_text(0), "Octave 0");
  EXPECT_EQ(octave_text(24), "Octave +2");
  EXPECT_EQ(octave_text(-12), "Octave -1");
}

}  // namespace
}  // namespace lunavox

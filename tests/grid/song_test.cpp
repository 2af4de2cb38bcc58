#include "grid/song.h"

#include "tests/support/error_of.h"
#include "tests/support/recording_grid_observer.h"

#include <utility>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lunavox {
namespace {

/// A song of some tracks' width and some lines, without the tracks' settings.
Song empty_song(int track_count, int lines) {
  Song song;
  song.track_count = track_count;
  song.tracks.set_columns(9 * track_count + 1);
  song.tracks.set_rows(lines + 1);
  song.resize_stores();
  return song;
}

template <class Call>
void expect_subscript_error(Call call) {
  EXPECT_EQ(test::error_of(call), RuntimeError::kSubscriptOutOfRange);
}

TEST(Song, StartsWithItsCaptionsAndNoTrack) {
  const Song song;
  EXPECT_EQ(song.track_count, 0);
  EXPECT_EQ(song.tracks.columns(), 1);
  EXPECT_EQ(song.channels.columns(), 1);
  EXPECT_EQ(song.effects.columns(), 1);
  EXPECT_EQ(song.effects.rows(), 12);
  EXPECT_EQ(song.tracks.text(0, 0), "Note");
  EXPECT_EQ(song.channels.text(0, 0), "Track");
  EXPECT_EQ(song.effects.text(0, 0), "Effect");
  int row = 0;
  for (const char* name : {"Instrument", "Volume", "Pan", "Modulation", "Brightness", "Reverb",
                           "Chorus", "Variation", "Attack", "Release", "Pitch"}) {
    EXPECT_EQ(song.effects.text(++row, 0), name);
  }
}

TEST(Song, EveryTrackSlotShowsTheVolumeAtFirst) {
  const Song song;
  for (int track = 0; track <= 16; ++track) EXPECT_EQ(song.shown_effect.at(track), 2) << track;
}

TEST(Song, TheXgChoicesStartAtTheirFirstItems) {
  const Song song;
  EXPECT_EQ(song.reverb, 0);
  EXPECT_EQ(song.chorus, 0);
  EXPECT_EQ(song.variation, 0);
}

TEST(SongStores, HoldTracks0To16Columns0To8AndEffects0To11OnRows0ToTheRowCount) {
  Song song = empty_song(1, 16);
  EXPECT_EQ(song.notes.at(16, 8, 17), "");
  EXPECT_EQ(song.notes.at(0, 0, 0), "");
  EXPECT_EQ(song.values.at(16, 11, 17), 0);
  EXPECT_EQ(song.values.at(0, 0, 0), 0);
  EXPECT_EQ(song.key_attributes.at(16, 11, 17), 0);
  EXPECT_EQ(song.key_attributes.at(0, 0, 0), 0);
}

TEST(SongStores, AnIndexOutsideTheBoundsIsASubscriptOutOfRange) {
  Song song = empty_song(1, 16);
  expect_subscript_error([&] { song.notes.at(17, 1, 1); });
  expect_subscript_error([&] { song.notes.at(-1, 1, 1); });
  expect_subscript_error([&] { song.notes.at(1, 9, 1); });
  expect_subscript_error([&] { song.notes.at(1, -1, 1); });
  expect_subscript_error([&] { song.notes.at(1, 1, 18); });
  expect_subscript_error([&] { song.notes.at(1, 1, -1); });
  expect_subscript_error([&] { song.values.at(17, 1, 1); });
  expect_subscript_error([&] { song.values.at(1, 12, 1); });
  expect_subscript_error([&] { song.values.at(1, 1, 18); });
  expect_subscript_error([&] { song.key_attributes.at(17, 1, 1); });
  expect_subscript_error([&] { song.key_attributes.at(1, 12, 1); });
  expect_subscript_error([&] { song.key_attributes.column(17, 1); });
  expect_subscript_error([&] { std::as_const(song).notes.at(17, 1, 1); });
  expect_subscript_error([&] { std::as_const(song).notes.column(1, 9); });
}

TEST(SongStores, PerTrackTablesHaveSlots0To16) {
  Song song;
  song.channel.at(0) = 1;
  song.bank.at(16) = 2;
  EXPECT_EQ(song.bank.at(16), 2);
  expect_subscript_error([&] { song.channel.at(17); });
  expect_subscript_error([&] { song.bank.at(17); });
  expect_subscript_error([&] { song.used_columns.at(-1); });
  expect_subscript_error([&] { song.shown_effect.at(17); });
  expect_subscript_error([&] { song.active.at(17); });
}

TEST(SongStores, ResizingKeepsTheLinesThatRemainAndEmptiesNewOnes) {
  Song song = empty_song(1, 4);
  song.notes.at(1, 1, 4) = "643C99";
  song.values.at(1, 2, 4) = 99;
  song.key_attributes.at(1, 2, 4) = 1;
  song.tracks.set_rows(9);
  song.resize_stores();
  EXPECT_EQ(song.notes.at(1, 1, 4), "643C99");
  EXPECT_EQ(song.values.at(1, 2, 4), 99);
  EXPECT_EQ(song.key_attributes.at(1, 2, 4), 1);
  EXPECT_EQ(song.notes.at(1, 1, 5), "");
  EXPECT_EQ(song.key_attributes.at(1, 2, 9), 0);
}

TEST(SongStores, LinesCutByAShorteningDoNotComeBack) {
  Song song = empty_song(1, 8);
  for (int row = 1; row <= 8; ++row) {
    song.notes.at(1, 1, row) = "643C99";
    song.key_attributes.at(1, 2, row) = 1;
  }
  song.tracks.set_rows(5);
  song.resize_stores();
  EXPECT_EQ(song.notes.at(1, 1, 4), "643C99");
  EXPECT_EQ(song.notes.at(1, 1, 5), "");
  song.tracks.set_rows(9);
  song.resize_stores();
  for (int row = 5; row <= 8; ++row) {
    EXPECT_EQ(song.notes.at(1, 1, row), "") << row;
    EXPECT_EQ(song.key_attributes.at(1, 2, row), 0) << row;
  }
}

TEST(SongStores, RedimensioningEmptiesEverything) {
  Song song = empty_song(1, 4);
  song.notes.at(1, 1, 1) = "643C99";
  song.values.at(16, 11, 1) = 5;
  song.notes.redimension(7);
  song.values.redimension(7);
  EXPECT_EQ(song.notes.last_row(), 7);
  EXPECT_EQ(song.notes.at(1, 1, 1), "");
  EXPECT_EQ(song.values.at(16, 11, 1), 0);
}

TEST(Song, TheLastRowIsOneBelowTheRowCount) {
  EXPECT_EQ(empty_song(1, 2).last_row(), 2);
  EXPECT_EQ(empty_song(1, 3000).last_row(), 3000);
}

TEST(ActualTrack, DerivesTrackAndSubColumnFromTheCursorsColumn) {
  Song song = empty_song(3, 4);
  song.tracks.set_cursor(2, 18);
  song.actualtrack();
  EXPECT_EQ(song.current_track, 2);
  EXPECT_EQ(song.current_sub_column, 0);
  song.tracks.set_cursor(3, 19);
  song.actualtrack();
  EXPECT_EQ(song.current_track, 3);
  EXPECT_EQ(song.current_sub_column, 1);
}

TEST(Calculnote, GivesOctaveIndexAndNameOfTheCurrentNote) {
  Song song = empty_song(2, 4);
  song.notes.at(2, 3, 4) = "7F7F90";
  song.tracks.set_cursor(4, 12);
  song.actualtrack();
  song.calculnote();
  EXPECT_EQ(song.octave, 10);
  EXPECT_EQ(song.note_index, 7);
  EXPECT_EQ(song.note_name, "G  ");
  song.notes.at(2, 3, 4) = "643D90";
  song.calculnote();
  EXPECT_EQ(song.octave, 5);
  EXPECT_EQ(song.note_index, 1);
  EXPECT_EQ(song.note_name, "C#");
}

TEST(Calculnote, WorksOnTheTrackThatActualtrackLeftCurrent) {
  Song song = empty_song(2, 4);
  song.notes.at(1, 1, 1) = "643C99";
  song.notes.at(2, 1, 1) = "643E90";
  song.tracks.set_cursor(1, 1);
  song.actualtrack();
  song.tracks.set_column(10);
  song.calculnote();
  EXPECT_EQ(song.note_name, "C  ");
}

TEST(ShowEntry, ANoteShowsItsNameAndOctaveInTheColourOfItsVelocity) {
  Song song = empty_song(2, 4);
  song.notes.at(2, 3, 4) = "403D90";
  song.show_entry(2, 3, 4);
  EXPECT_EQ(song.tracks.text(4, 12), "C#5");
  EXPECT_EQ(song.tracks.cell(4, 12).text_colour, (Colour{128, 254, 128}));
  song.notes.at(2, 3, 4) = "7F3C90";
  song.show_entry(2, 3, 4);
  EXPECT_EQ(song.tracks.text(4, 12), "C  5");
  EXPECT_EQ(song.tracks.cell(4, 12).text_colour, (Colour{254, 2, 2}));
}

TEST(ShowEntry, StopAndEmptyShowAsTheyAreAndLeaveTheColour) {
  Song song = empty_song(1, 4);
  song.notes.at(1, 8, 1) = "7F3C99";
  song.show_entry(1, 8, 1);
  song.notes.at(1, 8, 1) = "stop";
  song.show_entry(1, 8, 1);
  EXPECT_EQ(song.tracks.cell(1, 8), (Cell{"stop", {254, 2, 2}, {0, 0, 0}, Alignment::kLeft}));
  song.notes.at(1, 8, 1) = "";
  song.show_entry(1, 8, 1);
  EXPECT_EQ(song.tracks.cell(1, 8), (Cell{"", {254, 2, 2}, {0, 0, 0}, Alignment::kLeft}));
}

TEST(ShowEntry, ATracksEntriesAreShownInItsEightNoteColumnsOnly) {
  Song song = empty_song(2, 2);
  song.tracks.set_text(1, 11, "old");
  song.tracks.set_text(1, 18, " 127");
  song.notes.at(2, 0, 1) = "643C90";
  song.notes.at(2, 1, 1) = "643C90";
  song.notes.at(2, 8, 2) = "stop";
  song.notes.at(1, 8, 1) = "643C99";
  song.show_track_entries(2);
  EXPECT_EQ(song.tracks.text(1, 10), "C  5");
  EXPECT_EQ(song.tracks.text(1, 11), "");
  EXPECT_EQ(song.tracks.text(2, 17), "stop");
  EXPECT_EQ(song.tracks.text(1, 18), " 127");
  EXPECT_EQ(song.tracks.text(1, 8), "");
}

TEST(WriteEntry, StoresTheEntryWithoutTouchingTheCell) {
  Song song = empty_song(1, 4);
  song.write_entry(1, 2, 3, "643C99");
  EXPECT_EQ(song.notes.at(1, 2, 3), "643C99");
  EXPECT_EQ(song.tracks.text(3, 2), "");
}

TEST(WriteEntry, TheHighestColumnThatEverHeldAnEntryCountsAsUsed) {
  Song song = empty_song(2, 4);
  EXPECT_EQ(song.used_columns.at(2), 0);
  song.write_entry(2, 3, 1, "643C90");
  EXPECT_EQ(song.used_columns.at(2), 3);
  song.write_entry(2, 1, 1, "643C90");
  EXPECT_EQ(song.used_columns.at(2), 3);
  song.write_entry(2, 5, 1, "stop");
  EXPECT_EQ(song.used_columns.at(2), 5);
  song.write_entry(2, 5, 1, "");
  EXPECT_EQ(song.used_columns.at(2), 5);
  song.write_entry(2, 8, 1, "");
  EXPECT_EQ(song.used_columns.at(2), 5);
  EXPECT_EQ(song.used_columns.at(1), 0);
}

TEST(SongValue, ACopyIsEqualAndIndependent) {
  Song song = empty_song(2, 4);
  song.write_entry(2, 3, 1, "643C90");
  song.bookmarks = std::vector<Bookmark>{{"verse", 3}};
  song.bpm.put("96");
  Song copy = song;
  EXPECT_EQ(copy, song);
  copy.write_entry(2, 3, 1, "");
  EXPECT_NE(copy, song);
  EXPECT_EQ(song.notes.at(2, 3, 1), "643C90");
  EXPECT_EQ(song.bookmarks.get()[0].name, "verse");
}

TEST(SongValue, SongsDifferInEachPartThatIsSaved) {
  const Song song = empty_song(2, 4);
  const auto changed = [&](auto change) {
    Song other = song;
    change(other);
    return other;
  };
  EXPECT_NE(changed([](Song& s) { s.tracks.set_text(1, 1, "x"); }), song);
  EXPECT_NE(changed([](Song& s) { s.channels.set_text(0, 0, "x"); }), song);
  EXPECT_NE(changed([](Song& s) { s.effects.set_text(1, 0, "x"); }), song);
  EXPECT_NE(changed([](Song& s) { s.values.at(1, 1, 1) = 1; }), song);
  EXPECT_NE(changed([](Song& s) { s.key_attributes.at(1, 1, 1) = 1; }), song);
  EXPECT_NE(changed([](Song& s) { s.track_count = 1; }), song);
  EXPECT_NE(changed([](Song& s) { s.channel.at(1) = 9; }), song);
  EXPECT_NE(changed([](Song& s) { s.bank.at(1) = 1; }), song);
  EXPECT_NE(changed([](Song& s) { s.shown_effect.at(1) = 3; }), song);
  EXPECT_NE(changed([](Song& s) { s.active.at(1)[2] = true; }), song);
  EXPECT_NE(changed([](Song& s) { s.step.put("2"); }), song);
  EXPECT_NE(changed([](Song& s) { s.bookmarks = std::vector<Bookmark>{{"verse", 3}}; }), song);
  EXPECT_NE(changed([](Song& s) { s.variation = 2; }), song);
}

TEST(SongValue, SongsCanBeSwappedWhileTheirGridsAreWatched) {
  Song first = empty_song(1, 2);
  Song second = empty_song(2, 3);
  second.tracks.set_text(1, 10, "x");
  const Song was_first = first;
  const Song was_second = second;
  const test::RecordingGridObserver seen(first.tracks);
  std::swap(first, second);
  EXPECT_EQ(first, was_second);
  EXPECT_EQ(second, was_first);
  EXPECT_THAT(seen.calls, testing::Contains("cells"));
  EXPECT_EQ(seen.regions.back(), (CellRegion{0, 0, 3, 18}));
}

}  // namespace
}  // namespace lunavox

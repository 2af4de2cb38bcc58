#include "grid/note_text.h"

#include "grid/runtime_error.h"

#include <array>

#include <gtest/gtest.h>

namespace lunavox {
namespace {

TEST(NoteText, HoldsVelocityNoteStatusAndChannelInHexadecimal) {
  EXPECT_EQ(note_text(100, 60, 0), "643C90");
  EXPECT_EQ(note_text(100, 60, 9), "643C99");
  EXPECT_EQ(note_text(127, 127, 15), "7F7F9F");
}

TEST(NoteText, AVelocityBelowSixteenHasOneDigitButTheNoteAlwaysHasTwo) {
  EXPECT_EQ(note_text(10, 60, 0), "A3C90");
  EXPECT_EQ(note_text(1, 0, 8), "10098");
  EXPECT_EQ(note_text(64, 12, 0), "400C90");
}

TEST(NoteText, TheVelocityIsAllBeforeTheLastFourCharacters) {
  EXPECT_EQ(velocity_of("643C90"), 100);
  EXPECT_EQ(velocity_of("A3C90"), 10);
  EXPECT_EQ(velocity_of("7F7F90"), 127);
}

TEST(NoteText, TheNoteIsTheFirstTwoOfTheLastFourCharacters) {
  EXPECT_EQ(note_of("643C90"), 60);
  EXPECT_EQ(note_of("A3C90"), 60);
  EXPECT_EQ(note_of("7F0099"), 0);
  EXPECT_EQ(note_of("7F7F90"), 127);
}

TEST(NoteText, TextsThatAreNoNotesHaveNoVelocity) {
  EXPECT_EQ(velocity_of(""), 0);
  EXPECT_EQ(velocity_of("stop"), 0);
  EXPECT_EQ(velocity_of("3C90"), 0);
  EXPECT_EQ(note_of(""), 0);
  EXPECT_EQ(note_of("stop"), 0);
  EXPECT_EQ(note_of("3"), 3);
}

TEST(NoteText, OnlyEmptyAndStopAreNotNotes) {
  EXPECT_TRUE(is_note("643C90"));
  EXPECT_FALSE(is_note(""));
  EXPECT_FALSE(is_note("stop"));
}

TEST(NoteText, NaturalNoteNamesArePaddedToThreeCharactersAndSharpsAreNot) {
  constexpr std::array<const char*, 12> kExpected = {"C  ", "C#",  "D  ", "D#",  "E  ", "F  ",
                                                     "F#",  "G  ", "G#",  "A  ", "A#",  "B  "};
  for (int i = 0; i < 12; ++i) EXPECT_EQ(note_name(i), kExpected[static_cast<std::size_t>(i)]);
  EXPECT_THROW(note_name(-1), RuntimeError);
  EXPECT_THROW(note_name(12), RuntimeError);
}

TEST(ShownNote, TakesTheThirdAndFourthCharacterAsTheNote) {
  EXPECT_EQ(shown_note("643C90").text(), "C  5");
  EXPECT_EQ(shown_note("643D90").text(), "C#5");
  EXPECT_EQ(shown_note("7F7F90").text(), "G  10");
  EXPECT_EQ(shown_note("100090").text(), "C  0");
}

TEST(ShownNote, ASoftNoteIsReadFromItsSecondDigitAndTheStatus) {
  // A3C90 is note 60 at velocity 10; characters 3 and 4 are C9, note 201.
  const ShownNote note = shown_note("A3C90");
  EXPECT_EQ(note.octave, 16);
  EXPECT_EQ(note.note_index, 9);
  EXPECT_EQ(note.text(), "A  16");
}

TEST(ShownNote, EntriesWithoutANoteReadAsNoteZero) {
  EXPECT_EQ(shown_note("").text(), "C  0");
  EXPECT_EQ(shown_note("64").text(), "C  0");
  EXPECT_EQ(shown_note("stop").text(), "C  0");
}

TEST(NoteText, SoftNotesAreBlueMiddleOnesGreenAndLoudOnesRed) {
  EXPECT_EQ(velocity_colour(1), (Colour{2, 6, 254}));
  EXPECT_EQ(velocity_colour(10), (Colour{20, 42, 236}));
  EXPECT_EQ(velocity_colour(63), (Colour{126, 254, 130}));
  EXPECT_EQ(velocity_colour(64), (Colour{128, 254, 128}));
  EXPECT_EQ(velocity_colour(100), (Colour{200, 110, 56}));
  EXPECT_EQ(velocity_colour(127), (Colour{254, 2, 2}));
}

TEST(NoteText, ColourComponentsStopAtTheirLimits) {
  EXPECT_EQ(velocity_colour(0), (Colour{0, 2, 255}));
  EXPECT_EQ(velocity_colour(128), (Colour{255, 0, 0}));
  EXPECT_EQ(velocity_colour(255), (Colour{255, 0, 0}));
}

TEST(NoteText, AnOverlongVelocityOfADamagedFileStillHasAColour) {
  EXPECT_EQ(velocity_colour(velocity_of("7FFFFFFF3C90")), (Colour{255, 0, 0}));
  EXPECT_EQ(velocity_colour(velocity_of("800000003C90")), (Colour{0, 0, 255}));
}

TEST(NoteText, TheChannelIsOneUpperCaseHexadecimalDigit) {
  EXPECT_EQ(channel_digit(0), '0');
  EXPECT_EQ(channel_digit(9), '9');
  EXPECT_EQ(channel_digit(15), 'F');
}

}  // namespace
}  // namespace lunavox

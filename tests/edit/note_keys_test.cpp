#include "edit/note_keys.h"

#include "tests/support/song_fixture.h"

#include <gmock/gmock.h>

namespace lunavox::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class NoteKeysTest : public SongFixture {
 protected:
  NoteKeysTest() { song.tracks.set_cursor(3, 2); }

  std::vector<std::uint32_t> queued() {
    std::vector<std::uint32_t> messages;
    for (; queue.front() != 0; queue.pop()) messages.push_back(queue.front());
    return messages;
  }
  void hold(int key, int repeats) {
    for (int i = 0; i < repeats; ++i) keys.keystart(key);
  }

  NoteQueue queue;
  NoteKeys keys{song, flags, queue};
};

TEST_F(NoteKeysTest, ANoteKeyQueuesTheNoteAtVelocity0AndThenAt126) {
  keys.keystart('I');
  EXPECT_THAT(queued(), ElementsAre(0x003C90U, 0x7E3C90U));
}

TEST_F(NoteKeysTest, ReleasingANoteKeyQueuesTheNoteAtVelocity0) {
  keys.keystart('I');
  queued();
  keys.keystop('I');
  EXPECT_THAT(queued(), ElementsAre(0x3C90U));
}

TEST_F(NoteKeysTest, AllKeysOfTheThreeSetsPlayTheirNotes) {
  const std::vector<std::pair<int, int>> fixed = {
      {50, 49},  {51, 51}, {69, 52}, {82, 53}, {53, 54},  {84, 55},  {54, 56},  {55, 58},
      {85, 59},  {73, 60}, {57, 61}, {79, 62}, {48, 63},  {80, 64},  {221, 65}, {187, 66},
      {186, 67}, {83, 37}, {88, 38}, {68, 39}, {67, 40},  {86, 41},  {71, 42},  {66, 43},
      {72, 44},  {78, 45}, {74, 46}, {76, 49}, {191, 50}, {223, 52},
  };
  for (const LayoutSet layout : {LayoutSet::kQwerty, LayoutSet::kQwertz, LayoutSet::kAzerty}) {
    for (const auto& [key, note] : fixed) {
      EXPECT_EQ(base_note(key, layoutkeys_of(layout)), note) << key;
    }
  }
  const std::vector<std::pair<int, int>> azerty = {{65, 48},  {90, 50},  {89, 57}, {87, 36},
                                                   {188, 47}, {190, 48}, {77, 51}};
  for (const auto& [key, note] : azerty) {
    EXPECT_EQ(base_note(key, layoutkeys_of(LayoutSet::kAzerty)), note) << key;
  }
  const std::vector<std::pair<int, int>> qwertz = {{81, 48}, {87, 50},  {90, 57},
                                                   {89, 36}, {188, 48}, {77, 47}};
  for (const auto& [key, note] : qwertz) {
    EXPECT_EQ(base_note(key, layoutkeys_of(LayoutSet::kQwertz)), note) << key;
  }
  const std::vector<std::pair<int, int>> qwerty = {{81, 48}, {87, 50},  {89, 57},
                                                   {90, 36}, {188, 48}, {77, 47}};
  for (const auto& [key, note] : qwerty) {
    EXPECT_EQ(base_note(key, layoutkeys_of(LayoutSet::kQwerty)), note) << key;
  }
}

TEST_F(NoteKeysTest, OtherKeysPlayNothing) {
  for (const int key : {65, 70, 75, 49, 52, 56, 190, 219, 13, 17, 112, 119}) {
    keys.keystart(key);
    keys.keystop(key);
  }
  EXPECT_THAT(queued(), IsEmpty());
}

TEST_F(NoteKeysTest, TheKeysOfTheLayoutSetInForceCount) {
  keys.set_layoutkeys(layoutkeys_of(LayoutSet::kAzerty));
  keys.keystart('A');
  EXPECT_THAT(queued(), ElementsAre(0x003090U, 0x7E3090U));
}

TEST_F(NoteKeysTest, HoldingANoteKeyQueuesItOnceHoweverLongItRepeats) {
  hold('I', 50);
  EXPECT_THAT(queued(), ElementsAre(0x003C90U, 0x7E3C90U));
}

TEST_F(NoteKeysTest, ReleasingTheFirstOfTwoKeysLetsTheSecondBeStruckAgain) {
  keys.keystart('I');
  keys.keystart('O');
  keys.keystop('I');
  EXPECT_EQ(keys.lastkey(), 0);
  queued();
  keys.keystart('O');
  EXPECT_THAT(queued(), ElementsAre(0x003E90U, 0x7E3E90U));
}

TEST_F(NoteKeysTest, KeysThatPlayNothingAreTheLastKeyToo) {
  keys.keystart('I');
  keys.keystart('A');
  EXPECT_EQ(keys.lastkey(), 'A');
  queued();
  keys.keystart('I');
  EXPECT_THAT(queued(), ElementsAre(0x003C90U, 0x7E3C90U));
}

TEST_F(NoteKeysTest, F2ToF7ShiftTheOctave) {
  EXPECT_EQ(keys.octaveshift(), 0);
  const std::vector<int> shifts = {-24, -12, 0, 12, 24, 36};
  for (int i = 0; i < 6; ++i) {
    keys.keystart(113 + i);
    EXPECT_EQ(keys.octaveshift(), shifts[static_cast<std::size_t>(i)]);
  }
  keys.keystart(186);
  EXPECT_THAT(queued(), ElementsAre(0x006790U, 0x7E6790U));  // note 103, the highest
}

TEST_F(NoteKeysTest, F1AndF8AreNoOctaveKeys) {
  keys.keystart(112);
  EXPECT_EQ(keys.octaveshift(), 0);
  keys.keystart(119);
  EXPECT_EQ(keys.octaveshift(), 0);
}

TEST_F(NoteKeysTest, ReleasingAnOctaveKeyChangesNothing) {
  keys.keystart(113);
  keys.keystop(115);
  EXPECT_EQ(keys.octaveshift(), -24);
}

TEST_F(NoteKeysTest, NotesBelow16AreQueuedWithOneDigit) {
  keys.keystart(113);
  keys.keystart('Z');  // note 12
  EXPECT_THAT(queued(), ElementsAre(0x00EC90U, 0x7EC90U));
  keys.keystop('Z');
  EXPECT_THAT(queued(), ElementsAre(0x0C90U));
  keys.keystart('D');  // note 15
  EXPECT_THAT(queued(), ElementsAre(0x00EF90U, 0x7EF90U));
  keys.keystart('C');  // note 16
  EXPECT_THAT(queued(), ElementsAre(0x001090U, 0x7E1090U));
}

TEST_F(NoteKeysTest, CVAndXPlayNotes) {
  for (const int key : {'C', 'V', 'X'}) keys.keystart(key);
  EXPECT_THAT(queued(), ElementsAre(0x2890U, 0x7E2890U, 0x2990U, 0x7E2990U, 0x2690U, 0x7E2690U));
}

TEST_F(NoteKeysTest, DeleteClearsTheCellAndStepsDown) {
  song.write_entry(1, 2, 3, "643C99");
  song.show_entry(1, 2, 3);
  song.step.put("4");
  keys.keystart(46);
  EXPECT_EQ(song.notes.at(1, 2, 3), "");
  EXPECT_EQ(song.tracks.text(3, 2), "");
  EXPECT_EQ(song.tracks.cursor(), (CellPosition{7, 2}));
  EXPECT_TRUE(flags.modified);
  EXPECT_THAT(queued(), IsEmpty());
}

TEST_F(NoteKeysTest, BackspaceAndTheExtraKeyMarkANoteOff) {
  keys.keystart(8);
  keys.keystart(226);
  EXPECT_EQ(song.notes.at(1, 2, 3), "stop");
  EXPECT_EQ(song.tracks.text(3, 2), "stop");
  EXPECT_EQ(song.notes.at(1, 2, 4), "stop");
  EXPECT_EQ(song.tracks.cursor(), (CellPosition{5, 2}));
  EXPECT_EQ(song.used_columns.at(1), 2);
  EXPECT_TRUE(flags.modified);
}

TEST_F(NoteKeysTest, HoldingDeleteClearsEveryStepthLineToTheEndOfTheSong) {
  for (int row = 1; row <= 16; ++row) song.write_entry(1, 2, row, "643C99");
  song.step.put("3");
  hold(46, 20);
  for (int row = 1; row <= 16; ++row) {
    const bool cleared = row == 3 || row == 6 || row == 9 || row == 12 || row == 15;
    EXPECT_EQ(song.notes.at(1, 2, row), cleared ? "" : "643C99") << row;
  }
  EXPECT_EQ(song.tracks.row(), 15);
}

TEST_F(NoteKeysTest, WithStep0DeleteAndBackspaceStay) {
  song.step.put("0");
  hold(46, 2);
  hold(8, 2);
  EXPECT_EQ(song.tracks.row(), 3);
}

TEST_F(NoteKeysTest, AStepOntoTheLastLineIsTakenAndOneBeyondIsNot) {
  song.tracks.set_row(14);
  song.step.put("2");
  keys.keystart(46);
  EXPECT_EQ(song.tracks.row(), 16);
  keys.keystart(46);
  EXPECT_EQ(song.tracks.row(), 16);
}

TEST_F(NoteKeysTest, TheCellUnderTheCursorIsMeantWhateverTheCurrentTrackWas) {
  song.current_track = 1;
  song.tracks.set_cursor(2, 12);
  keys.keystart(8);
  EXPECT_EQ(song.notes.at(2, 3, 2), "stop");
}

TEST_F(NoteKeysTest, InAnEffectColumnDeleteAndBackspaceWriteTheCellAndLeaveTheCurve) {
  song.tracks.set_cursor(4, 9);
  song.tracks.set_text(4, 9, "127");
  keys.keystart(46);
  EXPECT_EQ(song.tracks.text(4, 9), "");
  EXPECT_EQ(song.tracks.cursor(), (CellPosition{5, 9}));
  keys.keystart(8);
  EXPECT_EQ(song.tracks.text(5, 9), "stop");
  EXPECT_EQ(song.notes.at(1, 0, 5), "stop");
  EXPECT_EQ(values(1, kVolume, 4, 5), (std::vector<int>{127, 127}));
  EXPECT_EQ(song.key_attributes.at(1, kVolume, 4), 0);
}

TEST_F(NoteKeysTest, TheSpaceBarStartsAndStopsRecordingEvenWhenItRepeats) {
  int pressed = 0;
  keys.set_space_bar([&] { ++pressed; });
  hold(32, 3);
  EXPECT_EQ(pressed, 3);
  EXPECT_EQ(keys.lastkey(), 32);
  EXPECT_THAT(queued(), IsEmpty());
}

TEST_F(NoteKeysTest, ReleasingAllEndsWhatIsHeld) {
  keys.keystart('I');
  keys.keystart('O');
  keys.keystart('P');
  keys.keystop('O');
  queued();
  keys.release_all();
  EXPECT_THAT(queued(), ElementsAre(0x3C90U, 0x4090U));
  EXPECT_EQ(keys.lastkey(), 0);
  keys.release_all();
  EXPECT_THAT(queued(), IsEmpty());
}

TEST_F(NoteKeysTest, ReleasingAllEndsTheNoteThatAnOctaveKeyLeftHanging) {
  keys.keystart('I');
  keys.keystart(116);
  keys.keystop('I');
  queued();
  keys.release_all();
  EXPECT_THAT(queued(), ElementsAre(0x3C90U));
}

TEST_F(NoteKeysTest, ReleasingAllEndsALowNoteAsItWasStruck) {
  keys.keystart(113);
  keys.keystart('Z');
  keys.keystop('Z');
  queued();
  keys.release_all();
  EXPECT_THAT(queued(), ElementsAre(0x00EC90U));
}

}  // namespace
}  // namespace lunavox::test

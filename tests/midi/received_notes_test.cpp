#include "midi/received_notes.h"

#include "tests/support/studio.h"

#include <gtest/gtest.h>

namespace lunavox {
namespace {

using test::Messages;
using test::Studio;

constexpr std::uint32_t kCentre = 0x4000E0;  // pitch bend centre on track 2's channel

class ReceivedNotesTest : public testing::Test {
 protected:
  ReceivedNotesTest() { studio.options.velocity = true; }

  const std::string& entry(int row, int sub_column = 1) const {
    return studio.song.notes.at(2, sub_column, row);
  }
  const Cell& cell(int row, int column = Studio::kTrack2) const {
    return studio.song.tracks.cell(row, column);
  }

  Studio studio;
};

TEST_F(ReceivedNotesTest, ANoteSoundsOnTheTracksChannelAfterThePitchBendCentre) {
  studio.receive(0x643C95);
  EXPECT_EQ(studio.sent(), (Messages{kCentre, 0x643C90}));
  studio.song.tracks.set_column(1);
  studio.receive(0x643E95);
  EXPECT_EQ(studio.sent(), (Messages{0x4000E9, 0x643E99}));
}

TEST_F(ReceivedNotesTest, ANoteOffIsSentAsANoteOnAtVelocity0) {
  studio.receive(0x403C85);
  EXPECT_EQ(studio.sent(), (Messages{kCentre, 0x3C90}));
  studio.receive(0x003C95);
  EXPECT_EQ(studio.sent(), (Messages{kCentre, 0x3C90}));
}

TEST_F(ReceivedNotesTest, OtherMessagesGoThroughAsTheyAre) {
  for (const std::uint32_t message : {0x4007B5U, 0x6420E5U, 0x05C5U, 0x40D5U, 0x503CA5U}) {
    studio.receive(message);
    EXPECT_EQ(studio.sent(), (Messages{kCentre, message}));
  }
}

TEST_F(ReceivedNotesTest, AMessageOfOneByteIsNeitherNoteOffNorNoteOn) {
  studio.receive(0xF8);
  EXPECT_EQ(studio.sent(), (Messages{kCentre, 0xF8}));
  studio.receive(0x5);
  EXPECT_EQ(studio.sent(), (Messages{kCentre, 0x5}));
}

TEST_F(ReceivedNotesTest, WithoutRecVelocityStrengthReplacesTheVelocity) {
  studio.options.velocity = false;
  studio.song.strength.put("100");
  studio.receive(0x143C90);
  EXPECT_EQ(studio.sent(), (Messages{kCentre, 0x643C90}));
}

TEST_F(ReceivedNotesTest, StrengthLeavesNoteOffsAndControllersAlone) {
  studio.options.velocity = false;
  studio.receive(0x003C90);
  studio.receive(0x403C80);
  studio.receive(0x0107B0);
  EXPECT_EQ(studio.sent(), (Messages{kCentre, 0x3C90, kCentre, 0x3C90, kCentre, 0x0107B0}));
}

TEST_F(ReceivedNotesTest, StrengthReplacesAOneDigitVelocityToo) {
  studio.options.velocity = false;
  studio.receive(0x053C90);
  EXPECT_EQ(studio.sent(), (Messages{kCentre, 0x7F3C90}));
}

TEST_F(ReceivedNotesTest, AMalformedTypedNoteIsHandledAsItsTextReads) {
  studio.options.velocity = false;
  studio.song.strength.put("100");
  studio.receive(0x7EC90);
  EXPECT_EQ(studio.sent(), (Messages{kCentre, 0x64EC90}));
}

TEST_F(ReceivedNotesTest, EverythingThatWaitsIsHandledInOnePass) {
  studio.queue.write(0x643C90);
  studio.queue.write(0x644090);
  studio.queue.write(0x644390);
  studio.pass();
  EXPECT_EQ(studio.sent(), (Messages{kCentre, 0x643C90, kCentre, 0x644090, kCentre, 0x644390}));
}

TEST_F(ReceivedNotesTest, WithoutRecordingNothingIsWritten) {
  studio.receive(0x643C90);
  EXPECT_EQ(entry(1), "");
  EXPECT_EQ(studio.row(), 1);
  EXPECT_FALSE(studio.flags.modified);
}

TEST_F(ReceivedNotesTest, StepRecordingWritesTheNoteAndMovesDownByTheStep) {
  studio.flags.recording = true;
  studio.song.step.put("3");
  studio.receive(0x643C95);
  EXPECT_EQ(entry(1), "643C90");
  EXPECT_EQ(cell(1).text, "C  5");
  EXPECT_EQ(cell(1).text_colour, (Colour{200, 110, 56}));
  EXPECT_EQ(studio.row(), 4);
  EXPECT_TRUE(studio.flags.modified);
  EXPECT_EQ(studio.song.octave, 5);
  EXPECT_EQ(studio.song.note_name, "C  ");
}

TEST_F(ReceivedNotesTest, TheColourFollowsTheVelocity) {
  studio.flags.recording = true;
  studio.song.step.put("0");
  studio.receive(0x403C90);
  EXPECT_EQ(cell(1).text_colour, (Colour{128, 254, 128}));
  studio.receive(0x7F3C90);
  EXPECT_EQ(cell(1).text_colour, (Colour{254, 2, 2}));
}

TEST_F(ReceivedNotesTest, TheDrumTrackRecordsOnChannel10) {
  studio.flags.recording = true;
  studio.song.tracks.set_column(8);
  studio.receive(0x642490);
  EXPECT_EQ(studio.song.notes.at(1, 8, 1), "642499");
  EXPECT_EQ(studio.song.used_columns.at(1), 8);
}

TEST_F(ReceivedNotesTest, AStepOf0OverwritesTheSameCell) {
  studio.flags.recording = true;
  studio.song.step.put("0");
  studio.receive(0x643C90);
  studio.receive(0x644090);
  EXPECT_EQ(studio.row(), 1);
  EXPECT_EQ(entry(1), "644090");
}

TEST_F(ReceivedNotesTest, AStepPastTheEndLeavesTheCursor) {
  studio.flags.recording = true;
  studio.song.step.put("4");
  studio.song.tracks.set_row(12);
  studio.receive(0x643C90);
  EXPECT_EQ(studio.row(), 16);
  studio.receive(0x644090);
  EXPECT_EQ(studio.row(), 16);
  EXPECT_EQ(entry(16), "644090");
}

TEST_F(ReceivedNotesTest, NoteOffsAndControllersAreNotRecorded) {
  studio.flags.recording = true;
  studio.receive(0x003C90);
  studio.receive(0x403C80);
  studio.receive(0x4001B0);
  EXPECT_EQ(entry(1), "");
  EXPECT_EQ(studio.row(), 1);
}

TEST_F(ReceivedNotesTest, TheStrengthIsRecordedAndSounded) {
  studio.options.velocity = false;
  studio.song.strength.put("90");
  studio.flags.recording = true;
  studio.receive(0x143C90);
  EXPECT_EQ(entry(1), "5A3C90");
  EXPECT_EQ(studio.sent(), (Messages{kCentre, 0x5A3C90}));
}

TEST_F(ReceivedNotesTest, ASoftNoteIsShownAsItsTextIsRead) {
  studio.flags.recording = true;
  studio.receive(0x0A3C90);
  EXPECT_EQ(entry(1), "A3C90");
  EXPECT_EQ(cell(1).text, "A  16");  // "C9" is taken for the note number
}

TEST_F(ReceivedNotesTest, ARecordedNoteCanBeEndedByTheNextReset) {
  studio.flags.recording = true;
  studio.receive(0x643C90);
  EXPECT_EQ(studio.port.pending_note_off(2, 1), "3C90");
}

TEST_F(ReceivedNotesTest, ANoteOnAnEffectColumnSoundsAndIsRefused) {
  studio.flags.recording = true;
  studio.song.tracks.set_column(Studio::kEffect2);
  studio.receive(0x643C90);
  EXPECT_EQ(studio.sent(), (Messages{kCentre, 0x643C90}));
  EXPECT_EQ(studio.dialogs.messages,
            std::vector<Message>{test::error_box("Cannot record notes on effects !", "Error")});
  EXPECT_EQ(cell(1, Studio::kEffect2).text, "");
  EXPECT_EQ(studio.row(), 1);
  EXPECT_FALSE(studio.flags.modified);
}

TEST_F(ReceivedNotesTest, ANoteEndsOnTheChannelWhereItBegan) {
  studio.receive(0x643C90);
  studio.song.tracks.set_column(1);
  studio.sent();
  studio.receive(0x403C80);
  EXPECT_EQ(studio.sent(), (Messages{0x3C90, 0x4000E9, 0x3C99}));
  studio.receive(0x403C80);
  EXPECT_EQ(studio.sent(), (Messages{0x4000E9, 0x3C99}));
}

TEST_F(ReceivedNotesTest, ANoteStruckAgainOnAnotherTrackEndsOnTheFirst) {
  studio.receive(0x643C90);
  studio.song.tracks.set_column(1);
  studio.sent();
  studio.receive(0x643C90);
  EXPECT_EQ(studio.sent(), (Messages{0x3C90, 0x4000E9, 0x643C99}));
}

TEST_F(ReceivedNotesTest, AllNotesThatSoundAreEndedWhereTheyBeganAndOnlyOnce) {
  studio.receive(0x643C90);
  studio.receive(0x644090);
  studio.receive(0x404080);
  studio.song.tracks.set_column(1);
  studio.receive(0x642490);
  studio.sent();
  studio.received.end_all();
  EXPECT_EQ(studio.sent(), (Messages{0x2499, 0x3C90}));
  studio.received.end_all();
  EXPECT_EQ(studio.sent(), Messages{});
}

/// Dialogs that stay up for a while: passes go on, and something more is played.
class SlowDialogs : public test::ScriptedDialogs {
 public:
  Answer message(const Message& message) override {
    if (while_shown) while_shown();
    return ScriptedDialogs::message(message);
  }
  std::function<void()> while_shown;
};

TEST_F(ReceivedNotesTest, WhatArrivesWhileAMessageBoxIsUpWaitsItsTurn) {
  SlowDialogs dialogs;
  ReceivedNotes received(studio.song, studio.flags, dialogs, studio.port, studio.queue,
                         studio.options);
  InputLoop listen(received);
  dialogs.while_shown = [&] {
    studio.queue.write(0x403C80);
    listen.pass(0);
    EXPECT_EQ(studio.sent(), (Messages{kCentre, 0x643C90}));
  };
  studio.flags.recording = true;
  studio.song.tracks.set_column(Studio::kEffect2);
  studio.queue.write(0x643C90);
  listen.pass(0);
  EXPECT_EQ(studio.sent(), (Messages{kCentre, 0x3C90}));
  EXPECT_EQ(dialogs.messages.size(), 1U);
}

TEST_F(ReceivedNotesTest, TheInputLoopOnlyWaitsForWhatArrives) {
  EXPECT_EQ(studio.listen.next_due(), std::nullopt);
}

}  // namespace
}  // namespace lunavox

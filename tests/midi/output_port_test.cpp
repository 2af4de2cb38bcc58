#include "midi/output_port.h"

#include "tests/support/recording_output.h"
#include "tests/support/scripted_dialogs.h"

#include <gtest/gtest.h>

namespace lunavox {
namespace {

using test::RecordingOutput;
using test::ScriptedDialogs;
using Call = RecordingOutput::Call;
using Messages = std::vector<std::uint32_t>;

constexpr int kPendingEntries = 15 * 8;
const SysExBytes kXgOn = {0xF0, 0x43, 0x10, 0x4C, 0x00, 0x00, 0x7E, 0x00, 0xF7};

/// The eleven resets of each channel 0 to 14.
Messages controller_defaults() {
  const Messages first_channel = {0x78B0,   0x7BB0,   0xFF07B0, 0x400AB0, 0x0101B0, 0x404AB0,
                                  0x285BB0, 0x015DB0, 0x015EB0, 0x4049B0, 0x4048B0};
  Messages all;
  for (std::uint32_t channel = 0; channel <= 14; ++channel) {
    for (const std::uint32_t message : first_channel) all.push_back(message + channel);
  }
  return all;
}

class OutputPortTest : public testing::Test {
 protected:
  OutputPortTest() {
    port.open(0);
    output.calls.clear();
  }

  RecordingOutput output;
  ScriptedDialogs dialogs;
  OutputPort port{output, dialogs};
};

TEST_F(OutputPortTest, OpeningClosesTheOldDeviceFirst) {
  EXPECT_TRUE(port.open(1));
  EXPECT_EQ(output.calls, (std::vector<Call>{{Call::kClose, 0, 0, {}}, {Call::kOpen, 1, 0, {}}}));
  EXPECT_EQ(port.current_device(), 1);
}

TEST_F(OutputPortTest, ADeviceThatCannotBeOpenedLeavesNothingOpen) {
  output.opens = false;
  EXPECT_FALSE(port.open(1));
  EXPECT_FALSE(port.is_open());
  port.send(0x643C90);
  port.sendsysex(kXgOn);
  port.reset_device();
  EXPECT_TRUE(output.shorts().empty());
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(OutputPortTest, TheCurrentDeviceStartsAsDevice0) {
  const OutputPort fresh(output, dialogs);
  EXPECT_EQ(fresh.current_device(), 0);
  EXPECT_FALSE(fresh.is_open());
}

TEST_F(OutputPortTest, ATextIsSentAsTheNumberOfItsHexadecimalDigits) {
  port.send_text("643C99");
  port.send_text("6407b9");
  port.send_text("78b0");
  EXPECT_EQ(output.shorts(), (Messages{0x643C99, 0x6407B9, 0x78B0}));
}

TEST_F(OutputPortTest, ATextThatIsNoNumberIsSentAsTheMessage0) {
  port.send_text("");
  port.send_text("stop");
  EXPECT_EQ(output.shorts(), (Messages{0, 0}));
}

TEST_F(OutputPortTest, AShortMessageThatFailsIsPassedOver) {
  output.short_result = 5;
  port.send(0x643C90);
  port.resetchannels();
  EXPECT_EQ(output.shorts().size(), 1U + kPendingEntries + 15 * 11);
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(OutputPortTest, ResetChannelsSendsEveryPendingNoteOffThenTheControllerDefaults) {
  port.keep_note_off(1, 1, "643C99");
  port.keep_note_off(2, 8, "7F4090");
  port.resetchannels();

  Messages expected(kPendingEntries, 0);
  expected[8] = 0x3C99;   // track 1, column 1, after the eight of track 0
  expected[23] = 0x4090;  // track 2, column 8
  for (const std::uint32_t message : controller_defaults()) expected.push_back(message);
  EXPECT_EQ(output.shorts(), expected);
}

TEST_F(OutputPortTest, ChannelSixteenIsNotReset) {
  port.resetchannels();
  for (const std::uint32_t message : output.shorts()) EXPECT_NE(message & 0xF, 15U);
}

TEST_F(OutputPortTest, ResetChannelsClearsThePendingNoteOffs) {
  port.keep_note_off(1, 1, "643C99");
  port.resetchannels();
  EXPECT_EQ(port.pending_note_off(1, 1), "");
}

TEST_F(OutputPortTest, ANewDeviceGetsTheSameResetButThePendingNoteOffsStay) {
  port.keep_note_off(1, 1, "643C99");
  port.resetchannels();
  const Messages clearing = output.take_shorts();
  port.keep_note_off(1, 1, "643C99");
  port.reset_new_device();
  EXPECT_EQ(output.shorts(), clearing);
  EXPECT_EQ(port.pending_note_off(1, 1), "3C99");
}

TEST_F(OutputPortTest, APendingNoteOffIsTheSameNoteAtVelocity0) {
  port.keep_note_off(2, 3, "643C90");
  EXPECT_EQ(port.pending_note_off(2, 3), "3C90");
  port.send_note_off(2, 3);
  port.clear_note_off(2, 3);
  port.send_note_off(2, 3);
  EXPECT_EQ(output.shorts(), (Messages{0x3C90, 0}));
}

TEST_F(OutputPortTest, APendingNoteOffIsTakenFromTheLastFourCharactersWhateverTheyAre) {
  port.keep_note_off(2, 1, "7EC90");
  EXPECT_EQ(port.pending_note_off(2, 1), "EC90");
  port.keep_note_off(2, 1, "5");
  EXPECT_EQ(port.pending_note_off(2, 1), "595");
  port.keep_note_off(2, 1, "");
  EXPECT_EQ(port.pending_note_off(2, 1), "");
}

TEST_F(OutputPortTest, ThePendingTableHasTracks0To16AndColumnsUpTo8) {
  EXPECT_EQ(port.pending_note_off(16, 8), "");
  EXPECT_THROW(port.pending_note_off(17, 1), RuntimeError);
}

TEST_F(OutputPortTest, AllNotesOffGoesToAllSixteenChannelsInOrder) {
  port.all_notes_off();
  EXPECT_EQ(output.shorts(),
            (Messages{0x7BB0, 0x7BB1, 0x7BB2, 0x7BB3, 0x7BB4, 0x7BB5, 0x7BB6, 0x7BB7, 0x7BB8,
                      0x7BB9, 0x7BBA, 0x7BBB, 0x7BBC, 0x7BBD, 0x7BBE, 0x7BBF}));
}

TEST_F(OutputPortTest, SysExIsPreparedSentAndUnprepared) {
  port.sendsysex(kXgOn);
  EXPECT_EQ(output.calls, (std::vector<Call>{{Call::kPrepare, 0, 0, kXgOn},
                                             {Call::kLong, 0, 0, kXgOn},
                                             {Call::kUnprepare, 0, 0, kXgOn}}));
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(OutputPortTest, TheFirstStepThatFailsIsToldAndEndsTheSending) {
  output.error = "There is no driver.";
  output.prepare_result = 6;
  port.sendsysex(kXgOn);
  EXPECT_EQ(output.calls.size(), 1U);
  const Message preparing = {"Error in preparing header\r\nThere is no driver.", "", Icon::kNone,
                             Buttons::kOk};
  EXPECT_EQ(dialogs.messages, std::vector<Message>{preparing});

  output.prepare_result = kMidiOk;
  output.long_result = 6;
  port.sendsysex(kXgOn);
  EXPECT_EQ(output.calls.size(), 3U);
  EXPECT_EQ(dialogs.messages.back().text, "Error in sending long message\r\nThere is no driver.");
}

TEST_F(OutputPortTest, ADeviceThatIsStillBusyFailsToUnprepare) {
  output.unprepare_result = 65;
  port.sendsysex(kXgOn);
  EXPECT_EQ(output.calls.size(), 3U);
  EXPECT_EQ(dialogs.messages.back().text, "Error in unpreparing header\r\nThe device is busy.");
}

TEST_F(OutputPortTest, ResettingTheDeviceSilencesIt) {
  port.reset_device();
  EXPECT_EQ(output.calls, (std::vector<Call>{{Call::kReset, 0, 0, {}}}));
}

}  // namespace
}  // namespace lunavox

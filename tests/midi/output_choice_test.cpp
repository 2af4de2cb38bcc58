#include "midi/output_choice.h"

#include "tests/support/studio.h"

#include <gtest/gtest.h>

namespace lunavox {
namespace {

using test::RecordingOutput;
using Call = RecordingOutput::Call;

class OutputChoiceTest : public testing::Test {
 protected:
  OutputChoiceTest() {
    choice.set_hooks({[this] { ended.push_back("input closed"); },
                      [this] { ended.push_back("program ended"); }});
    choice.fill();
  }

  std::vector<std::string> captions() const {
    std::vector<std::string> texts;
    for (const OutputItem& item : choice.items.get()) texts.push_back(item.caption);
    return texts;
  }

  /// Indexes of the checked items.
  std::vector<int> checked() const {
    std::vector<int> indexes;
    for (int i = 0; i < static_cast<int>(choice.items.get().size()); ++i) {
      if (choice.items.get()[static_cast<std::size_t>(i)].checked) indexes.push_back(i);
    }
    return indexes;
  }

  int opened() const {
    int device = -99;
    for (const Call& call : studio.output.calls) {
      if (call.kind == Call::kOpen) device = call.device;
    }
    return device;
  }

  test::Studio studio;
  OutputChoice choice{studio.output, studio.port, studio.song, studio.dialogs};
  std::vector<std::string> ended;
};

TEST_F(OutputChoiceTest, TheMenuHoldsSystemDefaultAndTheDevices) {
  EXPECT_EQ(captions(), (std::vector<std::string>{"System default", "Synth", "Module"}));
}

TEST_F(OutputChoiceTest, AtMostFifteenDevicesAreOffered) {
  studio.output.device_names = std::vector<std::string>(20, "Port");
  studio.output.device_names[14] = "Fifteenth";
  choice.fill();
  EXPECT_EQ(choice.items.get().size(), 16U);
  EXPECT_EQ(captions().back(), "Fifteenth");
}

TEST_F(OutputChoiceTest, SystemDefaultOpensDeviceMinus1AndChecksItem0) {
  EXPECT_TRUE(choice.click(0));
  EXPECT_EQ(opened(), -1);
  EXPECT_EQ(studio.port.current_device(), -1);
  EXPECT_EQ(checked(), std::vector<int>{0});
}

TEST_F(OutputChoiceTest, AnItemOpensTheDeviceBeforeItsIndexAndIsTheOnlyOneChecked) {
  choice.click(1);
  choice.click(2);
  EXPECT_EQ(opened(), 1);
  EXPECT_EQ(studio.port.current_device(), 1);
  EXPECT_EQ(checked(), std::vector<int>{2});
}

TEST_F(OutputChoiceTest, TheOldDeviceIsSilencedAndClosedBeforeTheNewOneIsOpened) {
  choice.click(2);
  ASSERT_GE(studio.output.calls.size(), 3U);
  EXPECT_EQ(studio.output.calls[0], (Call{Call::kReset, 0, 0, {}}));
  EXPECT_EQ(studio.output.calls[1], (Call{Call::kClose, 0, 0, {}}));
  EXPECT_EQ(studio.output.calls[2], (Call{Call::kOpen, 1, 0, {}}));
}

TEST_F(OutputChoiceTest, ANewDeviceReceivesTheResetThenTheFourSysExMessages) {
  studio.port.keep_note_off(1, 1, "643C99");
  choice.click(1);

  auto& calls = studio.output.calls;
  calls.erase(calls.begin(), calls.begin() + 3);
  ASSERT_EQ(calls.size(), 120U + 15 * 11 + 4 * 3);
  EXPECT_EQ(calls[8].packed, 0x3C99U);
  EXPECT_EQ(calls[120].packed, 0x78B0U);
  EXPECT_EQ(calls[120 + 15 * 11 - 1].packed, 0x4048BEU);
  EXPECT_EQ(calls[120 + 15 * 11].kind, Call::kPrepare);
  EXPECT_EQ(studio.output.sysexes(),
            (std::vector<SysExBytes>{{0xF0, 0x43, 0x10, 0x4C, 0x00, 0x00, 0x7E, 0x00, 0xF7},
                                     {0xF0, 0x43, 0x10, 0x4C, 0x02, 0x01, 0x58, 0x40, 0xF7},
                                     {0xF0, 0x43, 0x10, 0x4C, 0x02, 0x01, 0x59, 0x40, 0xF7},
                                     {0xF0, 0x43, 0x10, 0x4C, 0x02, 0x01, 0x5A, 0x01, 0xF7}}));
  EXPECT_EQ(studio.port.pending_note_off(1, 1), "3C99");
}

TEST_F(OutputChoiceTest, TheXgListsShowTheirFirstEntriesAndTheSongStaysUnmodified) {
  studio.song.reverb = 10;
  studio.song.chorus = 3;
  studio.song.variation = -1;
  choice.click(1);
  EXPECT_EQ(studio.song.reverb, 0);
  EXPECT_EQ(studio.song.chorus, 0);
  EXPECT_EQ(studio.song.variation, 0);
  EXPECT_FALSE(studio.flags.modified);
  EXPECT_EQ(studio.output.sysexes().size(), 4U);
}

TEST_F(OutputChoiceTest, ADeviceThatRefusesSysExIsChosenAllTheSameAfterAMessageForEach) {
  studio.output.unprepare_result = 65;
  studio.song.variation = 3;
  EXPECT_TRUE(choice.click(2));
  const Message busy = {"Error in unpreparing header\r\nThe device is busy.", "", Icon::kNone,
                        Buttons::kOk};
  EXPECT_EQ(studio.dialogs.messages, (std::vector<Message>{busy, busy, busy, busy}));
  EXPECT_EQ(studio.output.sysexes().size(), 4U);
  EXPECT_EQ(checked(), std::vector<int>{2});
  EXPECT_EQ(studio.song.variation, 0);
  EXPECT_TRUE(ended.empty());
}

TEST_F(OutputChoiceTest, WithoutAnOutputTheProgramEndsAfterTheReasonAndItsMessage) {
  studio.output.opens = false;
  EXPECT_FALSE(choice.click(2));
  EXPECT_EQ(studio.dialogs.messages,
            (std::vector<Message>{test::error_box("The device cannot be opened.", "Error"),
                                  test::error_box("No Midi output device found", "Error")}));
  EXPECT_EQ(ended, (std::vector<std::string>{"input closed", "program ended"}));
  EXPECT_TRUE(studio.output.shorts().empty());
}

TEST_F(OutputChoiceTest, ADeviceWhoseNumberHasChangedIsFoundByItsName) {
  studio.output.device_names = {"Synth", "Plugged in since", "Module"};
  choice.click(2);
  EXPECT_EQ(opened(), 2);
}

TEST_F(OutputChoiceTest, OfTwoDevicesOfOneNameTheOneAtItsPlaceIsOpened) {
  studio.output.device_names = {"Module", "Module"};
  choice.fill();
  choice.click(2);
  EXPECT_EQ(opened(), 1);
}

TEST_F(OutputChoiceTest, FillingAgainKeepsTheCheckOnTheSameDevice) {
  choice.click(2);
  studio.output.device_names = {"Synth", "Plugged in since", "Module"};
  choice.fill();
  EXPECT_EQ(checked(), std::vector<int>{3});
  studio.output.device_names = {"Synth"};
  choice.fill();
  EXPECT_EQ(checked(), std::vector<int>{});
}

TEST_F(OutputChoiceTest, ADeviceIsAlsoChosenByItsNumberEvenIfTheMenuHasNoItemForIt) {
  studio.output.device_names = std::vector<std::string>(20, "Port");
  choice.fill();
  EXPECT_TRUE(choice.choose_device(1));
  EXPECT_EQ(opened(), 1);
  EXPECT_EQ(checked(), std::vector<int>{2});
  EXPECT_TRUE(choice.choose_device(17));
  EXPECT_EQ(opened(), 17);
  EXPECT_EQ(checked(), std::vector<int>{});
  EXPECT_TRUE(choice.choose_device(kDefaultOutput));
  EXPECT_EQ(checked(), std::vector<int>{0});
}

TEST_F(OutputChoiceTest, ThereIsNoItem16) {
  EXPECT_THROW(choice.click(16), RuntimeError);
  EXPECT_THROW(choice.click(-1), RuntimeError);
}

}  // namespace
}  // namespace lunavox

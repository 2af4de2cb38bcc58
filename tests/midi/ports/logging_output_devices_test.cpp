#include "midi/ports/logging_output_devices.h"

#include "midi/ports/port_error.h"
#include "tests/support/recording_output.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

namespace lunavox {
namespace {

using test::RecordingOutput;
using test::TempFolder;

class MidiLogging : public testing::Test {
 protected:
  std::unique_ptr<LoggingOutputDevices> logging() {
    return std::make_unique<LoggingOutputDevices>(recorder_, file_, [this] { return now_; });
  }
  std::string log() const { return folder_.read("midi.log"); }

  TempFolder folder_;
  std::filesystem::path file_ = folder_.file("midi.log");
  RecordingOutput recorder_;
  std::chrono::microseconds now_{5'000'000};
};

TEST_F(MidiLogging, AShortMessageIsALineOfTimeKindAndEightDigits) {
  const auto devices = logging();
  const auto device = devices->open(0);
  now_ += std::chrono::microseconds(1'234'567);
  device->short_message(0xFF07B0);
  now_ += std::chrono::microseconds(5);
  device->short_message(0);
  devices->flush();
  EXPECT_EQ(log(),
            "1234.567\tshort\t00FF07B0\n"
            "1234.572\tshort\t00000000\n");
}

TEST_F(MidiLogging, ASystemExclusiveMessageIsALineOfPairsOnceForItsThreeSteps) {
  const SysExBytes xg_on = {0xF0, 0x43, 0x10, 0x4C, 0x00, 0x00, 0x7E, 0x00, 0xF7};
  const auto devices = logging();
  const auto device = devices->open(0);
  device->prepare_header(xg_on);
  device->long_message(xg_on);
  device->unprepare_header(xg_on);
  devices->flush();
  EXPECT_EQ(log(), "0.000\tsysex\tF043104C00007E00F7\n");
}

TEST_F(MidiLogging, NothingIsLostAtTheEndAndTheOrderIsKept) {
  std::string expected;
  {
    const auto devices = logging();
    const auto device = devices->open(0);
    for (std::uint32_t i = 0; i < 20000; ++i) {
      device->short_message(0x100000 + i);
      std::array<char, 32> line{};
      std::snprintf(line.data(), line.size(), "0.000\tshort\t%08X\n", 0x100000 + i);
      expected += line.data();
    }
  }
  EXPECT_EQ(log(), expected);
}

TEST_F(MidiLogging, ADeviceMayOutliveTheListItCameFrom) {
  auto devices = logging();
  auto device = devices->open(0);
  devices.reset();
  device->short_message(0x643C90);
  device.reset();
  EXPECT_EQ(log(), "0.000\tshort\t00643C90\n");
}

TEST_F(MidiLogging, EverythingGoesOnToTheDeviceWhichAnswers) {
  recorder_.unprepare_result = 65;
  recorder_.status = "The device is silent.";
  const auto devices = logging();
  EXPECT_EQ(devices->names(), (std::vector<std::string>{"Synth", "Module"}));
  {
    const auto device = devices->open(kDefaultOutput);
    device->short_message(0x643C90);
    EXPECT_EQ(device->unprepare_header({0xF0, 0xF7}), 65u);
    EXPECT_EQ(device->error_text(65), "The device is busy.");
    EXPECT_EQ(device->status(), "The device is silent.");
    device->reset();
  }
  using Call = RecordingOutput::Call;
  EXPECT_EQ(recorder_.calls, (std::vector<Call>{{Call::kOpen, kDefaultOutput, 0, {}},
                                                {Call::kShort, 0, 0x643C90, {}},
                                                {Call::kUnprepare, 0, 0, {0xF0, 0xF7}},
                                                {Call::kReset, kDefaultOutput, 0, {}},
                                                {Call::kClose, kDefaultOutput, 0, {}}}));
}

TEST_F(MidiLogging, ADeviceThatCannotBeOpenedIsToldAsWithoutTheLog) {
  recorder_.opens = false;
  const auto devices = logging();
  EXPECT_EQ(devices->open(1), nullptr);
  EXPECT_EQ(devices->open_error(), "The device cannot be opened.");
}

TEST_F(MidiLogging, ALogThatCannotBeWrittenIsTold) {
  file_ = "/no/such/folder/midi.log";
  try {
    logging();
    FAIL();
  } catch (const PortError& error) {
    EXPECT_STREQ(error.what(), "The MIDI log \"/no/such/folder/midi.log\" cannot be written.");
  }
}

}  // namespace
}  // namespace lunavox

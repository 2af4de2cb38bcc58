#include "midi/ports/recording_device.h"

#include <gtest/gtest.h>

namespace lunavox {
namespace {

const SysExBytes kXgSystemOn = {0xF0, 0x43, 0x10, 0x4C, 0x00, 0x00, 0x7E, 0x00, 0xF7};

TEST(RecordingDevice, KeepsMessagesAsTheyCameWithTheTime) {
  RecordingDevices devices;
  std::uint32_t now = 125;
  devices.record().now = [&] { return now; };
  const auto device = devices.open(0);
  now = 250;
  device->short_message(0xFF07B0);
  device->short_message(0);

  ASSERT_EQ(devices.record().calls.size(), 3u);
  EXPECT_EQ(devices.record().calls[0].kind, RecordedCall::kOpen);
  EXPECT_EQ(devices.record().calls[0].time_ms, 125u);
  EXPECT_EQ(devices.record().calls[1].time_ms, 250u);
  EXPECT_EQ(devices.record().shorts(), (std::vector<std::uint32_t>{0xFF07B0, 0}));
}

TEST(RecordingDevice, AnswersEachStepAsItWasTold) {
  RecordingDevices devices;
  devices.record().unprepare_result = 65;
  const auto device = devices.open(kDefaultOutput);

  EXPECT_EQ(device->prepare_header(kXgSystemOn), kMidiOk);
  EXPECT_EQ(device->long_message(kXgSystemOn), kMidiOk);
  EXPECT_EQ(device->unprepare_header(kXgSystemOn), 65u);
  EXPECT_EQ(device->error_text(65), "The device is busy.");
  EXPECT_EQ(devices.record().sysexes(), std::vector<SysExBytes>{kXgSystemOn});
}

TEST(RecordingDevice, TheRecordOutlivesTheDeviceAndTellsItsClosing) {
  RecordingDevices devices({"One", "Two"});
  devices.open(1)->reset();

  ASSERT_EQ(devices.record().calls.size(), 3u);
  EXPECT_EQ(devices.record().calls[0].device, 1);
  EXPECT_EQ(devices.record().calls[1].kind, RecordedCall::kReset);
  EXPECT_EQ(devices.record().calls[2].kind, RecordedCall::kClose);
}

TEST(RecordingDevice, ANumberPastTheListCannotBeOpened) {
  RecordingDevices devices;
  EXPECT_EQ(devices.open(1), nullptr);
  EXPECT_EQ(devices.open_error(), "There is no MIDI output number 1.");
}

}  // namespace
}  // namespace lunavox

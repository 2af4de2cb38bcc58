#include "midi/ports/system_input_devices.h"
#include "midi/ports/system_output_devices.h"

#include <gtest/gtest.h>

namespace lunavox {
namespace {

// What holds on every machine, with a sound card or MIDI ports and without.

TEST(SystemDevices, TheFirstOutputIsTheBuiltInSynthesiser) {
  SystemOutputDevices devices;
  const std::vector<std::string> names = devices.names();
  ASSERT_FALSE(names.empty());
  EXPECT_EQ(names.front(), "Built-in synthesiser");
}

TEST(SystemDevices, AnOutputThatIsNotListedCannotBeOpened) {
  SystemOutputDevices devices;
  EXPECT_EQ(devices.open(1000), nullptr);
  EXPECT_EQ(devices.open_error(), "There is no MIDI output number 1000.");
  EXPECT_EQ(devices.open(-2), nullptr);
  EXPECT_EQ(devices.open_error(), "There is no MIDI output number -2.");
}

TEST(SystemDevices, AnInputThatIsNotListedCannotBeOpened) {
  SystemInputDevices devices;
  EXPECT_EQ(devices.open(1000, [](std::uint32_t) {}), nullptr);
  EXPECT_EQ(devices.open_error(), "There is no MIDI input number 1000.");
  EXPECT_EQ(devices.open(-1, [](std::uint32_t) {}), nullptr);
  EXPECT_EQ(devices.open_error(), "There is no MIDI input number -1.");
}

TEST(SystemDevices, AWantedSoundFontThatIsMissingKeepsTheSynthesiserFromOpening) {
  SystemOutputDevices devices("/no/such.sf2");
  EXPECT_EQ(devices.open(0), nullptr);
  EXPECT_EQ(devices.open_error(), "The SoundFont \"/no/such.sf2\" does not exist.");
}

TEST(SystemDevices, TheSynthesiserOpensAgainAndAgainAndTheLibrariesPrintNothing) {
  SystemOutputDevices devices;
  testing::internal::CaptureStderr();
  testing::internal::CaptureStdout();
  for (int i = 0; i < 2; ++i) {
    const auto device = devices.open(0);
    if (device) {
      EXPECT_EQ(devices.open_error(), "");
      EXPECT_EQ(device->short_message(0x643C90), kMidiOk);
      const std::string status = device->status();
      EXPECT_TRUE(status.empty() ||
                  status == "No sound card was found: the synthesiser plays silently.");
    } else {
      EXPECT_EQ(devices.open_error(),
                "No SoundFont was found: install one, such as the package timgm6mb-soundfont.");
    }
  }
  devices.names();
  SystemInputDevices().names();
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

}  // namespace
}  // namespace lunavox

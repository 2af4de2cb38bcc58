#include "midi/ports/synth_device.h"
#include "midi/ports/synthesiser.h"
#include "tests/support/temp_folder.h"

#include <algorithm>
#include <cmath>

#include <gtest/gtest.h>

namespace lunavox {
namespace {

using test::TempFolder;

constexpr char kSoundFont[] = "/usr/share/sounds/sf2/TimGM6mb.sf2";
constexpr int kRate = 44100;
const SysExBytes kXgSystemOn = {0xF0, 0x43, 0x10, 0x4C, 0x00, 0x00, 0x7E, 0x00, 0xF7};

/// The synthesiser as the output port drives it, with the SoundFont whose presets are known.
class SynthSound : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(std::filesystem::exists(kSoundFont)) << kSoundFont << " is not installed";
    std::string problem;
    synth_ = Synthesiser::load(kSoundFont, kRate, problem);
    ASSERT_TRUE(synth_) << problem;
    device_ = std::make_unique<SynthDevice>(synth_, SynthDevice::Sound::kRendered);
  }

  void send(std::initializer_list<std::uint32_t> messages) {
    for (const std::uint32_t packed : messages) device_->short_message(packed);
  }

  void xg_system_on() {
    EXPECT_EQ(device_->prepare_header(kXgSystemOn), kMidiOk);
    EXPECT_EQ(device_->long_message(kXgSystemOn), kMidiOk);
    EXPECT_EQ(device_->unprepare_header(kXgSystemOn), kMidiOk);
  }

  /// Loudness of the next stretch of sound: its root mean square.
  double loudness(int ms) {
    std::vector<float> sound(2 * static_cast<std::size_t>(kRate * ms / 1000));
    synth_->render(sound);
    double sum = 0;
    for (const float sample : sound) sum += double{sample} * double{sample};
    return std::sqrt(sum / static_cast<double>(sound.size()));
  }

  std::shared_ptr<Synthesiser> synth_;
  std::unique_ptr<SynthDevice> device_;
};

constexpr double kSilence = 1e-4;

TEST_F(SynthSound, ChannelTenIsADrumChannelAfterXgSystemOn) {
  send({0x0000B9, 0x05C9});  // a melodic bank and voice on channel 10
  EXPECT_FALSE(synth_->is_drum_channel(9));
  xg_system_on();
  EXPECT_TRUE(synth_->is_drum_channel(9));
  EXPECT_EQ(synth_->preset_name(9), "Standard");
  EXPECT_EQ(synth_->preset_name(0), "Piano 1");
}

TEST_F(SynthSound, Bank127PicksDrumKitsOnAnyChannel) {
  xg_system_on();
  send({0x7F00B9, 0x0020B9, 0x08C9});
  EXPECT_TRUE(synth_->is_drum_channel(9));
  EXPECT_EQ(synth_->preset_name(9), "Room");
  send({0x7F00B3, 0x0020B3, 0x19C3});
  EXPECT_TRUE(synth_->is_drum_channel(3));
  EXPECT_EQ(synth_->preset_name(3), "TR 808");
}

TEST_F(SynthSound, AKitThatTheSoundFontLacksIsTheStandardKit) {
  xg_system_on();
  send({0x7F00B9, 0x0020B9, 0x4DC9});
  EXPECT_TRUE(synth_->is_drum_channel(9));
  EXPECT_EQ(synth_->preset_name(9), "Standard");
}

TEST_F(SynthSound, Bank0PicksMelodicVoices) {
  xg_system_on();
  send({0x0000B1, 0x0020B1, 0x05C1});
  EXPECT_EQ(synth_->preset_name(1), "E.Piano 2");
  EXPECT_FALSE(synth_->is_drum_channel(1));
}

TEST_F(SynthSound, AVariationThatTheSoundFontLacksIsTheVoiceOfBank0) {
  xg_system_on();
  send({0x0000B0, 0x0320B0, 0x05C0});
  EXPECT_EQ(synth_->preset_name(0), "E.Piano 2");
  send({0x0000B2, 0x7020B2, 0x21C2});
  EXPECT_EQ(synth_->preset_name(2), "Fingered Bass");
  send({0x643C90});
  EXPECT_GT(loudness(200), kSilence);
}

TEST_F(SynthSound, ANoteSoundsUntilItsVelocity0NoteOn) {
  xg_system_on();
  send({0x0000B0, 0x0020B0, 0x13C0, 0x005BB0, 0x643C90});  // an organ without reverb
  EXPECT_GT(loudness(500), 0.01);
  EXPECT_GT(loudness(500), 0.01);
  send({0x003C90});
  loudness(1000);
  EXPECT_LT(loudness(500), kSilence);
}

TEST_F(SynthSound, NothingSoundsBeforeANote) {
  EXPECT_LT(loudness(100), kSilence);
}

TEST_F(SynthSound, AVolumeOf255IsAVolumeOf127) {
  xg_system_on();
  send({0x13C0, 0x0007B0, 0x643C90});
  EXPECT_LT(loudness(300), kSilence);
  send({0x7F07B0});
  loudness(100);
  const double full = loudness(300);
  send({0x4007B0});
  loudness(100);
  EXPECT_LT(loudness(300), 0.6 * full);
  send({0xFF07B0});
  loudness(100);
  EXPECT_NEAR(loudness(300), full, 0.2 * full);
}

TEST_F(SynthSound, TheMessageZeroDoesNothing) {
  send({0x643C90, 0});
  EXPECT_GT(loudness(200), 0.001);
}

TEST_F(SynthSound, AnUnknownSysExDoesNothing) {
  const SysExBytes unknown = {0xF0, 0x43, 0x10, 0x4C, 0x02, 0x01, 0x58, 0x40, 0xF7};
  device_->prepare_header(unknown);
  EXPECT_EQ(device_->long_message(unknown), kMidiOk);
  EXPECT_EQ(device_->long_message({0xF0, 0xF7}), kMidiOk);
}

TEST_F(SynthSound, ASysExThatIsNotPreparedIsRefused) {
  EXPECT_EQ(device_->long_message(kXgSystemOn), kNotPrepared);
  EXPECT_EQ(device_->error_text(kNotPrepared), "The message has not been prepared.");
}

TEST_F(SynthSound, ResetSilencesWhatSounds) {
  send({0x13C0, 0x005BB0, 0x643C90, 0x644090});
  EXPECT_GT(loudness(300), 0.01);
  device_->reset();
  loudness(1000);  // the echo of the room
  EXPECT_LT(loudness(300), kSilence);
}

TEST_F(SynthSound, LowBrightnessTakesTheHighsOutOfASound) {
  // What differs from sample to sample is what is high in a sound.
  const auto roughness = [this] {
    std::vector<float> sound(2 * kRate / 4);
    synth_->render(sound);
    double sum = 0;
    for (std::size_t i = 2; i < sound.size(); i += 2) sum += std::abs(sound[i] - sound[i - 2]);
    return sum;
  };
  send({0x1EC0, 0x643090});  // a distorted guitar
  loudness(100);
  const double bright = roughness();
  device_->reset();
  loudness(500);
  send({0x004AB0, 0x643090});
  loudness(100);
  EXPECT_LT(roughness(), 0.7 * bright);
}

TEST_F(SynthSound, ASlowAttackComesLater) {
  const auto first_moment = [this] {
    send({0x643C90});
    const double result = loudness(30);
    device_->reset();
    loudness(500);
    return result;
  };
  send({0x13C0});
  const double usual = first_moment();
  send({0x7F49B0});
  EXPECT_LT(first_moment(), 0.8 * usual);
  send({0x4049B0});
  EXPECT_NEAR(first_moment(), usual, 0.1 * usual);
}

TEST_F(SynthSound, ATunnelRingsLongerThanAWhiteRoom) {
  const auto echo_in = [this](std::uint8_t type) {
    const SysExBytes reverb = {0xF0, 0x43, 0x10, 0x4C, 0x02, 0x01, 0x00, type, 0x00, 0xF7};
    device_->prepare_header(reverb);
    device_->long_message(reverb);
    send({0x13C0, 0x7F5BB0, 0x643C90});
    loudness(500);
    send({0x0078B0});
    loudness(500);
    return loudness(500);
  };
  const double white_room = echo_in(0x10);
  loudness(5000);
  EXPECT_GT(echo_in(0x11), 3 * white_room);
}

TEST(SynthSoundFont, ABrokenSoundFontIsOneSentence) {
  ASSERT_TRUE(std::filesystem::exists(kSoundFont)) << kSoundFont << " is not installed";
  const TempFolder folder;
  std::ifstream file(kSoundFont, std::ios::binary);
  const std::string whole(std::istreambuf_iterator<char>(file), {});
  const std::string_view begin = whole;
  for (const std::size_t length : {12u, 100u, 5000u, 3000000u}) {
    const auto broken = folder.write("broken.sf2", begin.substr(0, length));
    std::string problem;
    testing::internal::CaptureStderr();
    EXPECT_EQ(Synthesiser::load(broken, kRate, problem), nullptr);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(problem, "The SoundFont \"" + broken + "\" is broken.");
  }
}

}  // namespace
}  // namespace lunavox

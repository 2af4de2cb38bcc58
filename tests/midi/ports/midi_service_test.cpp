#include "midi/ports/midi_service.h"

#include <gtest/gtest.h>

namespace lunavox {
namespace {

TEST(MidiService, OurOwnPortsAreNotOffered) {
  EXPECT_TRUE(is_own_port("Lunavox output:Lunavox virtual port"));
  EXPECT_TRUE(is_own_port("Lunavox input-01:Lunavox virtual input"));
  EXPECT_TRUE(is_own_port("Lunavox input:Lunavox virtual input 128:0"));
  EXPECT_FALSE(is_own_port("system:midi_playback_1"));
  EXPECT_FALSE(is_own_port("Lunavox"));
}

TEST(MidiService, AlsaHardwareIsWhatTheKernelOffersButTheThroughPort) {
  EXPECT_TRUE(is_hardware_port(RtMidi::LINUX_ALSA, "XG Module:XG Module MIDI 1 20:0"));
  EXPECT_FALSE(is_hardware_port(RtMidi::LINUX_ALSA, "Midi Through:Midi Through Port-0 14:0"));
  EXPECT_FALSE(is_hardware_port(RtMidi::LINUX_ALSA, "Some Program:in 128:0"));
  EXPECT_FALSE(is_hardware_port(RtMidi::LINUX_ALSA, "nameless"));
}

TEST(MidiService, JackHardwareIsWhatTheServerItselfOffers) {
  EXPECT_TRUE(is_hardware_port(RtMidi::UNIX_JACK, "system:midi_playback_1"));
  EXPECT_TRUE(is_hardware_port(RtMidi::UNIX_JACK, "a2j:XG Module [20] (playback): MIDI 1"));
  EXPECT_FALSE(is_hardware_port(RtMidi::UNIX_JACK, "midi-monitor:input"));
}

TEST(MidiService, TheBuiltInSynthesiserIsNoHardwarePort) {
  EXPECT_FALSE(is_hardware_port(RtMidi::LINUX_ALSA, "Built-in synthesiser"));
  EXPECT_FALSE(is_hardware_port(RtMidi::UNSPECIFIED, "Built-in synthesiser"));
}

TEST(MidiService, TheSystemsDefaultIsTheFirstHardwarePortElseTheSynthesiser) {
  EXPECT_EQ(default_output(RtMidi::UNIX_JACK,
                           {"Built-in synthesiser", "midi-monitor:input", "system:midi_playback_1",
                            "system:midi_playback_2", "Lunavox virtual port"}),
            2);
  EXPECT_EQ(default_output(RtMidi::UNIX_JACK,
                           {"Built-in synthesiser", "midi-monitor:input", "Lunavox virtual port"}),
            0);
  EXPECT_EQ(default_output(RtMidi::UNSPECIFIED, {"Built-in synthesiser"}), 0);
}

}  // namespace
}  // namespace lunavox

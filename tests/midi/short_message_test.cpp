#include "midi/short_message.h"

#include "grid/note_text.h"
#include "grid/runtime_numbers.h"

#include <string>

#include <gtest/gtest.h>

namespace lunavox {
namespace {

/// A 16-bit value as hexadecimal text: negative values in two's complement.
std::string hex16(int value) {
  return hex_text(static_cast<std::uint16_t>(value));
}

TEST(ShortMessage, EveryValueOfEveryCurveGivesTheNumberOfItsText) {
  const std::string forms[] = {"07b", "0ab", "01b", "4ab", "5bb",
                               "5db", "5eb", "49b", "48b", "00e"};
  for (int effect = kVolume; effect <= kPitch; ++effect) {
    for (int value = -32768; value <= 32767; ++value) {
      const std::string text = hex16(value) + forms[effect - kVolume] + "9";
      ASSERT_EQ(curve_message(effect, 9, value), hex_value(text)) << text;
    }
  }
}

TEST(ShortMessage, EveryChannelIsOneHexadecimalDigit) {
  for (int channel = 0; channel <= 15; ++channel) {
    const std::string digit(1, channel_digit(channel));
    EXPECT_EQ(control_change(channel, 7, 100), hex_value("6407b" + digit));
    EXPECT_EQ(pitch_bend(channel, 64), hex_value("4000e" + digit));
    EXPECT_EQ(program_change(channel, 24), hex_value("18c" + digit));
  }
}

TEST(ShortMessage, ProgramChangesOfAnyNumberGiveTheNumberOfTheirText) {
  EXPECT_EQ(program_change(0, 127), 0x7FC0U);
  EXPECT_EQ(program_change(9, 0), 0xC9U);
  EXPECT_EQ(program_change(0, 300), hex_value(hex16(300) + "c0"));
  EXPECT_EQ(program_change(0, -1), hex_value(hex16(-1) + "c0"));
}

TEST(ShortMessage, AVolumeOf255IsNotClamped) {
  EXPECT_EQ(curve_message(kVolume, 0, 255), 0xFF07B0U);
}

TEST(ShortMessage, TheInstrumentIsNoCurve) {
  EXPECT_THROW(curve_message(kInstrument, 0, 1), RuntimeError);
  EXPECT_THROW(curve_message(12, 0, 1), RuntimeError);
}

}  // namespace
}  // namespace lunavox

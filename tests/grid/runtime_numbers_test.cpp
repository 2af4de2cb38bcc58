#include "grid/runtime_numbers.h"

#include "grid/runtime_error.h"

#include <limits>

#include <gtest/gtest.h>

namespace lunavox {
namespace {

TEST(RuntimeNumbers, PrintingPutsABlankBeforeNumbersThatAreNotNegative) {
  EXPECT_EQ(print_number(5), " 5");
  EXPECT_EQ(print_number(0), " 0");
  EXPECT_EQ(print_number(-1), "-1");
}

TEST(RuntimeNumbers, LeadingNumberIgnoresWhatFollows) {
  EXPECT_EQ(leading_number("12abc"), 12);
  EXPECT_EQ(leading_number("  -3.5e1x"), -35);
  EXPECT_EQ(leading_number("+7"), 7);
  EXPECT_EQ(leading_number(".5"), 0.5);
  EXPECT_EQ(leading_number(""), 0);
  EXPECT_EQ(leading_number("stop"), 0);
  EXPECT_EQ(leading_number("inf"), 0);
  EXPECT_EQ(leading_number("nan"), 0);
}

TEST(RuntimeNumbers, NumbersBeyondADoubleAreInfiniteOrZero) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  EXPECT_EQ(leading_number("1.5e999x"), kInfinity);
  EXPECT_EQ(leading_number("-1.5e999"), -kInfinity);
  EXPECT_EQ(leading_number("1.5e-999"), 0);
}

TEST(RuntimeNumbers, LoneSignsAndPointsAreNoNumbers) {
  EXPECT_EQ(leading_number("-"), 0);
  EXPECT_EQ(leading_number("+"), 0);
  EXPECT_EQ(leading_number("."), 0);
  EXPECT_EQ(leading_number("+-3"), 0);
  EXPECT_EQ(leading_number("   "), 0);
  EXPECT_EQ(leading_number("-.5"), -0.5);
  EXPECT_EQ(leading_number("1e"), 1);
}

TEST(RuntimeNumbers, PlainTextHasNoLeadingBlank) {
  EXPECT_EQ(plain_number(0), "0");
  EXPECT_EQ(plain_number(127), "127");
  EXPECT_EQ(plain_number(-1), "-1");
  EXPECT_EQ(plain_number(64.0), "64");
  EXPECT_EQ(plain_number(64.5), "64.5");
}

TEST(RuntimeNumbers, RoundingOverflowsAtTheEndsOfItsType) {
  EXPECT_EQ(round_half_even(2147483647.4), 2147483647);
  EXPECT_THROW(round_half_even(2147483647.5), RuntimeError);
  EXPECT_EQ(round_half_even(-2147483648.5), -2147483647 - 1);
  EXPECT_EQ(round_to_int16(32767.4), 32767);
  EXPECT_EQ(round_to_int16(-32768.5), -32768);
  EXPECT_THROW(round_to_int16(-32769), RuntimeError);
  EXPECT_THROW(round_half_even(std::numeric_limits<double>::quiet_NaN()), RuntimeError);
}

TEST(RuntimeNumbers, HalvesGoToTheEvenNeighbour) {
  EXPECT_EQ(round_half_even(0.5), 0);
  EXPECT_EQ(round_half_even(1.5), 2);
  EXPECT_EQ(round_half_even(2.5), 2);
  EXPECT_EQ(round_half_even(-2.5), -2);
  EXPECT_THROW(round_half_even(1e10), RuntimeError);
  EXPECT_THROW(round_to_int16(32767.5), RuntimeError);
}

TEST(RuntimeNumbers, HexadecimalTextIsUpperCaseWithoutLeadingZeros) {
  EXPECT_EQ(hex_text(0), "0");
  EXPECT_EQ(hex_text(255), "FF");
  EXPECT_EQ(hex_text(2999), "BB7");
  EXPECT_EQ(hex_value("643C90"), 0x643C90U);
  EXPECT_EQ(hex_value("643c90"), 0x643C90U);
  EXPECT_EQ(hex_value(""), 0U);
  EXPECT_EQ(hex_value("stop"), 0U);
}

}  // namespace
}  // namespace lunavox

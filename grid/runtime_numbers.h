#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// How the program writes and reads numbers. Captions, files and messages all depend on these forms
// to the letter, so nobody formats a number by hand.
namespace lunavox {

/// "5" as " 5", "-1" as "-1": a blank stands where the sign would be.
std::string print_number(long long value);

/// Plain decimal text, without the leading blank.
std::string plain_number(int value);

/// Plain decimal text of a number that may have a fraction: 64 as "64", 64.5 as "64.5".
std::string plain_number(double value);

/// The number at the start of a text, 0 where there is none. Leading blanks are passed over; sign,
/// fraction and exponent are read; what follows the number is ignored. A number too large for a
/// double gives infinity, which no range check lets pass.
double leading_number(std::string_view text);

/// The nearest whole number, halves to the even neighbour.
/// @throws RuntimeError (Overflow) where the result does not fit 32 bits or is not a number.
std::int32_t round_half_even(double value);

/// As round_half_even, for 16-bit quantities.
/// @throws RuntimeError (Overflow) where the result does not fit.
std::int16_t round_to_int16(double value);

/// Upper-case hexadecimal without leading zeros, "0" for 0.
std::string hex_text(std::uint32_t value);

/// The number that hexadecimal digits at the start of a text stand for, 0 where there are none (so
/// the empty text and "stop" give 0). Only the low 32 bits are kept.
std::uint32_t hex_value(std::string_view digits);

}  // namespace lunavox

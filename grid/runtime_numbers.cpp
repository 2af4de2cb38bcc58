#include "grid/runtime_numbers.h"

#include "grid/runtime_error.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <locale>
#include <sstream>

namespace lunavox {
namespace {

bool is_digit(char c) {
  return c >= '0' && c <= '9';
}

/// The value of one hexadecimal digit, -1 for any other character.
int hex_digit(char c) {
  if (is_digit(c)) return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

/// A number that is too large or too small for a double: infinity or about zero. Read by a stream
/// of its own locale: the user's may have a decimal comma.
double extreme_number(std::string_view text) {
  std::istringstream stream{std::string(text)};
  stream.imbue(std::locale::classic());
  double value = 0;
  stream >> value;
  return stream ? value : std::copysign(std::numeric_limits<double>::infinity(), value);
}

}  // namespace

std::string print_number(long long value) {
  return value < 0 ? std::to_string(value) : " " + std::to_string(value);
}

std::string plain_number(int value) {
  return std::to_string(value);
}

std::string plain_number(double value) {
  char buffer[64];
  const auto end = std::to_chars(buffer, buffer + sizeof buffer, value).ptr;
  return {buffer, end};
}

double leading_number(std::string_view text) {
  const auto start = text.find_first_not_of(" \t");
  if (start == std::string_view::npos) return 0;
  text.remove_prefix(start);
  if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
  // from_chars would also read "inf" and "nan", which are not numbers to the user.
  const std::size_t first = text.starts_with('-') ? 1 : 0;
  if (first >= text.size() || !(is_digit(text[first]) || text[first] == '.')) return 0;
  double value = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
  if (result.ec == std::errc::result_out_of_range) return extreme_number(text);
  return result.ec == std::errc{} ? value : 0;
}

std::int32_t round_half_even(double value) {
  const double rounded = std::nearbyint(value);  // the default rounding mode is half to even
  using Limits = std::numeric_limits<std::int32_t>;
  if (!(rounded >= Limits::min() && rounded <= Limits::max())) {
    throw RuntimeError(RuntimeError::kOverflow);
  }
  return static_cast<std::int32_t>(rounded);
}

std::int16_t round_to_int16(double value) {
  const std::int32_t rounded = round_half_even(value);
  using Limits = std::numeric_limits<std::int16_t>;
  if (rounded < Limits::min() || rounded > Limits::max()) {
    throw RuntimeError(RuntimeError::kOverflow);
  }
  return static_cast<std::int16_t>(rounded);
}

std::string hex_text(std::uint32_t value) {
  static constexpr char kDigits[] = "0123456789ABCDEF";
  std::string text;
  do {
    text.insert(text.begin(), kDigits[value % 16]);
    value /= 16;
  } while (value != 0);
  return text;
}

std::uint32_t hex_value(std::string_view digits) {
  std::uint32_t value = 0;
  for (const char c : digits) {
    const int digit = hex_digit(c);
    if (digit < 0) break;
    value = value * 16 + static_cast<std::uint32_t>(digit);
  }
  return value;
}

}  // namespace lunavox

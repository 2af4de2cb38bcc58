#include "files/event_text.h"

#include "grid/runtime_numbers.h"

namespace lunavox {
namespace {

/// The value of a hexadecimal digit, a blank counting as zero; -1 for other characters.
constexpr int digit_value(char c) {
  if (c == ' ') return 0;
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  return -1;
}

constexpr auto kDigitValues = [] {
  std::array<std::int8_t, 256> values{};
  for (int c = 0; c < 256; ++c) {
    values[static_cast<std::size_t>(c)] =
        static_cast<std::int8_t>(digit_value(static_cast<char>(c)));
  }
  return values;
}();

int value_of(char c) {
  return kDigitValues[static_cast<unsigned char>(c)];
}

/// As a number is read from its start: what is no digit ends it.
char byte_of(char first, char second) {
  const int high = value_of(first);
  const int low = value_of(second);
  if (high < 0) return 0;
  return static_cast<char>(low < 0 ? high : high * 16 + low);
}

}  // namespace

void midwrite(std::string_view text, std::string& bytes) {
  const std::size_t pairs = text.size() / 2;
  const std::size_t start = bytes.size();
  bytes.resize(start + pairs);
  for (std::size_t i = 0; i < pairs; ++i) {
    bytes[start + i] = byte_of(text[2 * i], text[2 * i + 1]);
  }
  if (text.size() % 2 != 0) bytes += byte_of('0', text.back());
}

std::string reverse(std::string_view text) {
  std::string reversed;
  append_reversed(text, reversed);
  return reversed;
}

void append_reversed(std::string_view text, std::string& to) {
  for (std::size_t rest = text.size(); rest >= 2; rest -= 2) to.append(text, rest - 2, 2);
}

std::string right_aligned(std::uint32_t value, std::size_t width) {
  std::string text = hex_text(value);
  if (text.size() < width) text.insert(0, width - text.size(), ' ');
  return text;
}

std::string computed_delta(int lines) {
  if (lines < 128) return right_aligned(static_cast<std::uint32_t>(lines), 2);
  return "8" + hex_text(static_cast<std::uint32_t>(lines / 127)) +
         right_aligned(static_cast<std::uint32_t>(lines % 127), 2);
}

}  // namespace lunavox

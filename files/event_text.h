#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

// A Standard MIDI File is composed as text of hexadecimal digit pairs, one pair a byte. Values
// stand right-aligned in fields of a fixed width, padded with blanks that count as zeros; a value
// that is longer than its field is not cut. Events are composed last byte first and then put right.
namespace lunavox {

/// Converts a text of digit pairs to bytes and appends them: blanks count as "0", each pair from
/// the left is a byte, and a text of odd length ends with a byte of one digit.
void midwrite(std::string_view text, std::string& bytes);

/// The pairs of a text in reverse order. The first character of a text of odd length is lost.
std::string reverse(std::string_view text);
/// Appends what reverse() gives.
void append_reversed(std::string_view text, std::string& to);

/// A value's upper-case hexadecimal text, padded on the left with blanks to a width.
std::string right_aligned(std::uint32_t value, std::size_t width);

/// The time since the last note event of a track, in lines, as one byte below 128 and as two from
/// there on: "8" with the quotient by 127, then the remainder. Files have always been written with
/// 127 here, where other programs divide by 128.
std::string computed_delta(int lines);

/// The text of one channel event while it is composed, last byte first.
class EventText {
 public:
  /// A data byte in a field of two digits.
  EventText& data(std::uint32_t value) {
    // Nearly all values are bytes, and there are hundreds of thousands of them.
    if (value < 256) return pair(value < 16 ? ' ' : kHexDigits[value / 16], kHexDigits[value % 16]);
    return digits(right_aligned(value, 2));
  }
  /// The status byte.
  /// @param kind  such as 'B' for a control change
  EventText& status(char kind, int channel) {
    return pair(kind, kHexDigits[static_cast<std::size_t>(channel) % 16]);
  }
  /// The delta time, which comes last here and first in the file.
  EventText& delta(std::string_view text) {
    return text.size() == 2 ? pair(text[0], text[1]) : digits(text);
  }

  std::string_view text() const { return {characters_.data(), size_}; }

 private:
  static constexpr std::string_view kHexDigits = "0123456789ABCDEF";

  EventText& pair(char first, char second) {
    characters_[size_] = first;
    characters_[size_ + 1] = second;
    size_ += 2;
    return *this;
  }
  EventText& digits(std::string_view text) {
    for (const char c : text) characters_[size_++] = c;
    return *this;
  }

  // Two values of eight digits, the status and the longest delta.
  std::array<char, 32> characters_;
  std::size_t size_ = 0;
};

}  // namespace lunavox

#include "files/field_reader.h"

#include "grid/runtime_error.h"
#include "grid/runtime_numbers.h"

#include <algorithm>

namespace lunavox {
namespace {

bool ends_field(char c) {
  return c == ',' || c == '\r' || c == '\n';
}

/// The first place from which a field goes no further.
const char* field_end(const char* from, const char* end) {
  for (; from != end; ++from) {
    // What ends a field comes early in the alphabet: one comparison passes over nearly all.
    if (static_cast<unsigned char>(*from) <= ',' && ends_field(*from)) break;
  }
  return from;
}

const char* after_spaces(const char* from, const char* end) {
  while (from != end && *from == ' ') ++from;
  return from;
}

}  // namespace

std::string_view FieldReader::text() {
  if (at_end()) throw RuntimeError(RuntimeError::kInputPastEndOfFile);
  skip_spaces();
  if (next_ != end_ && *next_ == '"') return quoted_text();
  const char* const start = next_;
  next_ = field_end(start, end_);
  const char* last = next_;
  while (last != start && last[-1] == ' ') --last;
  skip_separator();
  return {start, last};
}

std::string_view FieldReader::quoted_text() {
  const char* const start = next_ + 1;
  const char* const last = std::find(start, end_, '"');
  next_ = last == end_ ? end_ : last + 1;
  // What follows the closing quote, up to the comma or line end, starts a field of its own.
  skip_spaces();
  skip_separator();
  return {start, last};
}

double FieldReader::number() {
  return leading_number(text());
}

std::int32_t FieldReader::integer() {
  if (const auto value = small_integer()) return *value;
  return round_half_even(number());
}

std::int16_t FieldReader::short_integer() {
  if (const auto value = small_integer()) return *value;
  return round_to_int16(number());
}

bool FieldReader::flag() {
  if (const auto value = small_integer()) return *value != 0;
  return number() != 0;
}

std::optional<std::int16_t> FieldReader::small_integer() {
  constexpr int kMostDigits = 4;
  const char* place = after_spaces(next_, end_);
  const bool negative = place != end_ && *place == '-';
  if (negative) ++place;
  const char* const first_digit = place;
  int value = 0;
  for (; place != end_ && *place >= '0' && *place <= '9'; ++place) {
    if (place - first_digit == kMostDigits) return std::nullopt;
    value = value * 10 + (*place - '0');
  }
  if (place == first_digit) return std::nullopt;
  place = after_spaces(place, end_);
  if (place != end_ && !ends_field(*place)) return std::nullopt;
  next_ = place;
  skip_separator();
  return static_cast<std::int16_t>(negative ? -value : value);
}

void FieldReader::skip_spaces() {
  next_ = after_spaces(next_, end_);
}

void FieldReader::skip_separator() {
  if (next_ == end_ || !ends_field(*next_)) return;
  const bool carriage_return = *next_ == '\r';
  ++next_;
  if (carriage_return && next_ != end_ && *next_ == '\n') ++next_;
}

}  // namespace lunavox

#include "files/field_reader.h"

#include "grid/runtime_error.h"
#include "grid/runtime_numbers.h"

#include <algorithm>
#include <optional>

namespace lunavox {
namespace {

bool ends_field(char c) {
  return c == ',' || c == '\r' || c == '\n';
}

/// The value of a plain whole number of at most four digits. Nearly every field of a song is one,
/// and reading them as fractions would take longer than all the rest of opening it.
std::optional<std::int16_t> small_integer(std::string_view text) {
  const bool negative = text.starts_with('-');
  if (negative) text.remove_prefix(1);
  if (text.empty() || text.size() > 4) return std::nullopt;
  int value = 0;
  for (const char c : text) {
    if (c < '0' || c > '9') return std::nullopt;
    value = value * 10 + (c - '0');
  }
  return static_cast<std::int16_t>(negative ? -value : value);
}

}  // namespace

std::string_view FieldReader::text() {
  if (at_end()) throw RuntimeError(RuntimeError::kInputPastEndOfFile);
  skip_spaces();
  if (next_ != end_ && *next_ == '"') return quoted_text();
  const char* const start = next_;
  next_ = std::find_if(start, end_, ends_field);
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
  const std::string_view field = text();
  if (const auto value = small_integer(field)) return *value;
  return round_half_even(leading_number(field));
}

std::int16_t FieldReader::short_integer() {
  const std::string_view field = text();
  if (const auto value = small_integer(field)) return *value;
  return round_to_int16(leading_number(field));
}

bool FieldReader::flag() {
  const std::string_view field = text();
  if (const auto value = small_integer(field)) return *value != 0;
  return leading_number(field) != 0;
}

void FieldReader::skip_spaces() {
  while (next_ != end_ && *next_ == ' ') ++next_;
}

void FieldReader::skip_separator() {
  if (next_ == end_ || !ends_field(*next_)) return;
  const bool carriage_return = *next_ == '\r';
  ++next_;
  if (carriage_return && next_ != end_ && *next_ == '\n') ++next_;
}

}  // namespace lunavox

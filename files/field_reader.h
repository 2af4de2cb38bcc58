#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace lunavox {

/// Reads the fields of a song, bank or configuration file one after the other.
///
/// A field ends at a comma or at the end of its line, which may be CR LF, LF or CR. Spaces around a
/// field are dropped. A field that begins with a double quote runs to the next double quote and may
/// hold commas, spaces and line ends. Bytes are taken as they are.
class FieldReader {
 public:
  /// @param bytes the whole file; must outlive the reader and every text it has given out
  explicit FieldReader(std::string_view bytes)
      : next_(bytes.data()), end_(bytes.data() + bytes.size()) {}

  /// True when no byte is left. A line end after the last field belongs to that field.
  bool at_end() const { return next_ == end_; }

  /// The next field.
  /// @throws RuntimeError (Input past end of file)
  std::string_view text();

  /// The number at the start of the next field, 0 where there is none.
  /// @throws RuntimeError (Input past end of file)
  double number();

  /// The next field's number brought to the nearest whole number, halves to the even neighbour.
  /// @throws RuntimeError (Input past end of file; Overflow where it does not fit)
  std::int32_t integer();
  std::int16_t short_integer();

  /// True exactly when the next field's number is not 0.
  /// @throws RuntimeError (Input past end of file)
  bool flag();

 private:
  std::string_view quoted_text();
  /// The next field where it is a plain whole number of at most four digits, as nearly every field
  /// of a song is; none, and nothing read, where it is not. At the end of the file there is none.
  std::optional<std::int16_t> small_integer();
  void skip_spaces();
  /// Passes over the one comma or line end that stands next, if any.
  void skip_separator();

  const char* next_;
  const char* end_;
};

}  // namespace lunavox

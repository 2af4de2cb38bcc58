#include "files/recovery_text.h"

#include "files/song_writer.h"
#include "grid/runtime_numbers.h"

#include <string_view>

namespace lunavox {
namespace {

/// A name as one field of a line: what would end or change the field is written as %XX.
std::string name_field(const std::string& name) {
  static constexpr char kDigits[] = "0123456789ABCDEF";
  std::string field;
  for (const char c : name) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte > ' ' && c != ',' && c != '"' && c != '%') {
      field += c;
    } else {
      field += {'%', kDigits[byte / 16], kDigits[byte % 16]};
    }
  }
  return field;
}

/// The name that such a field stands for.
std::string name_of_field(std::string_view field) {
  std::string name;
  while (!field.empty()) {
    const bool written_as_number = field.front() == '%' && field.size() >= 3;
    name += written_as_number ? static_cast<char>(hex_value(field.substr(1, 2))) : field.front();
    field.remove_prefix(written_as_number ? 3 : 1);
  }
  return name;
}

}  // namespace

std::string recovery_text(const Song& song, const std::string& name) {
  // Texts are guarded: what the user typed must come back, whatever it holds.
  return song_text(song, TextGuard::kQuotes) + name_field(name) + "\r\n";
}

std::string recovered_name(FieldReader& fields) {
  return fields.at_end() ? std::string() : name_of_field(fields.text());
}

}  // namespace lunavox

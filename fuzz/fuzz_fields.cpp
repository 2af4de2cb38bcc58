#include "files/field_reader.h"
#include "fuzz/check.h"
#include "grid/runtime_error.h"

#include <cstddef>
#include <cstdint>

using lunavox::FieldReader;
using lunavox::RuntimeError;
using lunavox::fuzz::check;

/// The reader comes to the end of any file, and each field lies within the file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  FieldReader texts(bytes);
  for (std::size_t fields = 0; !texts.at_end(); ++fields) {
    const std::string_view field = texts.text();
    check(field.data() >= bytes.data() && field.data() + field.size() <= bytes.data() + size,
          "a field lies within the file");
    check(fields < size, "each field takes at least a byte");
  }
  FieldReader numbers(bytes);
  try {
    while (true) {
      numbers.short_integer();
      numbers.flag();
      numbers.number();
      numbers.integer();
    }
  } catch (const RuntimeError& error) {
    check(error.number() == RuntimeError::kInputPastEndOfFile ||
              error.number() == RuntimeError::kOverflow,
          "numbers end in one of their two errors");
  }
  return 0;
}

#include "files/drum_kits.h"

#include "files/field_reader.h"
#include "files/file_bytes.h"

#include <algorithm>
#include <utility>

namespace lunavox {

DrumKits DrumKits::read(const std::filesystem::path& file) {
  return parse(read_file(file));
}

DrumKits DrumKits::parse(std::string_view bytes) {
  DrumKits kits;
  FieldReader fields(bytes);
  for (int i = 0; i < kKits; ++i) {
    std::string name(fields.text());
    kits.kits_.push_back({std::move(name), fields.short_integer()});
  }
  return kits;
}

int DrumKits::index_of(int program) const {
  const auto found = std::find_if(kits_.begin(), kits_.end(),
                                  [&](const DrumKit& kit) { return kit.program == program; });
  return found == kits_.end() ? -1 : static_cast<int>(found - kits_.begin());
}

}  // namespace lunavox

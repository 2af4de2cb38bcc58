#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace lunavox {

/// A kit of the drum track.
struct DrumKit {
  std::string name;
  std::int16_t program = 0;

  bool operator==(const DrumKit&) const = default;
};

/// The nine drum kits of "drumbank.ini", in the order of the list `drumlist`.
class DrumKits {
 public:
  static constexpr int kKits = 9;

  /// Reads nine records name, program; what follows them is not read.
  /// @throws RuntimeError for a missing file or fewer records
  static DrumKits read(const std::filesystem::path& file);
  static DrumKits parse(std::string_view bytes);

  const std::vector<DrumKit>& kits() const { return kits_; }
  /// The place in the list of the kit with a program number; none is -1.
  int index_of(int program) const;

 private:
  std::vector<DrumKit> kits_;
};

}  // namespace lunavox

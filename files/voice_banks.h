#pragma once

#include "grid/song.h"

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace lunavox {

/// Stands in a place of the voice grid that holds no voice.
inline constexpr std::string_view kNoVoice = "--------";

/// The instrument voices of "instrubank.ini": what the grid `instrulist` shows, a row for each
/// program 0..127 and a column for each of at most nine voices of it, and the bank of each voice.
class VoiceBanks {
 public:
  static constexpr int kPrograms = 128;
  static constexpr int kColumns = 9;
  /// The bank table has one column more than the grid; it is never filled.
  static constexpr int kBankColumns = 10;
  static constexpr int kColumnWidth = 1200;  ///< twips

  VoiceBanks() : names_(kPrograms) {}

  /// Reads the records name, bank, program up to the end of the file. A voice's row is the number
  /// of programs before it, whatever its own number says: that is only compared with the record
  /// before, and a change starts a row. Voices after the ninth of a row are dropped.
  /// @throws RuntimeError for a missing file, a record cut short, or more rows than programs
  static VoiceBanks read(const std::filesystem::path& file);
  static VoiceBanks parse(std::string_view bytes);

  /// What a cell of `instrulist` shows: a name, "--------", or nothing after the last voice.
  const std::string& name(int program, int column) const;
  /// The bank select LSB of a voice, 0 where there is none.
  /// @param column 0..9
  std::int16_t bank(int column, int program) const;

  /// True for a cell that holds a voice.
  bool has_voice(int program, int column) const;
  /// The column of a program's voice with a bank; none is -1.
  int column_of(int program, int bank) const;

 private:
  using Names = std::array<std::string, kColumns>;
  using Banks = std::array<std::int16_t, kPrograms>;
  friend class VoiceBankParser;

  std::vector<Names> names_;
  std::array<Banks, kBankColumns> banks_{};
};

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

/// The name of a track's voice or drum kit, by its bank and program. A voice that the bank files do
/// not list has the name that the song gives it.
std::string voice_name_of(const Song& song, int track, const VoiceBanks& voices,
                          const DrumKits& kits);

}  // namespace lunavox

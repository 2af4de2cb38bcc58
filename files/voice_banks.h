#pragma once

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

}  // namespace lunavox

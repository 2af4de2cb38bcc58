#include "files/voice_banks.h"

#include "files/field_reader.h"
#include "files/file_bytes.h"
#include "grid/runtime_error.h"

namespace lunavox {
namespace {

void check(int index, int count) {
  if (index < 0 || index >= count) throw RuntimeError(RuntimeError::kSubscriptOutOfRange);
}

}  // namespace

/// Places the records of "instrubank.ini" in the voice grid.
class VoiceBankParser {
 public:
  explicit VoiceBankParser(VoiceBanks& banks) : banks_(banks) {}

  void record(std::string_view name, std::int16_t bank, std::int16_t program) {
    if (program == previous_program_) {
      ++column_;
    } else {
      end_row();
    }
    if (column_ <= VoiceBanks::kColumns) place(name, bank);
    previous_program_ = program;
  }

 private:
  void end_row() {
    for (int column = column_; column < VoiceBanks::kColumns; ++column) {
      banks_.names_[index(row_ - 1)][index(column)] = kNoVoice;
    }
    ++row_;
    column_ = 1;
  }

  void place(std::string_view name, std::int16_t bank) {
    check(row_ - 1, VoiceBanks::kPrograms);
    banks_.banks_[index(column_ - 1)][index(row_ - 1)] = bank;
    banks_.names_[index(row_ - 1)][index(column_ - 1)] = name;
  }

  static std::size_t index(int value) { return static_cast<std::size_t>(value); }

  VoiceBanks& banks_;
  int previous_program_ = 0;
  // Counted from 1. A first record of program 0 goes on with the first row; any other one leaves
  // that row without a voice.
  int row_ = 1;
  int column_ = 0;
};

VoiceBanks VoiceBanks::read(const std::filesystem::path& file) {
  return parse(read_file(file));
}

VoiceBanks VoiceBanks::parse(std::string_view bytes) {
  VoiceBanks banks;
  VoiceBankParser parser(banks);
  FieldReader fields(bytes);
  while (!fields.at_end()) {
    const std::string_view name = fields.text();
    const std::int16_t bank = fields.short_integer();
    parser.record(name, bank, fields.short_integer());
  }
  return banks;
}

const std::string& VoiceBanks::name(int program, int column) const {
  check(program, kPrograms);
  check(column, kColumns);
  return names_[static_cast<std::size_t>(program)][static_cast<std::size_t>(column)];
}

std::int16_t VoiceBanks::bank(int column, int program) const {
  check(column, kBankColumns);
  check(program, kPrograms);
  return banks_[static_cast<std::size_t>(column)][static_cast<std::size_t>(program)];
}

bool VoiceBanks::has_voice(int program, int column) const {
  const std::string& text = name(program, column);
  return !text.empty() && text != kNoVoice;
}

int VoiceBanks::column_of(int program, int bank_lsb) const {
  if (program < 0 || program >= kPrograms) return -1;
  for (int column = 0; column < kColumns; ++column) {
    if (has_voice(program, column) && bank(column, program) == bank_lsb) return column;
  }
  return -1;
}

}  // namespace lunavox

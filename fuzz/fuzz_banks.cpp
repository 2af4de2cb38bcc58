#include "files/drum_kits.h"
#include "files/voice_banks.h"
#include "fuzz/check.h"
#include "grid/runtime_error.h"

#include <cstddef>
#include <cstdint>

using lunavox::DrumKits;
using lunavox::RuntimeError;
using lunavox::VoiceBanks;
using lunavox::fuzz::check;

/// Any file gives voices and kits that can be asked for, or ends in an error.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  try {
    const VoiceBanks voices = VoiceBanks::parse(bytes);
    for (int program = 0; program < VoiceBanks::kPrograms; ++program) {
      const int bank = voices.bank(0, program);
      const int column = voices.column_of(program, bank);
      check(column < 0 || voices.bank(column, program) == bank, "a voice is found by its bank");
    }
  } catch (const RuntimeError&) {
  }
  try {
    check(DrumKits::parse(bytes).kits().size() == DrumKits::kKits, "there are nine kits");
  } catch (const RuntimeError&) {
  }
  return 0;
}

#include "files/voice_search.h"

#include <string>

namespace lunavox {
namespace {

constexpr int kCells = VoiceBanks::kPrograms * VoiceBanks::kColumns;

/// A text without what does not count.
std::string plain(std::string_view text) {
  std::string kept;
  for (const char c : text) {
    if (c == ' ') continue;
    kept += c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  }
  return kept;
}

VoiceCell cell_at(int place) {
  return {place / VoiceBanks::kColumns, place % VoiceBanks::kColumns};
}

}  // namespace

std::optional<VoiceCell> find_voice(const VoiceBanks& banks, std::string_view text, VoiceCell at,
                                    SearchFrom from) {
  const std::string wanted = plain(text);
  if (wanted.empty()) return std::nullopt;
  const int start = at.program * VoiceBanks::kColumns + at.column;
  std::optional<VoiceCell> containing;
  for (int i = 0; i < kCells; ++i) {
    const VoiceCell cell = cell_at((start + i + (from == SearchFrom::kNext ? 1 : 0)) % kCells);
    if (!banks.has_voice(cell.program, cell.column)) continue;
    const std::string name = plain(banks.name(cell.program, cell.column));
    const auto found = name.find(wanted);
    if (found == 0) return cell;
    if (found != std::string::npos && !containing) containing = cell;
  }
  return containing;
}

}  // namespace lunavox

#include "midi/ports/soundfont_search.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <string_view>

namespace lunavox {
namespace {

namespace fs = std::filesystem;

/// A SoundFont is a RIFF file of the form "sfbk". Asked by hand: given anything else, the
/// synthesiser's library tries further formats and prints about it.
bool looks_like_soundfont(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  std::array<char, 12> head{};
  if (!file.read(head.data(), head.size())) return false;
  const std::string_view text(head.data(), head.size());
  return text.starts_with("RIFF") && text.ends_with("sfbk");
}

std::string problem_with(const fs::path& wanted) {
  const std::string quoted = "\"" + wanted.string() + "\"";
  std::error_code error;
  if (!fs::exists(wanted, error)) return "The SoundFont " + quoted + " does not exist.";
  if (!std::ifstream(wanted)) return "The SoundFont " + quoted + " cannot be read.";
  if (!looks_like_soundfont(wanted)) return "The file " + quoted + " is not a SoundFont.";
  return {};
}

/// The SoundFonts in a folder, by name: what a distribution's own choice of name hides from us.
void add_folder(std::vector<fs::path>& found, const fs::path& folder) {
  std::error_code error;
  std::vector<fs::path> here;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder, error)) {
    if (entry.path().extension() == ".sf2") here.push_back(entry.path());
  }
  std::sort(here.begin(), here.end());
  found.insert(found.end(), here.begin(), here.end());
}

}  // namespace

std::vector<fs::path> usual_soundfonts() {
  const fs::path folder = "/usr/share/sounds/sf2";
  const fs::path other_folder = "/usr/share/soundfonts";
  std::vector<fs::path> found = {folder / "default-GM.sf2", folder / "TimGM6mb.sf2",
                                 folder / "FluidR3_GM.sf2", other_folder / "default.sf2"};
  add_folder(found, folder);
  add_folder(found, other_folder);
  return found;
}

SoundFontChoice choose_soundfont(const fs::path& wanted, const std::vector<fs::path>& usual) {
  if (!wanted.empty()) {
    std::string problem = problem_with(wanted);
    return {problem.empty() ? wanted : fs::path(), std::move(problem)};
  }
  const auto found = std::find_if(usual.begin(), usual.end(), looks_like_soundfont);
  if (found != usual.end()) return {*found, {}};
  return {{}, "No SoundFont was found: install one, such as the package timgm6mb-soundfont."};
}

}  // namespace lunavox

#include "files/program_folders.h"

#include <cstdlib>
#include <system_error>

namespace lunavox {
namespace {

namespace fs = std::filesystem;

constexpr const char* kProgram = "lunavox";

// Folders above an executable in a build tree: build/dev/app.
constexpr int kBuildDepth = 3;

bool has_banks(const fs::path& folder) {
  std::error_code none;
  return fs::exists(folder / "instrubank.ini", none) && fs::exists(folder / "drumbank.ini", none);
}

/// The user's base folder of a kind. Relative paths in the environment count as unset.
fs::path user_folder(const Environment& environment, const char* variable, const char* below_home) {
  const fs::path set = environment(variable).value_or("");
  if (set.is_absolute()) return set / kProgram;
  const fs::path home = environment("HOME").value_or("");
  return (home.is_absolute() ? home : fs::temp_directory_path()) / below_home / kProgram;
}

fs::path data_folder(const fs::path& own) {
  fs::path above = own;
  for (int i = 0; i < kBuildDepth; ++i) {
    above = above.parent_path();
    if (has_banks(above / "data")) return above / "data";
  }
  return own.parent_path() / "share" / kProgram;
}

/// Beside the data files, or, in a source tree, beside their folder.
fs::path skin_folder(const fs::path& data) {
  std::error_code none;
  const fs::path beside = data.parent_path() / "skin";
  return !fs::exists(data / "skin", none) && fs::exists(beside, none) ? beside : data / "skin";
}

}  // namespace

std::optional<std::string> process_environment(const std::string& name) {
  const char* value = std::getenv(name.c_str());
  if (value == nullptr) return std::nullopt;
  return value;
}

ProgramFolders find_program_folders(const fs::path& executable, const Environment& environment) {
  const fs::path own = executable.parent_path();
  ProgramFolders folders;
  folders.state = user_folder(environment, "XDG_STATE_HOME", ".local/state");
  if (has_banks(own)) {
    folders.data = folders.config = own;
  } else {
    folders.data = data_folder(own);
    folders.config = user_folder(environment, "XDG_CONFIG_HOME", ".config");
  }
  folders.skin = skin_folder(folders.data);
  return folders;
}

}  // namespace lunavox

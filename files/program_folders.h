#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

namespace lunavox {

/// Where the program's files lie.
struct ProgramFolders {
  std::filesystem::path data;    ///< the bank files and "readme.htm"
  std::filesystem::path skin;    ///< the button bitmaps
  std::filesystem::path config;  ///< "lvconfig.ini" and the user's settings
  std::filesystem::path state;   ///< recovery files

  std::filesystem::path drum_bank() const { return data / "drumbank.ini"; }
  std::filesystem::path voice_bank() const { return data / "instrubank.ini"; }
  std::filesystem::path readme() const { return data / "readme.htm"; }
  std::filesystem::path config_file() const { return config / "lvconfig.ini"; }
};

/// The value of an environment variable, none where it is not set.
using Environment = std::function<std::optional<std::string>(const std::string& name)>;
/// The environment of this process.
std::optional<std::string> process_environment(const std::string& name);

/// Finds the folders of a program. Where the bank files lie beside the executable, that folder is
/// the program's own for data, skin and configuration. Else the data lies in a folder `data` above
/// the executable (a build tree) or in the `share/lunavox` of its prefix, and the configuration in
/// the user's folders as the XDG base directories have it.
/// @param executable  whole name of the program's file
ProgramFolders find_program_folders(const std::filesystem::path& executable,
                                    const Environment& environment = process_environment);

}  // namespace lunavox

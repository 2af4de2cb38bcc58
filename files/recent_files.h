#pragma once

#include "grid/property.h"

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace lunavox {

/// The songs that were last opened or saved, the latest first, kept in a file of the user's
/// settings. A file that cannot be read or written only means a list that is forgotten.
class RecentFiles {
 public:
  static constexpr std::size_t kMost = 8;

  /// @param file  where the list is kept, one name a line
  explicit RecentFiles(std::filesystem::path file) : file_(std::move(file)) {}

  /// Whole names.
  Property<std::vector<std::string>> names;

  void load();
  /// Puts a song first, once.
  void add(const std::string& name);
  void remove(const std::string& name);

  /// The folder of the file that was last opened, saved or exported, empty where there is none:
  /// where file dialogs begin.
  std::string last_folder() const;
  /// A file that is no song was written: file dialogs begin in its folder, until the program ends.
  void set_last_folder(const std::string& file);

 private:
  void store() const;

  std::filesystem::path file_;
  std::string other_folder_;  ///< of a later file than the latest song, else empty
};

}  // namespace lunavox

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

  /// The folder of the latest song, empty where there is none: where file dialogs begin.
  std::string last_folder() const;

 private:
  void store() const;

  std::filesystem::path file_;
};

}  // namespace lunavox

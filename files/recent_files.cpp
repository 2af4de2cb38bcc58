#include "files/recent_files.h"

#include "files/atomic_file.h"
#include "files/file_bytes.h"
#include "grid/runtime_error.h"

#include <sstream>

namespace lunavox {
namespace {

namespace fs = std::filesystem;

std::string whole_name(const std::string& name) {
  std::error_code failure;
  const fs::path whole = fs::absolute(name, failure).lexically_normal();
  return failure ? name : whole.string();
}

}  // namespace

void RecentFiles::load() {
  try {
    std::istringstream lines(read_file(file_));
    std::vector<std::string> read;
    for (std::string line; std::getline(lines, line) && read.size() < kMost;) {
      if (!line.empty()) read.push_back(line);
    }
    names = read;
  } catch (const RuntimeError&) {
    names = std::vector<std::string>();
  }
}

void RecentFiles::add(const std::string& name) {
  const std::string whole = whole_name(name);
  other_folder_.clear();
  names.update([&](std::vector<std::string>& list) {
    std::erase(list, whole);
    list.insert(list.begin(), whole);
    if (list.size() > kMost) list.resize(kMost);
  });
  store();
}

void RecentFiles::remove(const std::string& name) {
  const std::string whole = whole_name(name);
  names.update([&](std::vector<std::string>& list) { std::erase(list, whole); });
  store();
}

void RecentFiles::set_last_folder(const std::string& file) {
  other_folder_ = fs::path(whole_name(file)).parent_path().string();
}

std::string RecentFiles::last_folder() const {
  if (!other_folder_.empty()) return other_folder_;
  if (names.get().empty()) return {};
  return fs::path(names.get().front()).parent_path().string();
}

void RecentFiles::store() const {
  std::string lines;
  for (const std::string& name : names.get()) lines += name + "\n";
  try {
    std::error_code none;
    fs::create_directories(file_.parent_path(), none);
    AtomicFile file(file_);
    file.write(lines);
    file.commit();
  } catch (const RuntimeError&) {
    // The list lives on until the program ends; a song is never held up by it.
  }
}

}  // namespace lunavox

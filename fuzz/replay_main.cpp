// Runs a harness over the files of a corpus, and over mutations of them that are the same on every
// run: a short fuzzing that needs no fuzzer.
//
// usage: replay_NAME MUTATIONS FOLDER...

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

namespace fs = std::filesystem;

std::vector<std::string> files_of(const fs::path& folder) {
  std::vector<std::string> files;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    if (!entry.is_regular_file()) continue;
    std::ifstream in(entry.path(), std::ios::binary);
    files.emplace_back(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
  }
  return files;
}

void run(const std::string& bytes) {
  LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
}

/// Changes some bytes, takes some out or puts some in, preferring those that mean something.
std::string mutated(std::string bytes, std::mt19937& random) {
  static const std::vector<std::string> kPieces = {
      ",",  "\"",   "\r\n",  "\n",  "\r",   " ",   "-",      "0",   "9",  "16",
      "17", "3001", "32767", "1e9", "stop", "yes", "642499", "1.1", "2.0"};
  for (int edits = 1 + static_cast<int>(random() % 4); edits > 0; --edits) {
    const std::size_t place = random() % (bytes.size() + 1);
    const std::size_t length = random() % 2 == 0 ? 0 : random() % 8;
    const std::string piece = random() % 4 == 0 ? std::string(1, static_cast<char>(random()))
                                                : kPieces[random() % kPieces.size()];
    bytes.replace(place, length, piece);
  }
  return bytes;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) return 2;
  const int mutations = std::atoi(argv[1]);
  std::vector<std::string> corpus;
  for (int i = 2; i < argc; ++i) {
    for (std::string& file : files_of(argv[i])) corpus.push_back(std::move(file));
  }
  if (corpus.empty()) return 1;
  for (const std::string& file : corpus) run(file);
  std::mt19937 random(20);  // always the same
  for (int i = 0; i < mutations; ++i) run(mutated(corpus[random() % corpus.size()], random));
  std::printf("%zu files and %d mutations\n", corpus.size(), mutations);
  return 0;
}

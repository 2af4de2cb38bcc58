#include "files/config.h"
#include "fuzz/check.h"
#include "grid/runtime_error.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>

#include <unistd.h>

using lunavox::Config;
using lunavox::RuntimeError;
using lunavox::fuzz::check;

/// Any file names a device 0..9 or asks for one, or ends in an error.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const std::filesystem::path kFile =
      std::filesystem::temp_directory_path() /
      ("lunavox-fuzz-" + std::to_string(::getpid()) + ".ini");
  std::ofstream(kFile, std::ios::binary)
      .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
  Config config(kFile);
  try {
    config.load();
    const int device = config.input_device();
    check(device >= 0 && device <= 9, "a device has one digit");
    check(!config.asks_for_input() || device == 0, "no device is stored where one is asked for");
  } catch (const RuntimeError&) {
  }
  std::filesystem::remove(kFile);
  return 0;
}

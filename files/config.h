#pragma once

#include <filesystem>
#include <string>

namespace lunavox {

/// The configuration file "lvconfig.ini", which remembers the MIDI input device between runs. Two
/// lines: "input=" with one digit or none, and "boot=1".
class Config {
 public:
  explicit Config(std::filesystem::path file) : file_(std::move(file)) {}

  /// Reads both lines and writes the file back with the first as it was read. Where there is no
  /// file yet, no device is stored, and nothing is written.
  /// @throws RuntimeError for a file that cannot be read, has fewer lines or cannot be written
  void load();

  /// The first line as read or last written.
  const std::string& input_line() const { return input_line_; }
  /// True when no device is stored: the user is to be asked.
  bool asks_for_input() const;
  /// The stored device: the last character of the first line alone, so 0..9.
  int input_device() const;

  /// "Ask for input device next launch".
  void menuask_click();
  /// Stores the last decimal digit of a device number.
  void store_input_device(int device);

 private:
  void write(const std::string& input_line);

  std::filesystem::path file_;
  std::string input_line_ = "input=";
};

}  // namespace lunavox

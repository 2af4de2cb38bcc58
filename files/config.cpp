#include "files/config.h"

#include "files/atomic_file.h"
#include "files/field_reader.h"
#include "files/file_bytes.h"
#include "grid/runtime_numbers.h"

#include <system_error>

namespace lunavox {
namespace {

constexpr const char* kNoDevice = "input=";

std::string config_bytes(const std::string& input_line) {
  return input_line + "\r\nboot=1\r\n";
}

}  // namespace

void Config::load() {
  std::error_code none;
  if (!std::filesystem::exists(file_, none)) return;
  const std::string bytes = read_file(file_);
  FieldReader fields(bytes);
  input_line_ = fields.text();
  fields.text();  // the value of "boot=" says nothing
  // A file that would come out the same is left alone, so that it may well be read-only.
  if (bytes != config_bytes(input_line_)) write(input_line_);
}

bool Config::asks_for_input() const {
  return input_line_.ends_with('=');
}

int Config::input_device() const {
  const std::size_t tail = input_line_.empty() ? 0 : 1;
  return round_half_even(leading_number(input_line_.substr(input_line_.size() - tail)));
}

void Config::menuask_click() {
  write(kNoDevice);
}

void Config::store_input_device(int device) {
  write(kNoDevice + std::string(1, plain_number(device).back()));
}

void Config::write(const std::string& input_line) {
  std::error_code none;
  std::filesystem::create_directories(file_.parent_path(), none);
  AtomicFile file(file_);
  file.write(config_bytes(input_line));
  file.commit();
  input_line_ = input_line;
}

}  // namespace lunavox
